#!/usr/bin/env bash
# Makes all that a release consists of: the Debian package, the archive for other Linux systems, the zip and the
# installer for Windows, the sources, and their checksums in build/SHA256SUMS. Everything has to be committed.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

[ $# = 0 ] || fail "usage: scripts/release.sh"
version=$(release_version)
commit=$(git rev-parse HEAD)
day=$(date -u -d "$(release_day)" +%F)
grep -qF "project(QuexalEditor VERSION $version " CMakeLists.txt ||
    fail "CMakeLists.txt is of another version than $version"
[ "$(grep -m 1 '^## \[' CHANGELOG.md)" = "## [$version] - $day" ] ||
    fail "CHANGELOG.md does not begin with $version of $day"
grep -m 1 '<release ' packaging/metainfo.xml.in | grep -qF "version=\"$version\" date=\"$day\"" ||
    fail "packaging/metainfo.xml.in does not begin with $version of $day"
[ -z "$(git status --porcelain)" ] || fail "there is something that is not committed: git status"
tagged=$(git rev-parse -q --verify "refs/tags/v$version^{commit}" || true)
[ -z "$tagged" ] || [ "$tagged" = "$commit" ] || fail "the tag v$version is on another commit"

rm -f build/SHA256SUMS
for part in source package archive windows; do "scripts/$part.sh"; done
[ "$(git rev-parse HEAD; git status --porcelain)" = "$commit" ] || fail "the sources were changed meanwhile"
files=("quexal-editor_${version}_$(dpkg --print-architecture).deb" "quexal-editor-$version-linux-$(linux_name).tar.xz"
    "quexal-editor-$version-windows-x64.zip" "quexal-editor-$version-windows-x64-setup.exe"
    "quexal-editor-$version-source.tar.xz")
(cd build && sha256sum "${files[@]}" >SHA256SUMS.new && mv SHA256SUMS.new SHA256SUMS)
cat build/SHA256SUMS
say "Built the release $version of commit $commit"
