#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs all fuzz targets for SECONDS each, beginning with the kept inputs, and shows the input of a failure.
# Usage: run.sh SECONDS [TARGET...]
set -u
seconds=${1:?how many seconds for each target}
shift
[ $# -gt 0 ] || set -- settext integertext numberformat itemlist bitmap calls

fuzz=$(cd "$(dirname "$0")" && pwd)
cd "$fuzz/../.." || exit 1
. tools/debian.sh
# The names have to be split into words.
# shellcheck disable=SC2086
require_packages $build_packages $fuzz_packages || exit 1
[ -f build/fuzz/build.ninja ] || cmake --preset fuzz || exit 1
cmake --build --preset fuzz || exit 1

# The toolkit isn't instrumented: what it reads after destruction has to hurt.
export ASAN_OPTIONS=max_free_fill_size=1000000:free_fill_byte=221
export LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp:print_suppressions=0"
export QT_QPA_PLATFORM=offscreen

show_failure() {
    echo "Failed: $1"
    for input in "$failures"/*; do
        [ -s "$input" ] || continue
        printf 'The input, to be kept in tests/fuzz/corpus/%s when its fault is mended: %s\n' "$1" "$input"
        od -A x -t x1z "$input"
        base64 "$input"
    done
    tail -n 30 "$log"
}

# Leaks are looked for when a target ends: after each input it would take most of the time.
fuzz_target() {
    found=build/fuzz/found/$1
    failures=build/fuzz/failures/$1
    log=build/fuzz/$1.log
    rm -rf "$failures"
    mkdir -p "$found" "$failures"
    options="-max_total_time=$seconds -timeout=30 -rss_limit_mb=4096 -max_len=600 -detect_leaks=0"
    [ ! -f "$fuzz/$1.dict" ] || options="$options -dict=$fuzz/$1.dict"
    # The options have to be split into words.
    # shellcheck disable=SC2086
    if build/fuzz/bin/"fuzz_$1" $options -artifact_prefix="$failures/" "$found" "$fuzz/corpus/$1" >"$log" 2>&1; then
        echo "$1: $(grep '^Done ' "$log")"
    else
        show_failure "$1"
        return 1
    fi
}

failed=0
for target in "$@"; do
    fuzz_target "$target" || failed=1
done
exit $failed
