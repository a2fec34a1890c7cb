#!/usr/bin/env bash
# Packs the sources that git knows, as they are now, into build/quexal-editor-VERSION-source.tar.xz. They are built
# without git. The same sources give the same bytes.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

[ $# = 0 ] || fail "usage: scripts/source.sh"
# shellcheck disable=SC2086
need_packages $ARCHIVE_PACKAGES git
name=quexal-editor-$(release_version)
mkdir -p build
rm -f build/quexal-editor-*-source.tar.xz
git ls-files -z >build/source-files
# The moment of the commit: what is built of files from the future is built again and again.
pack "$(git log -1 --format=%cI)" --null --no-recursion --verbatim-files-from --files-from build/source-files \
    --transform "flags=r;s,^,$name/," >"build/$name-source.tar.xz"
rm build/source-files
say "Built build/$name-source.tar.xz"
