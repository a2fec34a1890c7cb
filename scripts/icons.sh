#!/usr/bin/env bash
# Draws the icons of each size from the scalable one, and the one for Windows, which holds several sizes. With --check
# it draws them elsewhere and says whether they are those that stand in packaging/icons. Needs rsvg-convert
# (librsvg2-bin) and icotool (icoutils).
# usage: icons.sh [--check]
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../packaging/icons"
sizes=$(mktemp -d)
trap 'rm -rf "$sizes"' EXIT
for size in 16 24 32 48 64 128 256; do
    rsvg-convert -w "$size" -h "$size" -o "$sizes/quexal-editor-$size.png" quexal-editor.svg
done
icotool -c -o "$sizes/quexal-editor.ico" "$sizes"/quexal-editor-{16,24,32,48,64,128}.png -r "$sizes/quexal-editor-256.png"
for picture in quexal-editor-48.png quexal-editor-64.png quexal-editor-128.png quexal-editor.ico; do
    [ "${1-}" = --check ] || cp "$sizes/$picture" .
    if ! cmp "$sizes/$picture" "$picture"; then
        echo "icons: $picture is not drawn from quexal-editor.svg; run scripts/icons.sh" >&2
        exit 1
    fi
done
