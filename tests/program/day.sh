#!/usr/bin/env bash
# A day's work with the real program on a real X server, by keyboard alone: opens the practice file, repairs it, adds,
# deletes and takes back, takes proposals in, checks the whole file, saves, opens again, finds a district and saves again.
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

start_editor run_editor
picture empty
open_practice "$(path_for "$work/day.txt")"

# Adds two variations to a district, deletes the first one that it had, and takes that back.
choose_district Ashc
add_variation "Ashcome Regis"
add_variation "%Ashcombe"
press Tab Home Delete
answer_box Return # that is meant
wait_for "Quexal Editor"
press ctrl+z

# Takes two proposals in for another one.
choose_district Coldh
press shift+Tab shift+Tab shift+Tab space
choose_file "Open" "$(path_for "$proposals")"
press Home space Down Down space
picture proposals
press Tab space
answer_box Return # what was added and what ignored
close_report "Details of Duplicates"
picture applied

# Checks the whole file.
press Insert Escape # to the districts
press shift+Tab shift+Tab space
wait_for "Duplicate Check"
picture check
close_report "Duplicate Check"

# Saves under another name, opens what was saved, and saves it over itself with a further variation.
save_as "$(path_for "$work/saved.txt")"
cmp "$work/saved.txt" "$work/expected.txt" || fail "the saved file differs"
open_practice "$(path_for "$work/saved.txt")" repaired
press ctrl+f # finds the district
xdotool type --delay 20 langm
press Return
picture found
add_variation "!Langmor"
bring_up "Save As" ctrl+s
press Return
confirm_replacing
wait_for "Quexal Editor" 2
picture saved
press Return
wait_for "Quexal Editor"
sed -i '/^Langmoor/s/\r$/|!Langmor\r/' "$work/expected.txt"
cmp "$work/saved.txt" "$work/expected.txt" || fail "the file that was saved again differs"
