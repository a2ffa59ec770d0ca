#!/bin/sh
# SPDX-License-Identifier: MIT
# Draws the reference host with a dialog open, as it looks on a desktop. Needs ImageMagick beside what the tests need.
# Usage: hostpicture.sh ZELHOST ENTRY ADDON PICTURE
set -eu
. "$(dirname "$0")/../tests/x11/desktop.sh"

open_dialog "$1" "$2" "$3"
xdotool search --onlyvisible --name "^$2\$" windowmove 330 290
# Windows are drawn some time after they have got their place.
sleep 1
shown zelhost
import -silent -screen -frame -window "$(head -n 1 "$folder/window")" "$4"
xdotool key Escape
end_host_without "$2"
