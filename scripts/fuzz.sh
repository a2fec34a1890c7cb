#!/usr/bin/env bash
# Runs fuzz targets, two at a time, starting from the files in fuzz/corpus: for some seconds each on random
# inputs, or with --fixed always on the same ones, as many as fuzz/targets.txt says. Needs the build folder of the
# preset "fuzz". Without names, all targets of fuzz/targets.txt are run.
# usage: fuzz.sh SECONDS|--fixed [TARGET...]
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
length=${1:?usage: fuzz.sh SECONDS|--fixed [TARGET...]}
shift
[ $# -gt 0 ] || mapfile -t -O 0 all < <(cut -d ' ' -f 1 fuzz/targets.txt)
[ $# -gt 0 ] || set -- "${all[@]}"

# A folder lists its files in another order elsewhere, so they are named one by one. Compared values are no source of
# fixed inputs, since addresses are among them, which differ from run to run.
run_target() {
    local target=$1 length=$2 log="build/fuzz/$1.log" limit files status=0
    limit=(-max_total_time="$length")
    [ "$length" != --fixed ] || limit=(-seed=1 -use_cmp=0 -runs="$(sed -n "s/^$target //p" fuzz/targets.txt)")
    files=$(printf '%s\n' "fuzz/corpus/$target"/* | LC_ALL=C sort | paste -s -d ,)
    build/fuzz/fuzz/quexal-fuzz-"$target" "${limit[@]}" -max_len=4096 -print_final_stats=1 \
        -artifact_prefix="build/fuzz/$target-" -seed_inputs="$files" >"$log" 2>&1 || status=$?
    if [ "$status" != 0 ]; then
        tail -n 40 "$log" >&2
        echo "fuzz: $target found something; the input is build/fuzz/$target-*" >&2
        return 1
    fi
    echo "fuzz: $target, $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") inputs, nothing found"
}
export -f run_target
printf '%s\n' "$@" | xargs -P 2 -I '{}' bash -c 'run_target "$@"' fuzz '{}' "$length"
