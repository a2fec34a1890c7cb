# shellcheck shell=bash
# What the tests of the real program for Windows share: an X server of their own, Wine with a font that looks like the one
# of Windows, a scratch folder $work, and keys.sh. To be sourced first. Nothing is told about where libraries are: they
# stand beside the program.

# shellcheck source=tests/windows/wine.sh
. "$(dirname "${BASH_SOURCE[0]}")/wine.sh"
on_own_screen 1366x768 "$@"
start_wine
unset WINEPATH
name_a_font "Open Sans"
# shellcheck source=tests/program/keys.sh
. "$(dirname "${BASH_SOURCE[0]}")/../program/keys.sh"
path_for() { windows_path "$1"; }
