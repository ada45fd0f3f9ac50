#!/usr/bin/env bash
# Runs the fuzz targets of build/fuzz one after the other, each for its share of the time, and prints a line for
# each. Its inputs are kept from run to run in TARGET.found; those few of them that reach code that
# tests/fuzz/corpus does not stand in TARGET.new, to be added to it. Fails when an input broke a target;
# it then stands in TARGET.found too, as short as could be made of it.
#
# usage: fuzz.sh MINUTES [TARGET...]
set -euo pipefail
ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
BIN=$ROOT/build/fuzz/tests/fuzz
minutes=$1
shift
declare -A longest
while read -r name bytes; do longest[$name]=$bytes; done <"$BIN/targets"
[ $# -gt 0 ] || mapfile -t all < <(printf '%s\n' "${!longest[@]}" | sort)
names=("${@:-${all[@]}}")
seconds=$((minutes * 60 / ${#names[@]}))

statistic() { # NAME LOG
    sed -n "s/^stat::$1: *//p" "$2" | tail -1
}
# Counts those of a folder that are inputs a target broke with.
findings() { # FOLDER
    find "$1" \( -name 'crash-*' -o -name 'leak-*' -o -name 'oom-*' -o -name 'timeout-*' \) | wc -l
}

broken=0
row() { printf '%-24s %12s %10s %6s %9s\n' "$@"; }
row target executions a-second kept findings
for name in "${names[@]}"; do
    target=$BIN/$name corpus=$ROOT/tests/fuzz/corpus/$name log=$BIN/$name.log
    mkdir -p "$target.found"
    # How often each feature was seen, which it counts otherwise, costs up to half of the time here.
    "$target" -max_total_time="$seconds" -max_len="${longest[$name]}" -entropic=0 -print_final_stats=1 \
        -artifact_prefix="$target.found/" "$target.found" "$corpus" >"$log" 2>&1 || true
    for input in "$target.found"/crash-*; do
        [ ! -f "$input" ] || "$target" -minimize_crash=1 -max_total_time=20 -exact_artifact_path="$input" "$input" \
            >"$log.shorter" 2>&1 || true
    done
    rm -rf "$target.new"
    cp -r "$corpus" "$target.new"
    "$target" -set_cover_merge=1 -use_counters=0 -artifact_prefix="$target.found/" "$target.new" "$target.found" \
        >"$log.merge" 2>&1 || true
    for input in "$corpus"/*; do rm -f "$target.new/$(basename "$input")"; done
    count=$(findings "$target.found")
    broken=$((broken + count))
    row "$name" "$(statistic number_of_executed_units "$log")" \
        "$(statistic average_exec_per_sec "$log")" "$(find "$target.new" -type f | wc -l)" "$count"
done
echo "What to add to the corpus: $BIN/TARGET.new; what broke a target: $BIN/TARGET.found, its words: TARGET.log"
[ $broken = 0 ]
