#!/bin/sh
# SPDX-License-Identifier: MIT
# Installs a build into an empty folder, moves it away, builds the example add-on against it with CMake and with
# pkg-config, and runs both in the installed host.
# Usage: try.sh BUILD_FOLDER SOURCE_FOLDER
set -eu
build=$1
source=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

cmake --install "$build" --prefix "$folder/first" >"$folder/log"
mv "$folder/first" "$folder/installed"
installed=$folder/installed

cmake -G Ninja -S "$source/tests/package" -B "$folder/build" "-DHELLO_SOURCE=$source/addons/hello/hello.c" \
    "-DCMAKE_PREFIX_PATH=$installed" >>"$folder/log" 2>&1 || { cat "$folder/log"; exit 1; }
cmake --build "$folder/build" >>"$folder/log" 2>&1 || { cat "$folder/log"; exit 1; }

PKG_CONFIG_PATH=$(dirname "$(find "$installed" -name zelgui.pc)")
export PKG_CONFIG_PATH
# The flags have to be split into words.
# shellcheck disable=SC2046
cc -std=c99 -shared -fPIC -o "$folder/hello-pc.so" "$source/addons/hello/hello.c" $(pkg-config --cflags --libs zelgui)

for addon in "$folder/build/hello.so" "$folder/hello-pc.so"; do
    rm -f "$folder/Hello.png"
    "$installed/bin/zelhost" --report-leaks --render "$folder" "$addon"
    test -s "$folder/Hello.png"
done
