#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds the host of docs/embedding against the installed package, and has a visitor open every dialog of the example
# add-ons in it. None of the reference host's libraries may be loaded. A host's own header need not have the functions
# that are optional: the one source of zelgui's that uses them is built without.
# Usage: embedding.sh INSTALLED_FOLDER SOURCE_FOLDER VISITOR
set -eu
installed=$1
source=$2
visitor=$3
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
quietly() { "$@" >"$folder/log" 2>&1 || { cat "$folder/log"; exit 1; }; }

quietly cmake -G Ninja -S "$source/docs/embedding" -B "$folder/build" "-DCMAKE_PREFIX_PATH=$installed" \
    "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Werror"
quietly cmake --build "$folder/build"

optional='ZelUtilSet(AddRange|GetRunEnd)\('
[ "$(grep -rlE "$optional" "$source/zelgui")" = "$source/zelgui/util/setstring.cpp" ]
mkdir -p "$folder/headers/zvsdkbase"
grep -vE "$optional" "$source/host/zvsdkbase/zelutil.h" >"$folder/headers/zvsdkbase/zelutil.h"
quietly c++ -std=c++17 -Wall -Wextra -Werror -fPIC -shared -Wl,-z,defs "-I$folder/headers" "-I$source/zelgui" \
    "$source/zelgui/util/setstring.cpp" "-L$folder/build" -lzvsdkbase -ldl -o "$folder/setstring.so"

addons=$(dirname "$(find "$installed" -name hello.so)")
LD_DEBUG=files LD_DEBUG_OUTPUT=$folder/loaded "$folder/build/myhost" "$addons"/*.so "$visitor"
grep -q "calling init: .*/libzelgui.so.1" "$folder"/loaded.*
! grep -h "calling init: $installed/.*/zelgui/lib" "$folder"/loaded.*
