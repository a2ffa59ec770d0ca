#!/bin/sh
# SPDX-License-Identifier: MIT
# The hello add-on as a user sees it: in a window on a real X server, framed by a window manager, worked with mouse and
# keyboard. Every way out of its dialog has to close the dialog and leave the host running.
# Usage: session.sh ZELHOST HELLO_ADDON
set -eu
zelhost=$1
addon=$2
for tool in Xvfb openbox xdotool; do
    command -v $tool >/dev/null || { echo "$tool is missing"; exit 77; }
done

folder=$(mktemp -d)
# Those that have not been started yet are no words at all.
# shellcheck disable=SC2086
trap 'kill $host $manager $server 2>/dev/null || true; rm -rf "$folder"' EXIT
host=''
manager=''
server=''

# Runs a command until it succeeds, for ten seconds at most.
wait_until() {
    tries=100
    until "$@"; do
        tries=$((tries - 1))
        [ $tries -gt 0 ] || { echo "In vain: $*"; return 1; }
        sleep 0.1
    done
}
# A window manager that has started says which desktop is the current one.
managed() { xdotool get_desktop >/dev/null 2>&1; }
shown() { xdotool search --onlyvisible --name "^$1\$" >"$folder/window" 2>/dev/null; }
gone() { ! shown "$1"; }
active() { [ "$(xdotool getactivewindow getwindowname 2>/dev/null)" = "$1" ]; }
ended() { ! kill -0 "$host" 2>/dev/null; }

Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$folder/display" 2>/dev/null &
server=$!
wait_until test -s "$folder/display"
DISPLAY=:$(cat "$folder/display")
export DISPLAY QT_QPA_PLATFORM=xcb
openbox --sm-disable 2>/dev/null &
manager=$!
wait_until managed

# Clicks a place given from the dialog's right and lower edge, in pixels.
click() {
    window=$(head -n 1 "$folder/window")
    eval "$(xdotool getwindowgeometry --shell "$window")"
    xdotool mousemove --window "$window" $((WIDTH - $1)) $((HEIGHT - $2)) click 1
}

leave() {
    case $1 in
    Enter) xdotool key Return ;;
    Escape) xdotool key Escape ;;
    'the window frame') xdotool key alt+F4 ;;
    'the OK button') click 130 25 ;;
    'the Cancel button') click 45 25 ;;
    esac
}

for way in Enter Escape 'the window frame' 'the OK button' 'the Cancel button'; do
    "$zelhost" --dpi 96,96 --font 'DejaVu Sans,9' --report-leaks --launch Hello "$addon" &
    host=$!
    wait_until shown Hello
    wait_until active Hello
    shown Hello
    leave "$way"
    wait_until gone Hello || { echo "$way does not close the dialog"; exit 1; }
    ended && { echo "$way ends the host"; exit 1; }
    wait_until active zelhost
    xdotool key alt+F4
    wait_until ended
    wait "$host" || { echo "After $way the host fails with $?"; exit 1; }
    echo "ok: $way"
done
