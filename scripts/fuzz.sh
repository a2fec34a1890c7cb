#!/usr/bin/env bash
# Runs fuzz targets for some seconds each, two at a time, starting from the files in fuzz/corpus. Needs the
# build folder of the preset "fuzz". Without names, all targets of fuzz/targets.txt are run.
# usage: fuzz.sh SECONDS [TARGET...]
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
seconds=${1:?usage: fuzz.sh SECONDS [TARGET...]}
shift
[ $# -gt 0 ] || mapfile -t -O 0 all <fuzz/targets.txt
[ $# -gt 0 ] || set -- "${all[@]}"

# What a target finds beyond its corpus goes into a folder that is thrown away.
run_target() {
    local target=$1 seconds=$2 log="build/fuzz/$1.log" work status=0
    work=$(mktemp -d)
    build/fuzz/fuzz/quexal-fuzz-"$target" -max_total_time="$seconds" -max_len=4096 -print_final_stats=1 \
        -artifact_prefix="build/fuzz/$target-" "$work" "fuzz/corpus/$target" >"$log" 2>&1 || status=$?
    rm -rf "$work"
    if [ "$status" != 0 ]; then
        tail -n 40 "$log" >&2
        echo "fuzz: $target found something; the input is build/fuzz/$target-*" >&2
        return 1
    fi
    echo "fuzz: $target, $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") inputs, nothing found"
}
export -f run_target
printf '%s\n' "$@" | xargs -P 2 -I '{}' bash -c 'run_target "$@"' fuzz '{}' "$seconds"
