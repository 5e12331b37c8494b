#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# fuzz.sh [SECONDS [TARGET...]]: gives each target of tests/fuzz that many seconds, 600 unless told
# otherwise, under libFuzzer and the sanitizers of the preset fuzz, and prints a line for each:
# executions, features reached, findings. What is worth trying again is kept in build/fuzz/corpus;
# what a target failed on goes to tests/fuzz/seeds, where every run of the tests tries it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
seconds=${1:-600}
shift $(($# > 0))
targets=("$@")
((${#targets[@]})) || mapfile -t targets < <(ls tests/fuzz/seeds)
scripts/install_packages.sh build run sanitize
scripts/build.sh fuzz fuzz

# In memory, because the target that reads and writes files waits for the disk otherwise.
TMPDIR=$(mktemp -d /dev/shm/tarnwick-fuzz.XXXXXX)
trap 'rm -rf "$TMPDIR"' EXIT
export TMPDIR QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0
failed=0
printf '%-12s %12s %9s %9s\n' target executions features findings
for target in "${targets[@]}"; do
    seeds=tests/fuzz/seeds/$target corpus=build/fuzz/corpus/$target log=build/fuzz/$target.log
    mkdir -p "$corpus"
    status=0
    build/fuzz/bin/fuzz_"$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
        -max_len=4096 -print_final_stats=1 -artifact_prefix="$seeds/found-" "$corpus" "$seeds" \
        >"$log" 2>&1 || status=$?
    found=$(grep -c 'Test unit written to' "$log" || true)
    printf '%-12s %12s %9s %9s\n' "$target" \
        "$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")" \
        "$(sed -n 's/.* ft: \([0-9]*\).*/\1/p' "$log" | tail -n 1)" "$found"
    ((status == 0 && found == 0)) && continue
    failed=1
    grep -E 'ERROR|SUMMARY|written to' "$log" || tail -n 20 "$log"
done
exit "$failed"
