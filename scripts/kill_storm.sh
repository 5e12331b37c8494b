#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# kill_storm.sh [KILLS [PROGRAM]]: kills a program that saves lists and toggles switches without
# pause, at random moments; 300 times unless told otherwise. Each start must then read a whole file
# that holds the last list whose saving was reported, and leave no other file beside it. PROGRAM is
# tests/support/save_storm.cpp as built.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
kills=${1:-300} program=${2:-build/release/bin/save_storm} reported=0 failed=0 saves=0
[[ -x $program ]] || scripts/build.sh release save_storm

folder=$(mktemp -d "${TMPDIR:-/tmp}/tarnwick-storm.XXXXXX")
trap 'rm -rf "$folder"' EXIT
output=$folder/output preferences=$folder/config/preferences.json

# The last number that the program said after this word; lines that the kill cut short do not count.
last() { sed -n "s/^$1 \([0-9]*\)\$/\1/p" "$output" | tail -n 1; }

for ((kill = 0; kill <= kills; kill++)); do
    : >"$output"
    "$program" "$preferences" >>"$output" &
    pid=$!
    until grep -q '^loaded ' "$output"; do kill -0 "$pid" && sleep 0.01; done
    others=$(find "$folder/config" -mindepth 1 ! -name preferences.json 2>/dev/null | wc -l)
    sleep "0.$(printf '%03d' $((RANDOM % 100)))"
    kill -KILL "$pid"
    wait "$pid" 2>/dev/null || true
    loaded=$(last loaded)
    # The kill may have come between the saving and the report.
    if ((loaded != reported && loaded != reported + 1)) || grep -q 'set aside\|cannot' "$output"; then
        echo "After $kill kills: $reported was reported, $loaded was loaded"
        failed=$((failed + 1))
    fi
    # One is the file that the next save is being written to.
    if ((others > 1)); then
        echo "After $kill kills: $others files were left behind"
        failed=$((failed + 1))
    fi
    before=$loaded reported=$(last saved)
    reported=${reported:-$loaded}
    saves=$((saves + reported - before))
done
echo "$kills kills during $saves saves"
echo "Totals: $((failed ? 0 : 1)) passed, $failed failed, 0 skipped"
((failed == 0))
