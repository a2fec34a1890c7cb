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

# The window manager starts the editor once it manages windows.
openbox --config-file /dev/null --startup "$editor" >/dev/null 2>&1 &
wait_for "Quexal Editor"
press ctrl+o
wait_for "Open"
type_path "$work/damaged.txt"
wait_for "Null Variation"
press Return # Remove, the first of its buttons
wait_for "Read File Results"
press Escape
wait_for "Read File Results" 0
press Home Down # choose a district
press ctrl+s
wait_for "Save As"
type_path "$work/saved.txt"
wait_for "Quexal Editor" 2 # "File Saved to"
press Return
wait_for "Quexal Editor" 1
cmp "$work/saved.txt" "$gazetteer" || fail "the saved file differs"
press alt+F4
for ((i = 0; i < 50; i++)); do
    [ -z "$(xdotool search --onlyvisible --name '^Quexal Editor$' 2>/dev/null)" ] && exit 0
    sleep 0.1
done
fail "the window did not close"
