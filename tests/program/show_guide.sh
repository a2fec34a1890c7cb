#!/usr/bin/env bash
# Presses F1 in the real program on a real X server, in its window and in a report. A viewer of this test's own notes
# what it is given: the page that lies beside the program.
# usage: show_guide.sh EDITOR DATA-FILE
set -euo pipefail
editor=$(readlink -f "$1")
data=$(readlink -f "$2")

# shellcheck source=tests/program/session.sh
. "$(dirname "$(readlink -f "$0")")/session.sh"

mkdir "$work/bin"
# shellcheck disable=SC2016 # the viewer fills its argument in
printf '#!/bin/sh\necho "$1" >>"%s"\n' "$work/shown.txt" >"$work/bin/xdg-open"
chmod +x "$work/bin/xdg-open"
export PATH=$work/bin:$PATH
guide=file://$(readlink -f "$(dirname "$editor")/guide/user-guide.html")

# Presses F1 and waits until the viewer has been given the guide this often.
press_f1() {
    local count=$1 i
    press F1
    for ((i = 0; i < 100; i++)); do
        [ "$(grep -Fxc "$guide" "$work/shown.txt" 2>/dev/null)" = "$count" ] && return
        sleep 0.1
    done
    fail "F1 did not show $guide: $(cat "$work/shown.txt" 2>&1)"
}

manage_windows
start_editor "$editor"
press_f1 1
press ctrl+o
wait_for "Open"
type_path "$data"
wait_for "Read File Results"
press_f1 2
wait_for "Read File Results"
press Escape
