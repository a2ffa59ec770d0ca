#!/bin/sh
# SPDX-License-Identifier: MIT
# Every way out of the hello add-on's dialog closes it and leaves the host running.
# Usage: hello.sh ZELHOST ADDON
set -eu
. "$(dirname "$0")/desktop.sh"

leave() {
    case $1 in
    Enter) xdotool key Return ;;
    Escape) xdotool key Escape ;;
    'the window frame') xdotool key alt+F4 ;;
    'the OK button') click Hello -130 -25 ;;
    'the Cancel button') click Hello -45 -25 ;;
    esac
}

for way in Enter Escape 'the window frame' 'the OK button' 'the Cancel button'; do
    open_dialog "$1" Hello "$2"
    leave "$way"
    end_host_without Hello
    echo "ok: $way"
done
