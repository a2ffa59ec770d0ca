#!/bin/sh
# SPDX-License-Identifier: MIT
# The streamlines add-on, used as users do: typing, Tab, being rejected, correcting, OK. The fields complain through the
# host's error dialog, which takes the focus, and the mouse, from whatever is going on.
# Usage: streamlines.sh ZELHOST ADDON
set -eu
. "$(dirname "$0")/desktop.sh"

dialog='Integrate streamlines'
message_shown() { windows_of_host 2 && active zelhost; }
dismiss_message() {
    wait_until message_shown
    xdotool key Return
    wait_until windows_of_host 1
    wait_until "$@"
}
no_message() { windows_of_host 1 || { echo "A message that nobody asked for"; exit 1; }; }

# Into the second field.
type_bad_step() {
    click "$dialog" -60 48
    xdotool key ctrl+a
    xdotool type abc
}

open_dialog "$1" "$dialog" "$2"
type_bad_step
xdotool key Tab
dismiss_message activated "$dialog"
# Neither Tab nor Return leaves it, edited or not.
xdotool key Tab
dismiss_message activated "$dialog"
xdotool key Return
dismiss_message activated "$dialog"
# The rejected text is selected, so that typing replaces it.
xdotool type 0.5
xdotool key Tab
sleep 0.3
no_message
# In the spin text field: a maximum that the range doesn't have, corrected by an arrow.
xdotool key ctrl+a
xdotool type MX-100000
xdotool key Tab
dismiss_message activated "$dialog"
xdotool type 100
xdotool key Up Return
end_host_without "$dialog"
echo "ok: rejected, corrected, accepted"

open_dialog "$1" "$dialog" "$2"
type_bad_step
click "$dialog" -45 -25
dismiss_message gone "$dialog"
end_host_without "$dialog"
echo "ok: Cancel takes one click, though the click is interrupted by a message"

open_dialog "$1" "$dialog" "$2"
type_bad_step
xdotool key Escape
end_host_without "$dialog"
echo "ok: Escape leaves without a message"
