#!/bin/sh
# SPDX-License-Identifier: MIT
# Measures which lines and branches of zelgui/ the tests run; fails where they are too few. Arguments go to gcovr, for
# example --html-details build/coverage/report.html.
set -eu
cd "$(dirname "$0")/.."
. tools/debian.sh
# The names have to be split into words.
# shellcheck disable=SC2086
require_packages $build_packages $check_packages $coverage_packages

[ -f build/coverage/build.ninja ] || cmake --preset coverage
cmake --build --preset coverage
find build/coverage -name '*.gcda' -delete
# What runs at random mustn't decide, nor what a failing host cuts off; what tries the installed package, or counts what
# the library does, needs it built otherwise.
ctest --preset coverage --parallel 2 --exclude-regex '^(torture_|package|docs_|startup|cost)|_scarce$'
# What only an exception takes isn't counted: nearly every call of the toolkit might throw one.
gcovr --root . --object-directory build/coverage --filter 'zelgui/.*' --exclude '.*_autogen/.*' \
    --exclude-throw-branches --exclude-unreachable-branches --print-summary --txt build/coverage/coverage.txt \
    --fail-under-line 97 --fail-under-branch 90 "$@"
