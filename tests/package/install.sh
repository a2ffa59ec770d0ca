#!/bin/sh
# SPDX-License-Identifier: MIT
# Installs a build into an empty folder and moves it, as people do with what they have unpacked.
# Usage: install.sh BUILD_FOLDER INSTALLED_FOLDER
set -eu
rm -rf "$2" "$2.first"
cmake --install "$1" --prefix "$2.first" >/dev/null
mv "$2.first" "$2"
