#!/usr/bin/env bash
# Runs clang-tidy over the program's own sources for this system. Needs the build folder of the preset "tidy".
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
git ls-files 'src/*.cpp' ':!src/ui/machine/windows' 'tests/driver/*.cpp' ':!tests/driver/windows' 'tour/*.cpp' | xargs -P "$(nproc)" -n 4 clang-tidy -p build/tidy --quiet
