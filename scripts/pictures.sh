#!/usr/bin/env bash
# Takes the pictures of the documents anew, into docs/images: plays the tour, once more on a dark desktop at twice the
# size, and keeps the pictures that a document shows. Needs the build folder of the preset "dev", and no display. With
# the tour of the preset "windows" it takes those whose names begin with "windows-", under Wine.
# usage: pictures.sh [TOUR.EXE]
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

# The pictures that a document shows.
shown() { grep -ohP 'images/\K[\w-]+\.png' README.md docs/*.md | sort -u; }

if [ $# = 1 ]; then
    # shellcheck source=tests/windows/wine.sh
    . tests/windows/wine.sh
    on_own_screen 1920x1080 "$@"
    tour=$(readlink -f "$1")
    start_wine
    name_a_font "Open Sans"
    wine "$tour" "$(windows_path "$work/pictures")" >"$work/log" 2>&1 || { cat "$work/log" >&2; exit 1; }
    shown | sed -n 's/^windows-//p' | while read -r picture; do
        cp "$work/pictures/$picture" "docs/images/windows-$picture"
    done
    exit 0
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# One screen on every machine, wide enough for the window at twice its size.
printf '{"screens": [{"name": "picture", "width": 2880, "height": 1620, "logicalDpi": 96, "dpr": 1}]}\n' >"$work/screen.json"
export QT_QPA_PLATFORM=offscreen:configfile=$work/screen.json LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME

cmake --build --preset dev --target quexal-tour >"$work/log"
build/dev/bin/quexal-tour "$work" >>"$work/log" 2>&1 || { cat "$work/log" >&2; exit 1; }
QT_SCALE_FACTOR=2 build/dev/bin/quexal-tour "$work" dark >>"$work/log" 2>&1 || { cat "$work/log" >&2; exit 1; }

find docs/images -name '*.png' -not -name 'windows-*' -delete
shown | grep -v '^windows-' | while read -r picture; do
    cp "$work/$picture" docs/images/
done
# Software centres are told the sizes, which stand in the header of each file.
metainfo=packaging/metainfo.xml.in
grep -oP '@QUEXAL_SCREENSHOTS@/\K[\w.-]+' $metainfo | while read -r picture; do
    read -r width height < <(od -An -j16 -N8 -t u4 --endian=big "docs/images/$picture")
    sed -i "s|width=\"[0-9]*\" height=\"[0-9]*\">\(@QUEXAL_SCREENSHOTS@/$picture\)|width=\"$width\" height=\"$height\">\1|" $metainfo
done
echo "pictures: $(find docs/images -name '*.png' | wc -l) in docs/images"
