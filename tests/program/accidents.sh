#!/usr/bin/env bash
# Accidents of a day's work with the real program on a real X server: it is killed, two editors have one file, the file
# is read-only, the disk is full, on Windows somebody else holds the file. A program for Windows is run by Wine. The full
# disk needs root and is left out without.
# usage: accidents.sh EDITOR
set -euo pipefail
editor=$(readlink -f "$1")

# shellcheck source=tests/program/small_disk.sh
. "$(dirname "$(readlink -f "$0")")/small_disk.sh"
with_own_mounts "$editor"
# shellcheck source=tests/program/either_system.sh
. "$(dirname "$(readlink -f "$0")")/either_system.sh"

header=+1+Kent+1837+3+9999+0+N+N
# What a file of two districts has to be, with further variations of its first one.
expect() {
    printf 'Alpha%s|Ash%s\r\nBeta%s|Elm\r\n' "$header" "$2" "$header" >"$work/expected.txt"
    cmp "$1" "$work/expected.txt" || fail "$3"
}
# Such a file as it is at first.
file_text() { printf 'Alpha%s|Ash\r\nBeta%s|Elm\r\n' "$header" "$header"; }
# Adds a variation to its first district, and waits until it has been noted; once more where the keys came before the
# window had the focus.
add_to_first() {
    local try i
    for try in 1 2 3; do
        choose_district Alpha
        add_variation "$1"
        for ((i = 0; i < 50; i++)); do
            grep -rqsF "$1" "$state" && return
            sleep 0.1
        done
        focus "${focused-$(main_windows)}"
        sleep "$try"
    done
    fail "$1 was not added"
}
# Saves it in its place.
save() {
    bring_up "Save As" ctrl+s
    press Return
    confirm_replacing
}

# Ends all editors at once, as a crash does.
kill_editors() {
    local id
    for id in $(pgrep -f "$(basename "$editor")"); do
        if grep -zqxF "HOME=$HOME" "/proc/$id/environ" 2>/dev/null; then
            kill -9 "$id" 2>/dev/null || true # it may have ended with another one
        fi
    done
    wait_for "Quexal Editor" 0
    unset focused
}
# Forgets what was not saved: it would be offered for the next file, which has the same content.
forget_changes() { rm -rf "$state"; }

# Killed: the changes are offered and come back.
file_text >"$work/killed.txt"
start_editor run_editor
open_file "$(path_for "$work/killed.txt")"
add_to_first Ashe
add_to_first %Asche
kill_editors
expect "$work/killed.txt" "" "the file was changed without being saved"
start_editor run_editor
open_file "$(path_for "$work/killed.txt")"
picture killed
answer_box Return # they are wanted back
sleep 1
picture back
wait_for "Quexal Editor"
save
answer_box Return # "File Saved to"
expect "$work/killed.txt" "|Ashe|%Asche" "what came back was not saved as it was"

# Two editors: the second one is told of the first, and what the first one saves is not lost.
first=$(main_windows)
editors=2
start_editor run_editor
file_text >"$work/two.txt"
focus "$first"
open_file "$(path_for "$work/two.txt")"
add_to_first Ashe
second=$(main_windows | grep -vx "$first")
focus "$second"
open_file "$(path_for "$work/two.txt")"
answer_box Return # another editor has it open
wait_for "Quexal Editor" 2
add_to_first Asche
focus "$first"
save
answer_box Return # "File Saved to"
wait_for "Quexal Editor" 2
expect "$work/two.txt" "|Ashe" "the first editor did not save its variation"
focus "$second"
save
wait_for "Quexal Editor" 3
picture two
press Escape # the file was changed by another program: it stays
wait_for "Quexal Editor" 2
expect "$work/two.txt" "|Ashe" "the second editor replaced the file unasked"
kill_editors
forget_changes
editors=1

# A full disk: the old file stays whole, and nothing is left beside it.
if mount_small_disk "$work/disk" 64k; then
    {
        file_text
        head -c 40000 /dev/zero | tr '\0' '#'
        printf '\r\n'
    } >"$work/disk/full.txt"
    cp "$work/disk/full.txt" "$work/full.txt"
    start_editor run_editor
    open_file "$(path_for "$work/disk/full.txt")"
    add_to_first Ashfull
    save
    wait_for_end "Save As"
    sleep 2 # a save that fails says nothing
    picture full
    cmp "$work/disk/full.txt" "$work/full.txt" || fail "a full disk changed the file"
    [ "$(ls "$work/disk")" = full.txt ] || fail "a full disk has more files: $(ls "$work/disk")"
    save_as "$(path_for "$work/elsewhere.txt")"
    sed '1s/\r$/|Ashfull\r/' "$work/full.txt" | cmp - "$work/elsewhere.txt" || fail "elsewhere it was not saved"
    kill_editors
    umount "$work/disk"
else
    echo "accidents: left out: a full disk needs root" >&2
fi
if [[ $editor != *.exe ]]; then
    exit 0 # where more than the editor's own folder is needed to keep a file from being replaced
fi

# A file that is read-only is not replaced.
file_text >"$work/read-only.txt"
chmod a-w "$work/read-only.txt"
start_editor run_editor
open_file "$(path_for "$work/read-only.txt")"
add_to_first Ashread
save
wait_for "Quexal Editor" 2
picture read-only
press Return # it is read-only: another name is to be chosen
wait_for "Save As"
expect "$work/read-only.txt" "" "a read-only file was changed"
kill_editors
forget_changes

# A file that another program holds is not replaced, nor is anything left beside it. Afterwards it can be saved.
mkdir "$work/held"
file_text >"$work/held/held.txt"
start_editor run_editor
open_file "$(path_for "$work/held/held.txt")"
add_to_first Ashheld
mkfifo "$work/nothing"
wine cmd /c "more >>$(windows_path "$work/held/held.txt")" <"$work/nothing" >/dev/null 2>&1 &
holder=$!
exec {nothing}>"$work/nothing" # it waits for something to add
for ((i = 0; i < 100; i++)); do
    # Processes end while they are looked at.
    [ -z "$(find /proc/[0-9]*/fd -lname "$work/held/held.txt" 2>/dev/null || true)" ] || break
    sleep 0.1
done
((i < 100)) || fail "nobody holds the file"
save
wait_for_end "Save As"
sleep 2
picture held
expect "$work/held/held.txt" "" "a file that another program holds was changed"
[ "$(ls "$work/held")" = held.txt ] || fail "more files were left: $(ls "$work/held")"
exec {nothing}>&- # there is nothing to add
wait "$holder" || true
save
wait_for "Quexal Editor" 2
picture freed
press Return # "File Saved to"
expect "$work/held/held.txt" "|Ashheld" "a file that is not held any more was not saved"
