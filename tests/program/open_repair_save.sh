#!/usr/bin/env bash
# Uses the real program on a real X server, by keyboard alone: opens the gazetteer with one null
# variation added, removes it when asked, chooses a district, saves, and compares the bytes.
# usage: open_repair_save.sh EDITOR GAZETTEER
set -euo pipefail
editor=$(readlink -f "$1")
gazetteer=$(readlink -f "$2")

# shellcheck source=tests/program/session.sh
. "$(dirname "$(readlink -f "$0")")/session.sh"

# A last variation that is only a mark: removing it gives back the file as it was.
sed '3s/\r$/|%\r/' "$gazetteer" >"$work/damaged.txt"
cmp -s "$work/damaged.txt" "$gazetteer" && fail "the null variation was not added"

manage_windows
start_editor "$editor"
open_file "$work/damaged.txt"
wait_for "Null Variation"
press Return # Remove, the first of its buttons
close_report "Read File Results"
press Home Down # choose a district
save_as "$work/saved.txt"
cmp "$work/saved.txt" "$gazetteer" || fail "the saved file differs"
press alt+F4
wait_for "Quexal Editor" 0
