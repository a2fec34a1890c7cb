#!/usr/bin/env bash
# Runs the core tests that were built for Windows (preset "windows-core") under Wine. A test that hangs there ends with
# the time that it has.
# usage: core.sh TESTS.EXE
set -euo pipefail
tests=$(readlink -f "${1:?usage: core.sh TESTS.EXE}")
# shellcheck source=tests/windows/wine.sh
. "$(dirname "$(readlink -f "$0")")/wine.sh"

unset DISPLAY
start_wine
cd "$work"
timeout 600 wine "$tests" --gtest_brief=1
