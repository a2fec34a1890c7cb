#!/usr/bin/env bash
# Builds the editor and build/quexal-editor-VERSION-linux-ARCHITECTURE.tar.xz, which has Qt inside and is started where
# it is unpacked. The same sources on the same Debian give the same bytes.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

# What the program and its windows are able to use; the display's own drawing is enough, so that nothing is for OpenGL.
PLUGINS="platforms/libqxcb.so platforminputcontexts/libcomposeplatforminputcontextplugin.so
    platforminputcontexts/libibusplatforminputcontextplugin.so printsupport/libcupsprintersupport.so"

[ $# = 0 ] || fail "usage: scripts/archive.sh"
# shellcheck disable=SC2086
need_packages $BUILD_PACKAGES $ARCHIVE_PACKAGES
say "Building the editor"
build_preset release
version=$(release_version)
architecture=$(linux_name)
name=quexal-editor-$version-linux-$architecture

say "Building the archive"
work=$PWD/build/release/archive
folder=$work/$name
rm -rf "$work" build/quexal-editor-*-linux-*
mkdir -p "$folder"
quietly "installing into a folder" cmake --install build/release --prefix "$work/installed"
cp -rL "$work/installed/lib/quexal-editor/." "$folder"
cp packaging/archive/qt.conf "$folder"
strip "$folder/quexal-editor"
# DT_RPATH, unlike DT_RUNPATH, also leads the libraries and plug-ins to each other, so that they stay as they are.
patchelf --force-rpath --set-rpath "\$ORIGIN/lib" "$folder/quexal-editor"

from=$(qtpaths6 --query QT_INSTALL_PLUGINS)
for plugin in $PLUGINS; do
    install -D -m 644 "$from/$plugin" "$folder/plugins/$plugin"
    parts+=("$from/$plugin")
done
packaging/archive/libraries.sh "$folder/lib" build/bin/quexal-editor "${parts[@]}" >"$work/libraries"
mapfile -t libraries <"$work/libraries"
packaging/archive/licences.sh "$folder/licences" "${libraries[@]}" "${parts[@]}"
cp LICENSE "$folder/licences/quexal-editor.txt"
cp build/release/packaging/copyright "$folder/licences/quexal-editor-data.txt"

# The newest version of a system library's symbols that anything inside uses.
newest() {
    find "$folder" -type f \( -name '*.so*' -o -name quexal-editor \) -exec objdump -T {} + |
        grep -o "\b$1_[0-9.]*[0-9]" | sed "s/^$1_//" | sort -Vu | tail -n 1
}
sed -e "s/@VERSION@/$version/; s/@ARCHITECTURE@/$architecture/" \
    -e "s/@GLIBC@/$(newest GLIBC)/; s/@GLIBCXX@/$(newest GLIBCXX)/" packaging/archive/README.txt.in >"$folder/README.txt"

pack "$(release_day)" -C "$work" "$name" >"build/$name.tar.xz"
say "Built build/$name.tar.xz"
