#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# run_tests.sh PRESET...: runs the checks, builds the presets, runs their tests, clang-tidy over what
# changed, and counts: each test function or row of a Qt Test class is one, each check is one. The
# last line is "N passed, N failed, N skipped".
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
passed=0 failed=0 skipped=0

# count STATUS LINE: what the last line of a script counts; one that failed has a failure at least.
count() {
    local p=0 f=0 s=0
    [[ $2 =~ ^([0-9]+)\ passed,\ ([0-9]+)\ failed,\ ([0-9]+)\ skipped$ ]] &&
        p=${BASH_REMATCH[1]} f=${BASH_REMATCH[2]} s=${BASH_REMATCH[3]}
    (($1 == 0 || f > 0)) || f=1
    passed=$((passed + p)) failed=$((failed + f)) skipped=$((skipped + s))
}

# Prints the numbers of passed, failed and skipped functions in a log of ctest. An entry that failed
# without a failed function of its own, as one that crashed, is one.
totals() {
    awk '
        / Totals: / { id = $1 + 0; passed += $3; failed += $5; skipped += $7; failures[id] += $5 }
        /\*\*\*/ && match($0, /Test +#[0-9]+: /) && !/\*\*\*Skipped/ {
            id = substr($0, RSTART, RLENGTH); gsub(/[^0-9]/, "", id)
            if (!failures[id + 0]) failed++
        }
        END { print passed + 0, failed + 0, skipped + 0 }' "$1"
}

# Prints what the entries that failed said, but for the functions that passed.
failures() {
    awk '
        NR == FNR && /\*\*\*/ && match($0, /Test +#[0-9]+: /) {
            id = substr($0, RSTART, RLENGTH); gsub(/[^0-9]/, "", id); failed[id + 0]
        }
        NR != FNR && /^[0-9]+: / && ($1 + 0) in failed && !/: PASS   :/' "$1" "$1" | head -n 200
}

run_preset() {
    local preset=$1 log=build/$1-tests.log status=0 start=$SECONDS p f s
    scripts/build.sh "$preset" || { failed=$((failed + 1)); return; }
    echo "Testing ($preset), built in $((SECONDS - start)) s ..."
    start=$SECONDS
    ctest --preset "$preset" --verbose >"$log" 2>&1 || status=$?
    read -r p f s < <(totals "$log")
    ((status == 0 || f > 0)) || f=1
    passed=$((passed + p)) failed=$((failed + f)) skipped=$((skipped + s))
    grep -E '^ *[0-9]+/[0-9]+ Test' "$log"
    echo "Tested ($preset) in $((SECONDS - start)) s: $p passed, $f failed, $s skipped."
    ((status == 0)) && return
    failures "$log"
    echo "The whole story is in $log"
}

mkdir -p build
scripts/check.sh | tee build/check.log
count "${PIPESTATUS[0]}" "$(tail -n 1 build/check.log)"
for preset in "$@"; do run_preset "$preset"; done
scripts/lint.sh --changed
case $? in
0) passed=$((passed + 1)) ;;
77) skipped=$((skipped + 1)) ;;
*) failed=$((failed + 1)) ;;
esac
echo "$passed passed, $failed failed, $skipped skipped"
((failed == 0))
