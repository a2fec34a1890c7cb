#!/usr/bin/env bash
# Draws the icons of each size from the scalable one. With --check it draws them elsewhere and says whether they
# are those that stand in packaging/icons. Needs rsvg-convert (librsvg2-bin).
# usage: icons.sh [--check]
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../packaging/icons"
drawn=$PWD
if [ "${1-}" = --check ]; then
    drawn=$(mktemp -d)
    trap 'rm -rf "$drawn"' EXIT
fi
for size in 48 64 128; do
    picture=quexal-editor-$size.png
    rsvg-convert -w "$size" -h "$size" -o "$drawn/$picture" quexal-editor.svg
    if ! cmp "$drawn/$picture" "$picture"; then
        echo "icons: $picture is not drawn from quexal-editor.svg; run scripts/icons.sh" >&2
        exit 1
    fi
done
