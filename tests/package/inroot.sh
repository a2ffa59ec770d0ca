#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs as root inside an otherwise empty Debian, with the packages in /packages: installs them, makes and tries an
# add-on as their documentation says, and removes them again.
set -eu
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 HOME=/root
quietly() { "$@" >/tmp/log 2>&1 || { cat /tmp/log; exit 1; }; }

quietly apt-get update
find / -xdev -not -path '/proc/*' -iname '*zel*' -not -path '/packages/*' >/tmp/before

echo "The library alone takes no host along."
quietly apt-get install -y --no-install-recommends /packages/libzelgui1_*.deb
[ ! -e /usr/bin/zelhost ]

echo "The program shows its examples."
quietly apt-get install -y --no-install-recommends /packages/zelhost_*.deb fonts-dejavu-core
mkdir /tmp/pictures
# shellcheck disable=SC2046
quietly zelhost --report-leaks --render /tmp/pictures $(sed -n 's/^Exec=[^ ]* //p' /usr/share/applications/zelhost.desktop)
[ -s /tmp/pictures/Hello.png ]

echo "An add-on is made and tried."
quietly apt-get install -y --no-install-recommends /packages/libzelgui-dev_*.deb cmake gcc g++ make pkg-config libc6-dev
for language in C C++; do
    quietly zelhost --new-addon "/tmp/new-$language" --language "$language"
    quietly cmake -S "/tmp/new-$language" -B "/tmp/new-$language/build"
    quietly cmake --build "/tmp/new-$language/build"
    quietly ctest --test-dir "/tmp/new-$language/build" --no-tests=error --output-on-failure
done
# shellcheck disable=SC2046
quietly cc -shared -fPIC -o /tmp/hello.so /usr/share/doc/zelhost/addons/hello/hello.c $(pkg-config --cflags --libs zelgui)
rm /tmp/pictures/Hello.png
quietly zelhost --strict --trace --render /tmp/pictures /tmp/hello.so
[ -s /tmp/pictures/Hello.png ]
grep -q '^Hello:   ZelGUIDialogLaunch(0)$' /tmp/log

echo "Nothing stays behind."
quietly apt-get purge -y zelhost libzelgui-dev libzelgui1
rm -rf /tmp/new-*
find / -xdev -not -path '/proc/*' -iname '*zel*' -not -path '/packages/*' | diff /tmp/before -
