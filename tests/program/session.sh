# shellcheck shell=bash
# What the tests of the real program share: an X server of their own; a scratch folder, $work, which is also the home of
# what they start and goes with it at the end; and keys.sh. To be sourced first; the program's own messages belong into
# $work/editor.log.

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

# shellcheck source=tests/program/keys.sh
. "$(dirname "${BASH_SOURCE[0]}")/keys.sh"
