# shellcheck shell=bash
# What the tests of the real program share: they press keys and wait for windows. Who sources it defines fail().

# Waits until COUNT visible windows have this title.
wait_for() {
    local title=$1 count=${2-1} i
    for ((i = 0; i < 100; i++)); do
        [ "$(xdotool search --onlyvisible --name "^$title\$" 2>/dev/null | wc -l)" = "$count" ] && sleep 0.3 && return
        sleep 0.1
    done
    fail "line ${BASH_LINENO[0]}: expected $count window(s) \"$title\""
}
press() { xdotool key --clearmodifiers "$@"; }
type_path() {
    press ctrl+a
    xdotool type --delay 5 "$1"
    press Return
}
