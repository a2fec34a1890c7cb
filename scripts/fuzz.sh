#!/usr/bin/env bash
# Runs each fuzz target for some seconds, starting from the whole files among the tests. Needs the build
# folder of the preset "fuzz".
# usage: fuzz.sh SECONDS
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
seconds=${1:?usage: fuzz.sh SECONDS}
seeds=$(mktemp -d)
trap 'rm -rf "$seeds"' EXIT
for file in tests/golden/*/*/input.txt tests/golden/*/*/change.txt data/practice.txt data/proposals.txt; do
    # The first bytes are the answers to the questions.
    { printf '\0\1\2\3' && cat "$file"; } >"$seeds/$(printf '%s' "$file" | tr / _)"
done
for target in read_file change_file; do
    work=$(mktemp -d)
    if ! build/fuzz/fuzz/quexal-fuzz-"$target" -max_total_time="$seconds" -max_len=4096 -print_final_stats=1 \
        -artifact_prefix="build/fuzz/$target-" "$work" "$seeds" >"build/fuzz/$target.log" 2>&1; then
        tail -n 40 "build/fuzz/$target.log" >&2
        echo "fuzz: $target found something; the input is build/fuzz/$target-*" >&2
        exit 1
    fi
    echo "fuzz: $target, $(sed -n 's/^stat::number_of_executed_units: *//p' "build/fuzz/$target.log") inputs, nothing found"
    rm -rf "$work"
done
