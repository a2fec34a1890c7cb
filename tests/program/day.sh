#!/usr/bin/env bash
# A day's work with the real program on a real X server, by keyboard alone: opens the practice file, repairs it, adds,
# deletes and takes back, takes proposals in, checks the whole file, saves, opens again and saves what has not changed.
# The bytes are those that the work means. A program for Windows does it under Wine.
# usage: day.sh EDITOR PRACTICE-FILE PROPOSALS
set -euo pipefail
editor=$(readlink -f "$1")
practice=$(readlink -f "$2")
proposals=$(readlink -f "$3")
here=$(dirname "$(readlink -f "$0")")

# shellcheck source=tests/program/either_system.sh
. "$here/either_system.sh"

# What is to come out: a mark stands before its name, an empty variation is gone, and two districts have what was added.
cp "$practice" "$work/day.txt"
LC_ALL=C sed '/^Marlswood/s/|%|/|%/; /^Netherscar/s/||/|/; /^Ashcombe/s/\r$/|Ashcome Regis|%Ashcombe\r/
    /^Coldharbour/s/\r$/|Cold Harbour|Colharbour Fen\r/' "$practice" >"$work/expected.txt"

open_file() {
    press ctrl+o
    wait_for "Open"
    type_path "$(path_for "$1")"
    wait_for "Open" 0
}
close_report() {
    wait_for "$1"
    press Escape
    wait_for "$1" 0
}
save_as() {
    press ctrl+s
    wait_for "Save As"
    type_path "$(path_for "$1")"
    wait_for "Quexal Editor" 2 # "File Saved to"
    press Return
    wait_for "Quexal Editor" 1
}

start_editor
picture empty
open_file "$work/day.txt"
wait_for "Quexal Editor" 2 # an incomplete line is retained
press Return
wait_for "Quexal Editor" 2 # a quarter contradicts its year
press Return
wait_for "Null Variation"
picture repair
press Return # combines it with the next one
wait_for "Read File Results"
picture report
close_report "Read File Results"
wait_for "Quexal Editor" 2 # a district occurs twice
press Return
wait_for "Quexal Editor"

# Adds two variations to a district, deletes the first one that it had, and takes that back.
press Home
xdotool type --delay 20 Ashc
press Insert
xdotool type --delay 5 "Ashcome Regis"
press Return
press Insert
xdotool type --delay 5 "%Ashcombe"
press Return
press Tab Home Delete
wait_for "Quexal Editor" 2 # is that meant?
press Return
wait_for "Quexal Editor"
picture deleted
press ctrl+z

# Takes the proposals in for another one.
press Home
xdotool type --delay 20 Coldh
press shift+Tab shift+Tab shift+Tab space
wait_for "Open"
type_path "$(path_for "$proposals")"
wait_for "Open" 0
press Home space Down Down space
picture proposals
press Tab space
wait_for "Quexal Editor" 2 # what was added and what ignored
press Return
close_report "Details of Duplicates"

# Checks the whole file.
press Insert Escape # to the districts
press shift+Tab shift+Tab space
wait_for "Duplicate Check"
picture check
close_report "Duplicate Check"

# Saves; what has not changed is saved as it was.
save_as "$work/saved.txt"
cmp "$work/saved.txt" "$work/expected.txt" || { cp $work/*.txt /tmp/q/day; fail differs; }
