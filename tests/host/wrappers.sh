#!/bin/sh
# SPDX-License-Identifier: MIT
# The layer of zelhost's --trace has a function for each one of the library, and exports nothing else.
# Usage: wrappers.sh LAYER LIBRARY
set -eu
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

functions()
{
    nm --dynamic --defined-only --format=posix "$1" | cut -d ' ' -f 1 | sort
}

functions "$1" >"$folder/wrapped"
functions "$2" >"$folder/functions"
[ -s "$folder/functions" ] || { echo "No functions found in $2"; exit 1; }
diff "$folder/functions" "$folder/wrapped" && echo "$(wc -l <"$folder/wrapped") functions"
