#!/bin/sh
# SPDX-License-Identifier: MIT
# The manual page is well-formed and has the options that the program has; the desktop entry is valid and starts what
# is installed.
# Usage: manual.sh INSTALLED_FOLDER
set -eu
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
page=$1/share/man/man1/zelhost.1
entry=$1/share/applications/zelhost.desktop

LC_ALL=C.UTF-8 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>"$folder/warnings" >/dev/null
[ ! -s "$folder/warnings" ] || { cat "$folder/warnings"; exit 1; }
# An option of the page is a paragraph's head; its hyphens are written \-.
sed -n '/^\.TP/{n;s/\\//g;p;}' "$page" | grep -o -e '--[a-z-]*' | sort >"$folder/described"
"$1/bin/zelhost" --help | sed -n 's/^  \(-[a-z], \)\{0,1\}\(--[a-z-]*\).*/\2/p' | sort >"$folder/there"
[ -s "$folder/there" ]
diff "$folder/there" "$folder/described"

desktop-file-validate "$entry"
