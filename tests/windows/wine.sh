# shellcheck shell=bash
# What the scripts share that run programs for Windows under Wine. To be sourced; it only defines functions:
#   on_own_screen 1366x768 "$@"   starts the script anew on an X server of its own; needed by programs with windows
#   start_wine                    Wine with a prefix of its own, a scratch folder $work, the DLLs of the compiler and Qt
#   windows_path /a/b             Z:\a\b, as programs there name this path
#   name_a_font "Open Sans"       lets this font stand in for Segoe UI, in which Windows writes
#   give_fonts                    fonts for programs that need no screen
# Afterwards "wine PROGRAM.EXE" runs a program, which gets no variables QT_*: Wine keeps them for itself. What was
# started under Wine ends with the script.

on_own_screen() {
    local size=$1
    shift
    [ -n "${QUEXAL_ON_XVFB-}" ] || QUEXAL_ON_XVFB=1 exec xvfb-run -a -s "-screen 0 ${size}x24" "$0" "$@"
}

windows_path() {
    local path
    path=$(readlink -m "$1")
    echo "Z:${path//\//\\}"
}

# Without $QUEXAL_QT_WINDOWS only programs that need no Qt can be run. A script that traps EXIT itself calls
# end_wine there.
start_wine() {
    local folder dlls=()
    work=$(mktemp -d)
    trap end_wine EXIT
    chmod 700 "$work"
    mkdir "$work/home"
    # Wine leads into the home of its user. This one has nothing in it.
    export HOME=$work/home WINEPREFIX=$work/wine WINEDEBUG=-all
    for folder in "$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")" \
        /usr/x86_64-w64-mingw32/lib ${QUEXAL_QT_WINDOWS:+"$QUEXAL_QT_WINDOWS/bin"}; do
        dlls+=("$(windows_path "$folder")")
    done
    WINEPATH=$(IFS=';' && echo "${dlls[*]}")
    export WINEPATH
    timeout 120 wineboot -i >/dev/null 2>&1
}

# The platform without a screen looks for fonts in this folder alone.
give_fonts() { cp /usr/share/fonts/truetype/dejavu/DejaVuSans*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"; }

# Wine names no font of its own but one that the toolkit does not know.
name_a_font() {
    local face metric zeros
    zeros=$(printf '00%.0s' {1..64})
    face=$(printf '%s' "Segoe UI" | iconv -t UTF-16LE | od -An -v -tx1 | tr -d ' \n')$zeros
    for metric in MessageFont MenuFont StatusFont CaptionFont IconFont; do # LOGFONTW: 12 pixels, medium weight
        wine reg add 'HKCU\Control Panel\Desktop\WindowMetrics' /v "$metric" /t REG_BINARY /f \
            /d "f4ffffff${zeros:0:24}90010000${zeros:0:16}${face:0:128}" >/dev/null 2>&1
    done
    wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "Segoe UI" /d "$1" /f >/dev/null 2>&1
}

end_wine() {
    wineserver -k 2>/dev/null || true
    rm -rf "$work"
}
