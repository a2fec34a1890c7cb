#!/usr/bin/env bash
# Starts the editor on an X server and an accessibility bus of its own, and walks through it as a screen
# reader does (walk.py).
# usage: walk.sh EDITOR
set -euo pipefail
editor=$(readlink -f "$1")
here=$(dirname "$(readlink -f "$0")")

if [ -z "${QUEXAL_ON_BUS-}" ]; then
    QUEXAL_ON_BUS=1 exec xvfb-run -a -s "-screen 0 1366x768x24" dbus-run-session -- "$0" "$editor"
fi

work=$(mktemp -d)
# shellcheck disable=SC2317 # called by the trap
cleanup() {
    jobs -p | xargs -r kill 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT
unset QT_QPA_PLATFORM # a real X server is meant, whatever else is asked for outside
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
chmod 700 "$work"

header=+1+Kent+1837+3+9999+0+A+B
printf 'Alpha%s|Ash|! bad\r\nBeta%s|Elm\r\n' "$header" "$header" >"$work/small.txt"
awk -v header="$header" 'BEGIN { for (i = 1; i <= 100000; ++i) printf "District %06d%s|Name %d\r\n", i, header, i }' \
    >"$work/long.txt"

/usr/libexec/at-spi-bus-launcher --launch-immediately --a11y=1 >/dev/null 2>&1 &
openbox --config-file /dev/null >/dev/null 2>&1 &
sleep 1 # for the bus and for the manager of windows, without which none has the focus
"$editor" >"$work/log" 2>&1 &
program=$!
/usr/bin/python3 "$here/walk.py" "$work/small.txt" "$work/long.txt" || {
    cat "$work/log" >&2
    [ -z "${QUEXAL_PICTURE-}" ] || import -window root "$QUEXAL_PICTURE"
    exit 1
}
kill -0 "$program" || {
    echo "walk: the editor has ended" >&2
    exit 1
}
