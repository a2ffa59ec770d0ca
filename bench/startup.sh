#!/bin/sh
# SPDX-License-Identifier: MIT
# A library that does nothing when it is loaded has only the compiler's own entry in .init_array: startup.sh LIBRARY
set -eu
size=$(readelf --wide --section-headers "$1" | sed -n 's/.* \.init_array *INIT_ARRAY *[0-9a-f]* [0-9a-f]* \([0-9a-f]*\).*/\1/p')
entries=$((0x${size:-0} / 8))
[ "$entries" -le 1 ] && exit
echo "$1 does work when it is loaded; initialisers beside the compiler's own: $((entries - 1))"
nm --demangle "$1" | grep _GLOBAL__sub_I_ || true
exit 1
