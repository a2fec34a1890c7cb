#!/usr/bin/env bash
# Runs the window tests that were built for Windows (preset "windows-tests") under Wine. Their Qt is in the folder
# $QUEXAL_QT_WINDOWS. What is behind the name of the tests goes to them, as --gtest_filter=.
# usage: ui.sh TESTS.EXE [OPTION...]
set -euo pipefail
tests=$(readlink -f "${1:?usage: ui.sh TESTS.EXE [OPTION...]}")
: "${QUEXAL_QT_WINDOWS:?is to name the folder of Qt for Windows}"
# shellcheck source=tests/windows/wine.sh
. "$(dirname "$(readlink -f "$0")")/wine.sh"
# shellcheck source=tests/program/small_disk.sh
. "$(dirname "$(readlink -f "$0")")/../program/small_disk.sh"
with_own_mounts "$@"

unset DISPLAY # the tests bring their screens along
start_wine
give_fonts
trap 'umount "$work/disk" 2>/dev/null; end_wine' EXIT
if mount_small_disk "$work/disk" 400k; then
    QUEXAL_SMALL_DISK=$(windows_path "$work/disk")
    export QUEXAL_SMALL_DISK
fi
cd "$work"
# What was left out is shown with its reason, unlike what passed.
timeout 1200 wine "$tests" "${@:2}" | grep -avE '^(\[ RUN      \]|\[       OK \]|\[-+\]|.?$)'
