#!/bin/sh
# SPDX-License-Identifier: MIT
# The library exports the functions that its header declares, and nothing else.
# Usage: exports.sh LIBRARY HEADER
set -eu
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
nm --dynamic --defined-only --format=posix "$1" | cut -d ' ' -f 1 | sort >"$folder/exported"
sed -n 's/^ZELGUI_API .*\(ZelGUI[A-Za-z0-9]*\)(.*/\1/p' "$2" | sort >"$folder/declared"
[ -s "$folder/declared" ] || { echo "No declarations found in $2"; exit 1; }
diff "$folder/declared" "$folder/exported" && echo "$(wc -l <"$folder/exported") functions"
