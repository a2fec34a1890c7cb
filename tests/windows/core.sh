#!/usr/bin/env bash
# Runs the core tests that were built for Windows (preset "windows-core") under Wine, which has a folder of its own
# meanwhile. A test that hangs there ends with the time that it has.
# usage: core.sh TESTS.EXE
set -euo pipefail
tests=$(readlink -f "${1:?usage: core.sh TESTS.EXE}")

WINEPREFIX=$(mktemp -d)
export WINEPREFIX WINEDEBUG=-all
unset DISPLAY
trap 'wineserver -k || true; rm -rf "$WINEPREFIX"' EXIT
wineboot -i >/dev/null 2>&1
cd "$WINEPREFIX"
timeout 600 wine "$tests" --gtest_brief=1
