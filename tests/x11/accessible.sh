#!/bin/sh
# SPDX-License-Identifier: MIT
# Finds the controls of a dialog as assistive technology does: by role and name.
# Usage: accessible.sh ZELHOST ADDON CONTROLS, where the file CONTROLS holds the dialog's title and then, sorted, the
# lines that accessible.py is to print.
set -eu
for tool in dbus-run-session /usr/libexec/at-spi-bus-launcher; do
    command -v "$tool" >/dev/null || { echo "$tool is missing"; exit 77; }
done
/usr/bin/python3 -c 'import pyatspi' 2>/dev/null || { echo "pyatspi is missing"; exit 77; }
if [ -z "${ZELGUI_TEST_BUS:-}" ]; then
    # A bus of its own, so that it finds this host and no other.
    ZELGUI_TEST_BUS=1 exec dbus-run-session -- "$0" "$@"
fi
. "$(dirname "$0")/desktop.sh"
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1 XDG_RUNTIME_DIR="$folder"

found() {
    /usr/bin/python3 "$here/accessible.py" "$entry" >"$folder/controls" 2>"$folder/errors" &&
        LC_ALL=C sort "$folder/controls" | diff "$folder/expected" - >"$folder/difference"
}
here=$(dirname "$0")
entry=$(head -n 1 "$3")
tail -n +2 "$3" >"$folder/expected"
open_dialog "$1" "$entry" "$2"
wait_until found || { cat "$folder/difference" "$folder/errors"; exit 1; }
xdotool key Escape
end_host_without "$entry"
echo "ok: every control has been found by its role and name"
