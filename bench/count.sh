#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs a program that counts its instructions, by callgrind: count.sh PROGRAM
set -eu
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
# Only what the program switches on is counted; its end is of no interest.
valgrind --quiet --tool=callgrind --collect-atstart=no --callgrind-out-file="$folder/report" "$1" "$folder/report"
