#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds add-ons of each language against an installed package, with CMake and with pkg-config, and runs them in the
# installed host.
# Usage: try.sh INSTALLED_FOLDER SOURCE_FOLDER
set -eu
installed=$1
source=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
quietly() { "$@" >"$folder/log" 2>&1 || { cat "$folder/log"; exit 1; }; }
fail() { echo "$1"; cat "$folder/log"; exit 1; }
# Draws the picture $1 of the add-on $2.
draw() {
    rm -f "$folder/$1"
    "$installed/bin/zelhost" --report-leaks --render "$folder" "$2"
    [ -s "$folder/$1" ]
}
CMAKE_PREFIX_PATH=$installed
PKG_CONFIG_PATH=$(dirname "$(find "$installed" -name zelgui.pc)")
CMAKE_GENERATOR=Ninja
export CMAKE_PREFIX_PATH PKG_CONFIG_PATH CMAKE_GENERATOR

# The flags have to be split into words.
# shellcheck disable=SC2046
cc -std=c99 -shared -fPIC -o "$folder/hello.so" "$source/addons/hello/hello.c" $(pkg-config --cflags --libs zelgui)
draw Hello.png "$folder/hello.so"

quietly cmake -S "$source/tests/package/project" -B "$folder/build"
quietly cmake --build "$folder/build"
if [ -e "$folder/build/fortran.so" ]; then
    draw Fortran.png "$folder/build/fortran.so"
    exported=$(nm --dynamic --defined-only --format=posix "$folder/build/fortran.so" | cut -d ' ' -f 1)
    [ "$exported" = ZelAddOnInit ] || { echo "Exported: $exported"; exit 1; }
fi
! cmake --build "$folder/build" --target mangled >"$folder/log" 2>&1 || fail "An add-on without ZelAddOnInit links."
grep -q ZelAddOnInit "$folder/log" || fail "The reason isn't told."

# Names that mean something to CMake, C, the shell or a script: the project is named after them, and yet it works.
for language in C C++; do
    odd="$folder/all \"\$(that)\" isn't \\ 100% $language; ok"
    [ $language = C ] || odd=$folder/test
    new="$folder/new in $language"
    quietly "$installed/bin/zelhost" --new-addon "$odd" --language $language
    mv "$odd" "$new"
    quietly cmake -S "$new" -B "$new/build" "-DCMAKE_C_FLAGS=-Wall -Wextra -Werror" \
        "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Werror"
    quietly cmake --build "$new/build"
    quietly ctest --test-dir "$new/build" --no-tests=error --output-on-failure
done

# Names that CMake keeps for itself.
for name in all clean help install package preinstall; do
    quietly "$installed/bin/zelhost" --new-addon "$folder/reserved/$name"
    quietly cmake -S "$folder/reserved/$name" -B "$folder/reserved/$name/build"
done

cp -r "$folder/new in C" "$folder/before"
! "$installed/bin/zelhost" --new-addon "$folder/new in C" 2>"$folder/log" || fail "A project was overwritten."
grep -q "not empty" "$folder/log" || fail "The reason isn't told."
diff -r "$folder/before" "$folder/new in C"

# The layer is found in its new place too, if it was built.
if [ -n "$(find "$installed" -name libzelgui-trace.so)" ]; then
    "$installed/bin/zelhost" --strict --trace --render "$folder" "$folder/hello.so" 2>"$folder/trace"
    grep -q '^Hello:   ZelGUIDialogLaunch(0)$' "$folder/trace"
fi
