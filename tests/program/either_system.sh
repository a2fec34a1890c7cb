# shellcheck shell=bash
# For tests of the real program that are the same on Windows, where Wine runs them: an X server of their own, a scratch
# folder $work, keys.sh, and what differs. To be sourced, with $editor as the program.

case $editor in
*.exe)
    # shellcheck source=tests/windows/wine.sh
    . "$(dirname "${BASH_SOURCE[0]}")/../windows/wine.sh"
    on_own_screen 1366x768 "$@"
    start_wine
    unset WINEPATH QT_PLUGIN_PATH # everything stands beside the program
    # shellcheck source=tests/program/keys.sh
    . "$(dirname "${BASH_SOURCE[0]}")/keys.sh"
    path_for() { windows_path "$1"; }
    run_editor() { wine "$editor"; }
    ;;
*)
    # shellcheck source=tests/program/session.sh
    . "$(dirname "${BASH_SOURCE[0]}")/session.sh"
    path_for() { printf '%s' "$1"; }
    run_editor() { "$editor"; }
    ;;
esac

# Windows have the focus only once they are managed.
openbox --config-file /dev/null >/dev/null 2>&1 &
until xdotool get_num_desktops >/dev/null 2>&1; do sleep 0.1; done

# Starts the editor and waits for its window.
start_editor() {
    run_editor >"$work/editor.log" 2>&1 &
    wait_for "Quexal Editor"
}

# Takes a picture of the screen, where a folder for them is named by QUEXAL_PICTURES.
picture() {
    [ -z "${QUEXAL_PICTURES-}" ] || import -window root "$QUEXAL_PICTURES/$1.png"
}
