#!/bin/sh
# SPDX-License-Identifier: MIT
# What the installed library promises those who load it: it exports the functions that its header declares and nothing
# else, it is hardened, it names no folder, and it still fits add-ons that were built against what was released.
# Usage: binary.sh BUILD_FOLDER SOURCE_FOLDER
#        binary.sh --update-abi BUILD_FOLDER SOURCE_FOLDER    after a change that is meant
set -eu
update=
[ "$1" != --update-abi ] || { update=yes; shift; }
build=$1
source=$2
abi=$source/zelgui/api/zelgui.abi
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

complain()
{
    echo "$1"
    failed=yes
}

# Types as add-ons see them: neither Qt nor the place where the library was built makes a difference.
dump()
{
    abidw --exported-interfaces-only --drop-undefined-syms --drop-private-types --headers-dir "$source/zelgui/api" \
        --no-corpus-path --no-comp-dir-path --no-show-locs --no-elf-needed --out-file "$1" "$library"
}

cmake --install "$build" --prefix "$folder" >"$folder/log"
library=$(find "$folder" -name libzelgui.so.1)
if [ -n "$update" ]; then
    dump "$abi"
    exit
fi
failed=

nm --dynamic --defined-only --format=posix "$library" | cut -d ' ' -f 1 | LC_ALL=C sort >"$folder/exported"
declared=$build/interface/functions.txt
[ "$(wc -l <"$declared")" -eq 116 ] || complain "The header doesn't declare 116 functions."
diff "$declared" "$folder/exported" || complain "The functions declared (<) and exported (>) differ."

readelf --dynamic --wide "$library" >"$folder/dynamic"
readelf --program-headers --wide "$library" >"$folder/segments"
grep -q 'GNU_STACK.* RW ' "$folder/segments" || complain "The stack is executable."
grep -q GNU_RELRO "$folder/segments" || complain "The relocations stay writable."
grep -q BIND_NOW "$folder/dynamic" || complain "The relocations stay writable."
grep -q NODELETE "$folder/dynamic" || complain "The library would be unloaded with the last add-on."
! grep -q TEXTREL "$folder/dynamic" || complain "The code is relocated."
! grep -E 'RPATH|RUNPATH' "$folder/dynamic" || complain "A run path is left."

if command -v abidiff >/dev/null; then
    dump "$folder/abi"
    abidiff "$abi" "$folder/abi" || complain "The binary interface has changed."
else
    echo "No abidiff: the binary interface wasn't compared."
fi
[ -z "$failed" ] && echo "$(wc -l <"$folder/exported") functions"
