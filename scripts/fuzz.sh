#!/usr/bin/env bash
# Builds the libFuzzer targets (configure preset "fuzz", in build-fuzz/) and
# runs them, one at a time, on copies of their seed corpora
# (tests/fuzz/corpus/<what>), so the committed corpora never change.
#
#   scripts/fuzz.sh [ci] [TARGET...]        replay every corpus, then a fixed
#                                           number of runs with seed 1
#   scripts/fuzz.sh long SECONDS [TARGET...] fuzz each target for SECONDS
#
# TARGET is a name such as comma_reader (default: every target). A crash,
# a sanitizer finding, a hang of over 10 s or more than 2 GB of memory fails
# the script; the input that caused it is kept in build-fuzz/findings/.
# Each run prints its executions, coverage and time.
set -euo pipefail
cd "$(dirname "$0")/.."

mode=ci
seconds=0
if [ $# -gt 0 ] && [ "$1" = ci ]; then
    shift
elif [ $# -gt 0 ] && [ "$1" = long ]; then
    [ $# -ge 2 ] || { echo "usage: $0 long SECONDS [TARGET...]" >&2; exit 2; }
    mode=long
    seconds=$2
    shift 2
fi

# Runs per target in CI mode with -seed=1: about 30 seconds each on the
# two-core development machine (see the README's testing section).
declare -A ci_runs=(
    [comma_reader]=130000
    [session]=23000
    [lut_fitting]=27000
    [row_value]=1500000
    [color_text]=300000
)
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    targets=(comma_reader session lut_fitting row_value color_text)
fi
for target in "${targets[@]}"; do
    [ -n "${ci_runs[$target]:-}" ] || { echo "unknown fuzz target: $target" >&2; exit 2; }
done

if [ ! -f build-fuzz/CMakeCache.txt ]; then
    cmake --preset fuzz
fi
cmake --build build-fuzz -j2 --target "${targets[@]/#/fuzz_}"

# The session and fitting targets write their files for every input into a
# scratch folder under TMPDIR: memory-backed when the system has it.
if [ -z "${TMPDIR:-}" ] && [ -d /dev/shm ] && [ -w /dev/shm ]; then
    export TMPDIR=/dev/shm
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
findings=build-fuzz/findings
mkdir -p "$findings"
common=(-timeout=10 -rss_limit_mb=2048 -print_final_stats=1 "-artifact_prefix=$findings/")

# "target executions coverage seconds slowest-input" from a run's log.
summary() {
    local target=$1 log=$2 elapsed=$3
    local executions coverage slowest
    executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
    coverage=$(grep -o 'cov: [0-9]*' "$log" | tail -1 | cut -d' ' -f2)
    slowest=$(sed -n 's/^stat::slowest_unit_time_sec: *//p' "$log" | tail -1)
    printf '%-14s %-6s executions %-10s cov %-6s %4d s  (slowest input %s s)\n' "$target" \
        "$mode" "${executions:-?}" "${coverage:-?}" "$elapsed" "${slowest:-?}"
}

start_all=$SECONDS
for target in "${targets[@]}"; do
    binary=build-fuzz/tests/fuzz/fuzz_$target
    corpus=tests/fuzz/corpus/$target
    copy=$work/$target
    cp -r "$corpus" "$copy"
    log=$work/$target.log

    if [ "$mode" = ci ]; then
        # Replay: each seed once, as files (a folder would be fuzzed).
        if ! "$binary" "${common[@]}" "$corpus"/* >"$log" 2>&1; then
            cat "$log" >&2
            echo "fuzz_$target: a seed of $corpus fails" >&2
            exit 1
        fi
        # The same inputs on every run: a fixed seed, and none of the sources
        # that differ between processes (comparison operands, which include
        # addresses and the scratch folder's name, and rereading the corpus
        # on a timer).
        flags=(-seed=1 "-runs=${ci_runs[$target]}" -use_cmp=0 -use_memmem=0 -reload=0)
    else
        flags=("-max_total_time=$seconds")
    fi

    start=$SECONDS
    if ! "$binary" "${common[@]}" "${flags[@]}" "$copy" >"$log" 2>&1; then
        tail -n 60 "$log" >&2
        echo "fuzz_$target: finding kept in $findings/" >&2
        exit 1
    fi
    summary "$target" "$log" $((SECONDS - start))
done
echo "fuzz.sh $mode: ${#targets[@]} targets in $((SECONDS - start_all)) s"
