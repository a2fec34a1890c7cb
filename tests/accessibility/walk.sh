#!/usr/bin/env bash
# Starts the editor on an X server and an accessibility bus of its own, and walks through it as a screen
# reader does (walk.py).
# usage: walk.sh EDITOR
set -euo pipefail
editor=$(readlink -f "$1")
here=$(dirname "$(readlink -f "$0")")

if [ -z "${QUEXAL_ON_BUS-}" ]; then
    QUEXAL_ON_BUS=1 QUEXAL_ON_XVFB=1 exec xvfb-run -a -s "-screen 0 1366x768x24" dbus-run-session -- "$0" "$editor"
fi

# shellcheck source=tests/program/session.sh
. "$here/../program/session.sh"
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1

header=+1+Kent+1837+3+9999+0+A+B
printf 'Alpha%s|Ash|! bad\r\nBeta%s|Elm\r\n' "$header" "$header" >"$work/small.txt"
awk -v header="$header" 'BEGIN { for (i = 1; i <= 100000; ++i) printf "District %06d%s|Name %d\r\n", i, header, i }' \
    >"$work/long.txt"

/usr/libexec/at-spi-bus-launcher --launch-immediately --a11y=1 >/dev/null 2>&1 &
manage_windows
sleep 1 # for the bus
"$editor" >"$work/editor.log" 2>&1 &
program=$!
/usr/bin/python3 "$here/walk.py" "$work/small.txt" "$work/long.txt" || fail "the walk did not get to its end"
kill -0 "$program" || fail "the editor has ended"
