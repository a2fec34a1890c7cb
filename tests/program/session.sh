# shellcheck shell=bash
# What the tests of the real program share: an X server of their own; a scratch folder, $work, which is also the home of
# what they start and goes with it at the end; an end with a message; pressing keys and waiting for windows. To be
# sourced first; the program's own messages belong into $work/editor.log.

if [ -z "${QUEXAL_ON_XVFB-}" ]; then
    QUEXAL_ON_XVFB=1 exec xvfb-run -a -s "-screen 0 1366x768x24" "$0" "$@"
fi

work=$(mktemp -d)
# shellcheck disable=SC2317 # called by the trap
cleanup() {
    jobs -p | xargs -r kill 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT
chmod 700 "$work"
unset QT_QPA_PLATFORM # a real X server is meant, whatever else is asked for outside
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state XDG_RUNTIME_DIR=$work

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
