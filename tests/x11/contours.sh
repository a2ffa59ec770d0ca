#!/bin/sh
# SPDX-License-Identifier: MIT
# The contours add-on by mouse and keyboard: menus, a sub-menu, a list, a scale, tabs, OK.
# Usage: contours.sh ZELHOST ADDON
set -eu
. "$(dirname "$0")/desktop.sh"

dialog='Contour levels'
open_dialog "$1" "$dialog" "$2"

# Delete every level by the menus: Levels > Select > All, then Levels > Delete selected. OK then complains.
click "$dialog" 30 8
sleep 0.3
xdotool key s a
sleep 0.3
click "$dialog" 30 8
sleep 0.3
xdotool key d
sleep 0.3
click "$dialog" -140 -18
wait_until windows_of_host 2
xdotool key Return
wait_until windows_of_host 1
wait_until activated "$dialog"
echo "ok: the menus have reached the list"

# Moving the scale makes new levels; the other tab has a field that rejects.
# Where exactly it is depends on the toolkit's metrics of the font.
click "$dialog" -60 103
sleep 0.6
click "$dialog" -60 108
click "$dialog" 118 53
sleep 0.3
click "$dialog" 140 122
xdotool key ctrl+a
xdotool type 9
xdotool key Tab
wait_until windows_of_host 2
xdotool key Return
wait_until windows_of_host 1
wait_until activated "$dialog"
xdotool type 1.5
xdotool key Return
end_host_without "$dialog"
echo "ok: scale, tabs and field have, too"
