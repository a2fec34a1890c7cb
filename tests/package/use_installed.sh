#!/usr/bin/env bash
# Uses the installed program as its user does, by keyboard on a real X server: starts what the menu entry says, or the
# program in a folder, opens the sample that comes with it, adds a variation, saves it into the home folder and compares
# the bytes; then the same with a file in which the word "zzyzx" is in small letters, which is reported unless the word
# list has it.
# usage: use_installed.sh ROOT USER reported|listed [FOLDER]
set -euo pipefail
root=$(readlink -f "$1")
user=$2
word=$3
folder=${4-/usr/lib/quexal-editor}

if [ -z "${QUEXAL_ON_XVFB-}" ]; then
    QUEXAL_ON_XVFB=1 exec xvfb-run -a -s "-screen 0 1366x768x24" "$0" "$root" "${@:2}"
fi

home=$root/home/$user
# shellcheck source=tests/program/session.sh
. "$(dirname "$(readlink -f "$0")")/../program/session.sh"

if [ $# = 3 ]; then
    entry=$root/usr/share/applications/quexal-editor.desktop
    command=$(sed -n 's/^Exec=//p' "$entry")
    icon=$(sed -n 's/^Icon=//p' "$entry")
    for size in 48x48 64x64 128x128; do
        [ -s "$root/usr/share/icons/hicolor/$size/apps/$icon.png" ] || fail "there is no icon of $size"
    done
    [ -s "$root/usr/share/icons/hicolor/scalable/apps/$icon.svg" ] || fail "there is no scalable icon"
else
    entry=$(dirname "$(readlink -f "$0")")/../../packaging/quexal-editor.desktop
    command="'$folder/quexal-editor'"
fi
class=$(sed -n 's/^StartupWMClass=//p' "$entry")

printf 'Aston zzyzx Bury+5b+Devon+1837+3+9999+9+N+N|Aston zzyzx Berry\r\n' >"$home/words.txt"
rm -f "$home/saved.txt"
mkdir -p "$home/run"
chmod 700 "$home/run"
cp "$XAUTHORITY" "$home/.Xauthority"
chroot "$root" chown -R "$user:$user" "/home/$user"
cat >"$work/start" <<START
#!/bin/sh
exec chroot --userspec=$user:$user $root env -i HOME=/home/$user XDG_RUNTIME_DIR=/home/$user/run \\
    PATH=/usr/local/bin:/usr/bin:/bin LANG=C.UTF-8 DISPLAY=$DISPLAY $command >$work/editor.log 2>&1
START
chmod +x "$work/start"

manage_windows
start_editor "$work/start"
window=$(xdotool search --onlyvisible --class "^$class\$" | sed -n 1p)
[ -n "$window" ] || fail "no window is of the class in the menu entry"
xprop -id "$window" _NET_WM_ICON >"$work/icon.txt"
grep -aq 'Icon (' "$work/icon.txt" || fail "the window has no icon"
[ -z "${QUEXAL_PICTURE-}" ] || import -window root "$QUEXAL_PICTURE"

# Adds a variation to the first district and saves the file; expects that this line is changed and nothing else.
add_and_save() {
    local file=$1 district=$2
    press Home
    add_variation Newname
    save_as "/home/$user/saved.txt"
    sed "/^$district+/s/\r\$/|Newname\r/" "$root$file" >"$work/expected.txt"
    ! cmp -s "$work/expected.txt" "$root$file" || fail "there is no district $district"
    cmp "$work/expected.txt" "$home/saved.txt" || fail "$file was not saved as expected"
    rm "$home/saved.txt"
}

open_file "$folder/gazetteer-gb.txt"
close_report "Read File Results"
add_and_save "$folder/gazetteer-gb.txt" Abberton
open_file "/home/$user/words.txt"
[ "$word" = listed ] || close_report "Read File Results"
add_and_save "/home/$user/words.txt" "Aston zzyzx Bury" # not to be reached while a report is shown
press alt+F4
wait_for "Quexal Editor" 0
