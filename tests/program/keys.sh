# shellcheck shell=bash
# Pressing keys on the X server, waiting for windows, and an end with a message. To be sourced, with $work as a scratch
# folder; the program's own messages belong into $work/editor.log.

# Ends with a message. QUEXAL_PICTURE names a file for a picture of the screen.
fail() {
    echo "$(basename "$0" .sh): $*" >&2
    [ -z "${QUEXAL_PICTURE-}" ] || import -window root "$QUEXAL_PICTURE"
    xdotool search --onlyvisible --name . getwindowname %@ >&2 2>/dev/null || true
    cat "$work/editor.log" >&2 2>/dev/null || true
    exit 1
}

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
