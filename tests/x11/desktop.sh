# SPDX-License-Identifier: MIT
# shellcheck shell=sh
# Sourced: a real X server with a window manager, and the hands and eyes of a user.

for tool in Xvfb openbox xdotool; do
    command -v $tool >/dev/null || { echo "$tool is missing"; exit 77; }
done

# Nothing is drawn with OpenGL, whose drivers leak.
export QT_XCB_GL_INTEGRATION=none

folder=$(mktemp -d)
host=''
manager=''
server=''
# Those that have not been started yet are no words at all.
# shellcheck disable=SC2086
trap 'kill $host $manager $server 2>/dev/null || true; wait $server 2>/dev/null || true; rm -rf "$folder"' EXIT

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
# Window managers are not always in time to give the focus back when a window closes; a user would click.
activated() { active "$1" || { xdotool search --onlyvisible --name "^$1\$" windowactivate 2>/dev/null || true; false; }; }
# A message has the title of the main window.
windows_of_host() { [ "$(xdotool search --onlyvisible --name '^zelhost$' 2>/dev/null | wc -l)" -eq "$1" ]; }
ended() { ! kill -0 "$host" 2>/dev/null; }

# Clicks a place of a window in pixels from its left and upper edge, or, if negative, from its right and lower one.
click() {
    shown "$1"
    window=$(head -n 1 "$folder/window")
    eval "$(xdotool getwindowgeometry --shell "$window")"
    x=$2
    y=$3
    [ "$x" -ge 0 ] || x=$((WIDTH + x))
    [ "$y" -ge 0 ] || y=$((HEIGHT + y))
    xdotool mousemove --window "$window" "$x" "$y" click 1
}

# Runs the host with one dialog open: open_dialog ZELHOST ENTRY ADDON
open_dialog() {
    "$1" --dpi 96,96 --font 'DejaVu Sans,9' --report-leaks --launch "$2" "$3" &
    host=$!
    wait_until shown "$2"
    wait_until activated "$2"
}

# The dialog has to be gone and the host still there; then ends the host, which must have nothing to complain of.
end_host_without() {
    wait_until gone "$1"
    ended && { echo "The host has ended with the dialog"; exit 1; }
    wait_until activated zelhost
    xdotool key alt+F4
    wait_until ended
    wait "$host" || { echo "The host fails with $?"; exit 1; }
}

start_desktop() {
    rm -f "$folder/display"
    Xvfb -displayfd 3 -screen 0 1024x768x24 -dpi 96 -nolisten tcp 3>"$folder/display" 2>/dev/null &
    server=$!
    wait_until test -s "$folder/display" || return 1
    DISPLAY=:$(cat "$folder/display")
    export DISPLAY
    openbox --sm-disable 2>/dev/null &
    manager=$!
    wait_until managed
}

export QT_QPA_PLATFORM=xcb
# A server that is just ending can take the display's socket with it.
start_desktop || {
    kill "$manager" "$server" 2>/dev/null || true
    wait "$server" 2>/dev/null || true
    start_desktop
}
