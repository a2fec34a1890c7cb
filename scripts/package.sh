#!/usr/bin/env bash
# Builds the editor and its Debian package, build/quexal-editor_VERSION_ARCHITECTURE.deb.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

[ $# = 0 ] || fail "usage: scripts/package.sh"
# shellcheck disable=SC2086
need_packages $BUILD_PACKAGES $PACKAGE_PACKAGES
say "Building the editor"
build_preset release
say "Building the package"
rm -rf build/release/package build/quexal-editor_*.deb
quietly "packaging" cpack --config build/release/CPackConfig.cmake -B "$PWD/build/release/package"
package=$(basename build/release/package/*.deb)
mv -f "build/release/package/$package" build/
say "Built build/$package"
