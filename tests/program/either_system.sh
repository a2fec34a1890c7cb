# shellcheck shell=bash
# For tests of the real program that are the same on Windows, where Wine runs them: an X server of their own, a scratch
# folder $work, keys.sh, and what differs. To be sourced, with $editor as the program.

case ${editor:?} in
*.exe)
    # shellcheck source=tests/windows/program.sh
    . "$(dirname "${BASH_SOURCE[0]}")/../windows/program.sh"
    run_editor() { wine "$editor"; }
    ;;
*)
    # shellcheck source=tests/program/session.sh
    . "$(dirname "${BASH_SOURCE[0]}")/session.sh"
    path_for() { printf '%s' "$1"; }
    run_editor() { "$editor"; }
    ;;
esac
manage_windows
