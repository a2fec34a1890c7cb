#!/usr/bin/env bash
# Builds the editor for Windows and leaves in build/ an archive to unpack and an installer:
# quexal-editor-VERSION-windows-x64.zip and quexal-editor-VERSION-windows-x64-setup.exe. Qt is built once, into a folder
# of the user's cache; with --qt nothing else is done.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

[ $# = 0 ] || [ "$*" = --qt ] || fail "usage: scripts/windows.sh [--qt]"
# shellcheck disable=SC2086
need_packages $BUILD_PACKAGES $WINDOWS_BUILD_PACKAGES

QUEXAL_QT_WINDOWS=$(windows_qt_folder)
export QUEXAL_QT_WINDOWS
mkdir -p "$(dirname "$QUEXAL_QT_WINDOWS")"
exec {lock}>"$QUEXAL_QT_WINDOWS.lock"
flock "$lock" # another run may be building it
if ! is_windows_qt_whole "$QUEXAL_QT_WINDOWS"; then
    say "Building Qt for Windows, once; it takes 15 to 30 minutes"
    quietly "building Qt for Windows" packaging/windows/build-qt.sh "$QUEXAL_QT_WINDOWS"
fi
exec {lock}>&-
[ "${1-}" != --qt ] || exit 0

version=$(release_version)
name=quexal-editor-$version-windows-x64
day=$(release_day)
SOURCE_DATE_EPOCH=$(date -d "$day" +%s) # what writes a time takes it from there
export SOURCE_DATE_EPOCH
say "Building the editor for Windows"
build_windows_preset windows

say "Building the packages"
rm -rf build/windows/package build/quexal-editor-*-windows-x64*
files=$PWD/build/windows/package/quexal-editor-$version
quietly "installing into a folder" cmake --install build/windows --prefix "$files"
find "$files" \( -name '*.dll' -o -name '*.exe' \) -exec x86_64-w64-mingw32-strip {} +
# Neither the day on which it is built, nor the rights that the builder gives, nor the order of a folder matter.
chmod -R u=rwX,go=rX "$files"
find "$files" -exec touch -d "$day" {} +
(cd "$files/.." && find "quexal-editor-$version" | LC_ALL=C sort | TZ=UTC zip -qX9@ "../../$name.zip")

packaging/windows/file-list.sh "$files" >build/windows/package/files.nsh
quietly "making the installer" makensis -V2 -NOCD \
    -DVERSION="$version" -DFILES="$files" -DFILE_LIST="$PWD/build/windows/package/files.nsh" -DOUTPUT="$PWD/build/$name-setup.exe" \
    packaging/windows/installer.nsi
say "Built build/$name.zip and build/$name-setup.exe"
