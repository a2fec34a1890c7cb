#!/usr/bin/env bash
# Installs the editor for one user under Wine, uses it from the start menu, installs it over itself and over an older
# version after the user has changed texts beside it, and removes it: what the user made stays, and nothing else does.
# usage: install.sh SETUP.EXE FOLDER, in which everything stands as it is to be installed
set -euo pipefail
setup=$(readlink -f "$1")
files=$(readlink -f "$2")
here=$(dirname "$(readlink -f "$0")")
project=$(readlink -f "$here/../..")
version=$(basename "$setup" | sed 's/quexal-editor-\(.*\)-windows.*/\1/')

# shellcheck source=tests/windows/program.sh
. "$here/program.sh"
manage_windows

user=$WINEPREFIX/drive_c/users/$(id -un)
folder="$user/AppData/Local/Programs/Quexal Editor"
entry="$user/AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Quexal Editor.lnk"
listed='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\QuexalEditor'

install() { timeout 120 wine "${1-$setup}" /S "${@:2}"; }
listed_version() { wine reg query "$listed" /v DisplayVersion | tr -d '\r' | awk '$1 == "DisplayVersion" { print $3 }'; }
all_files() { (cd "$folder" && find . -type f | LC_ALL=C sort | xargs -d '\n' sha256sum); }
uninstall() {
    local i
    timeout 120 wine "$folder/uninstall.exe" /S || fail "the uninstaller failed"
    for ((i = 0; i < 100; i++)); do # it goes on as a copy of itself, so that it can remove itself
        wine reg query "$listed" >/dev/null 2>&1 || break
        sleep 0.2
    done
    ! wine reg query "$listed" >/dev/null 2>&1 || fail "it is still among the installed programs"
    sleep 1
    [ ! -e "$entry" ] || fail "the entry in the start menu was left"
}

find "$user" | LC_ALL=C sort >"$work/before.txt"
install || fail "the installer failed"
all_files >"$work/installed.txt"
[ -s "$entry" ] || fail "there is no entry in the start menu"
[ "$(listed_version)" = "$version" ] || fail "it is not among the installed programs as $version"

# The sample that came along is opened from the start menu's program, changed and saved over itself.
cp "$folder/practice.txt" "$work/practice.txt"
start_editor wine start /unix "$entry"
install && fail "it was installed while the program runs"
open_practice practice.txt # the dialogue begins beside the program
choose_district Ashc
add_variation "Ashcome Regis"
picture installed
bring_up "Save As" ctrl+s
press Return
confirm_replacing
answer_box Return # "File Saved to"
wait_for "Quexal Editor"
press alt+F4
wait_for "Quexal Editor" 0
LC_ALL=C sed '/^Marlswood/s/|%|/|%/; /^Netherscar/s/||/|/; /^Ashcombe/s/\r$/|Ashcome Regis\r/' "$work/practice.txt" \
    >"$work/expected.txt"
cmp "$folder/practice.txt" "$work/expected.txt" || fail "the sample was not saved as expected"

# An upgrade keeps it, and a word list that was extended, and gives back what was lost.
printf 'zzyzx\r\n' >>"$folder/qx_lower.txt"
cp "$folder/qx_lower.txt" "$work/words.txt"
rm "$folder/proposals.txt" "$folder/Qt6Core.dll"
echo mine >"$folder/guide/mine.txt"
install || fail "the upgrade failed"
cmp "$folder/practice.txt" "$work/expected.txt" || fail "the upgrade changed the sample"
cmp "$folder/qx_lower.txt" "$work/words.txt" || fail "the upgrade changed the word list"
changed=$(all_files | { diff "$work/installed.txt" - || true; } | grep '^[<>]' | sed 's/^.* //' | sort -u | tr '\n' ' ')
[ "$changed" = "./guide/mine.txt ./practice.txt ./qx_lower.txt " ] || fail "the upgrade left other files: $changed"

# What the user made stays.
uninstall
left=$(all_files | sed 's/^.* //' | tr '\n' ' ')
[ "$left" = "./guide/mine.txt ./practice.txt ./qx_lower.txt " ] || fail "the uninstaller left $left"
cmp "$folder/practice.txt" "$work/expected.txt" || fail "the uninstaller changed the sample"

# An older version had another word list and a further library, and stands in another folder.
rm -r "$folder"
cp -r "$files" "$work/older"
echo zzyzx >"$work/older/qx_lower.txt"
echo library >"$work/older/library.dll"
(
    cd "$project"
    packaging/windows/file-list.sh "$work/older" >"$work/older.nsh"
    makensis -V2 -NOCD -DVERSION=0.9.0 -DFILES="$work/older" -DFILE_LIST="$work/older.nsh" \
        -DOUTPUT="$work/older-setup.exe" packaging/windows/installer.nsi
)
mkdir "$WINEPREFIX/drive_c/older"
install "$work/older-setup.exe" '/D=C:\older' || fail "the older version was not installed"
[ "$(listed_version)" = 0.9.0 ] || fail "the older version is not among the installed programs"
[ -e "$WINEPREFIX/drive_c/older/library.dll" ] || fail "the older version is not where it was to be"
echo mine >>"$WINEPREFIX/drive_c/older/practice.txt"
folder=$WINEPREFIX/drive_c/newer
install "$setup" '/D=C:\newer' || fail "it was not installed over the older version"
[ "$(listed_version)" = "$version" ] || fail "the older version is still among the installed programs"
all_files | cmp - "$work/installed.txt" || fail "over an older version it is another program"
left=$(find "$WINEPREFIX/drive_c/older" -type f)
[ "$left" = "$WINEPREFIX/drive_c/older/practice.txt" ] || fail "of the older version was left: $left"

# Without anything of the user's nothing is left but the settings.
rm -r "$WINEPREFIX/drive_c/older"
uninstall
left=$(find "$user" | LC_ALL=C sort | { diff "$work/before.txt" - || true; } | sed -n 's/^> //p' |
    { grep -v -e '/Temp/~nsu' -e '/AppData/Local/Programs$' -e '/AppData/Local/quexal-editor' || true; })
[ -z "$left" ] || fail "the uninstaller left $left"
