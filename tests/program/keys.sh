# shellcheck shell=bash
# Pressing keys on the X server, waiting for windows, what is often done with them, and an end with a message. To be
# sourced, with $work as a scratch folder; the program's own messages belong into $work/editor.log.
: "${work:?}"

# Ends with a message. QUEXAL_PICTURE names a file for a picture of the screen.
fail() {
    echo "$(basename "$0" .sh): $*" >&2
    [ -z "${QUEXAL_PICTURE-}" ] || import -window root "$QUEXAL_PICTURE"
    xdotool search --onlyvisible --name . getwindowname %@ >&2 2>/dev/null || true
    cat "$work/editor.log" >&2 2>/dev/null || true
    exit 1
}

# Whether COUNT visible windows have this title, at last after so many tenths of a second.
are_there() {
    local title=$1 count=$2 tenths=$3 i
    for ((i = 0; i < tenths; i++)); do
        [ "$(xdotool search --onlyvisible --name "^$title\$" 2>/dev/null | wc -l)" = "$count" ] && sleep 0.3 && return
        sleep 0.1
    done
    return 1
}
# Waits until COUNT visible windows have this title.
wait_for() {
    local title=$1 count=${2-1}
    are_there "$title" "$count" 100 || fail "line ${BASH_LINENO[0]}: expected $count window(s) \"$title\""
}
# Presses a key that brings up a dialogue; again where it came before the window had the focus.
bring_up() {
    local title=$1 key=$2 i
    for ((i = 0; i < 5; i++)); do
        press "$key"
        are_there "$title" 1 30 && return
    done
    fail "line ${BASH_LINENO[0]}: $key does not bring up \"$title\""
}
press() { xdotool key --clearmodifiers "$@"; }
type_path() {
    press ctrl+a
    xdotool type --delay 5 "$1"
    press Return
}

# Windows have the focus only once they are managed. What a user has set does not matter here; of a file that is not XML
# the manager would tell in a window of its own, which takes the focus whenever it comes.
manage_windows() {
    echo '<openbox_config xmlns="http://openbox.org/3.4/rc"/>' >"$work/openbox.xml"
    openbox --config-file "$work/openbox.xml" >/dev/null 2>&1 &
    until xdotool get_num_desktops >/dev/null 2>&1; do sleep 0.1; done
}
# Gives a window the focus. Before the first one has it, there is a complaint.
focus() {
    focused=$1
    xdotool windowactivate --sync "$1" 2>/dev/null
}
main_windows() { xdotool search --onlyvisible --name "^Quexal Editor\$"; }
# Takes a picture of the screen, where QUEXAL_PICTURES names a folder for them.
picture() {
    [ -z "${QUEXAL_PICTURES-}" ] || import -window root "$QUEXAL_PICTURES/$1.png"
}
# Runs the editor by this command, and waits for its window.
start_editor() {
    "$@" >"$work/editor.log" 2>&1 &
    wait_for "Quexal Editor" "${editors-1}"
}
# Waits until a dialogue for files has gone. Under Wine it gives the focus to nobody.
wait_for_end() {
    wait_for "$1" 0
    xdotool getactivewindow getwindowname >/dev/null 2>&1 || focus "${focused-$(main_windows)}"
    sleep 0.5 # until the window knows that
}
choose_file() {
    wait_for "$1"
    type_path "$2"
    wait_for_end "$1"
}
open_file() {
    bring_up "Open" ctrl+o
    choose_file "Open" "$1"
}
answer_box() {
    wait_for "Quexal Editor" $((${editors-1} + 1)) # where there are several, one of them shows it
    press "$1"
}
close_report() {
    wait_for "$1"
    press Escape
    wait_for "$1" 0
}
# Opens the practice file, which asks and tells; "repaired" is one that has been opened and saved before.
open_practice() {
    open_file "$1"
    answer_box Return # an incomplete line is retained
    answer_box Return # a quarter contradicts its year
    if [ "${2-}" != repaired ]; then
        wait_for "Null Variation"
        picture repair
        press Return # combines it with the next one
    fi
    wait_for "Read File Results"
    picture report
    close_report "Read File Results"
    answer_box Return # a district occurs twice
    wait_for "Quexal Editor"
}
# Chooses the district that begins so.
choose_district() {
    press Home
    xdotool type --delay 20 "$1"
}
add_variation() {
    press Insert
    xdotool type --delay 5 "$1"
    press Return
}
# The file may be replaced, says the dialogue.
confirm_replacing() {
    wait_for "Save As" 2
    press alt+y
}
save_as() {
    bring_up "Save As" ctrl+s
    choose_file "Save As" "$1"
    answer_box Return # "File Saved to"
    wait_for "Quexal Editor"
}
