#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs a program that counts its instructions, by callgrind: count.sh PROGRAM [ARGUMENT]
set -eu
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export QT_QPA_PLATFORM=offscreen
# Only what the program switches on is counted; its end is of no interest.
valgrind --quiet --tool=callgrind --collect-atstart=no --callgrind-out-file="$folder/report" "$1" "$folder/report" ${2:+"$2"}
