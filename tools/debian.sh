# SPDX-License-Identifier: MIT
# shellcheck shell=sh
# Sourced by the commands of the top folder: what a bare Debian 12 lacks gets installed.

as_root=
[ "$(id -u)" -eq 0 ] || as_root=sudo

# Installs those of the named packages that are missing; as root, or through sudo.
require_packages() {
    missing=
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing="$missing $package"
    done
    [ -n "$missing" ] || return 0
    echo "Installing:$missing"
    $as_root apt-get update -qq
    # The names have to be split into words.
    # shellcheck disable=SC2086
    DEBIAN_FRONTEND=noninteractive $as_root apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

# What it takes to build, and a font for the pictures.
# shellcheck disable=SC2034
build_packages='g++ cmake ninja-build libboost-dev qt6-base-dev fonts-dejavu-core castxml python3 libffi-dev'

# What the tests need besides.
# shellcheck disable=SC2034
check_packages='git qtbase5-dev pkg-config binutils clang-format clang-tidy shellcheck doxygen xvfb openbox xdotool abigail-tools
fonts-dejavu-extra dbus at-spi2-core python3-pyatspi
valgrind python3 gfortran man-db desktop-file-utils'

# What it takes to make Debian packages and to try them in a root folder of their own.
# shellcheck disable=SC2034
package_packages='git debhelper dpkg-dev lintian debootstrap'

# What the benchmarks need besides.
# shellcheck disable=SC2034
bench_packages='qtbase5-dev libbenchmark-dev'
# What ./torture needs besides.
# shellcheck disable=SC2034
torture_packages='valgrind'
# What tests/fuzz/run.sh and tools/coverage.sh need besides.
# shellcheck disable=SC2034
fuzz_packages='clang libclang-rt-dev'
# shellcheck disable=SC2034
coverage_packages='gcovr'
