# shellcheck shell=bash
# shellcheck disable=SC2034 # $state is for those who source this
# For tests of the real program that are the same on Windows, where Wine runs them: an X server of their own, a scratch
# folder $work, keys.sh, and what differs, such as where the program keeps what was not saved: $state. To be sourced, with
# $editor as the program.

case ${editor:?} in
*.exe)
    # shellcheck source=tests/windows/program.sh
    . "$(dirname "${BASH_SOURCE[0]}")/../windows/program.sh"
    run_editor() { wine "$editor"; }
    state=$WINEPREFIX/drive_c/users/$(id -un)/AppData/Local/quexal-editor
    ;;
*)
    # shellcheck source=tests/program/session.sh
    . "$(dirname "${BASH_SOURCE[0]}")/session.sh"
    path_for() { printf '%s' "$1"; }
    run_editor() { "$editor"; }
    state=$XDG_STATE_HOME/quexal-editor
    ;;
esac
manage_windows
