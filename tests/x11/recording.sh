#!/bin/sh
# SPDX-License-Identifier: MIT
# What a user does with the realistic dialogs is recorded, and the recording does the same again: on the same X server
# and without a display. While being played, it is recorded once more, which has to give the same steps.
# Usage: recording.sh ZELHOST STREAMLINES CONTOURS
set -eu
zelhost=$1
streamlines=$2
contours=$3
. "$(dirname "$0")/desktop.sh"

# record ENTRY ADDON: opens the entry's dialog, with a recorder.
record() {
    "$zelhost" --dpi 96,96 --font 'DejaVu Sans,9' --record "$folder/recorded" --launch "$1" "$2" &
    host=$!
    wait_until shown "$1"
    wait_until activated "$1"
}

# play PLATFORM ADDON: plays what was recorded.
play() {
    QT_QPA_PLATFORM=$1 timeout 200 "$zelhost" --dpi 96,96 --font 'DejaVu Sans,9' --report-leaks --timeout 60 \
        --script "$folder/recorded" --record "$folder/again" "$2"
    diff "$folder/recorded" "$folder/again"
}

message_shown() { windows_of_host 2 && active zelhost; }
dismiss_message() {
    wait_until message_shown
    xdotool key Return
    wait_until windows_of_host 1
    wait_until activated "$dialog"
}

dialog='Integrate streamlines'
record "$dialog" "$streamlines"
click "$dialog" -60 48
xdotool key ctrl+a
xdotool type abc
xdotool key Tab
dismiss_message
xdotool type 0.5
xdotool key Tab Up
click "$dialog" -130 -18
wait_until gone "$dialog"
end_host_without "$dialog"
cat "$folder/recorded"
grep -q '^type "Step size" "abc"$' "$folder/recorded"
grep -q '^expect message "Invalid value' "$folder/recorded"
play xcb "$streamlines"
play offscreen "$streamlines"
echo "ok: streamlines"

dialog='Contour levels'
record "$dialog" "$contours"
click "$dialog" 30 8
sleep 0.3
xdotool key s a
sleep 0.3
click "$dialog" 30 8
sleep 0.3
xdotool key d
sleep 0.3
click "$dialog" -140 -18
dismiss_message
# Where exactly the scale is depends on the toolkit's metrics of the font.
click "$dialog" -60 103
sleep 0.6
click "$dialog" -60 108
click "$dialog" 118 53
sleep 0.3
click "$dialog" 140 122
xdotool key ctrl+a
xdotool type 1.5
xdotool key Tab
sleep 0.3
click "$dialog" -140 -18
end_host_without "$dialog"
cat "$folder/recorded"
grep -q '^tab "Appearance"$' "$folder/recorded"
play xcb "$contours"
play offscreen "$contours"
echo "ok: contours"
