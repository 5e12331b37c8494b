#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# run_tests.sh PRESET...: builds the presets, runs their tests and the checks of the sources, and
# counts: each test function or row of a Qt Test class is one, each check is one. The last line is
# "N passed, N failed, N skipped".
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
passed=0 failed=0 skipped=0

# check NAME COMMAND...: a command that ends with 77 has said why it checked nothing.
check() {
    local name=$1 status=0
    shift
    echo "Check: $name"
    "$@" || status=$?
    case $status in
    0) passed=$((passed + 1)) ;;
    77) skipped=$((skipped + 1)) ;;
    *) failed=$((failed + 1)) && echo "FAILED: $name" ;;
    esac
}

formatted() {
    local version
    version=$(clang-format --version 2>&1)
    if [[ $version != *"version 14."* ]]; then
        echo "skipped, because only clang-format 14 judges; here is: $version"
        return 77
    fi
    find src helpers tests \( -name '*.h' -o -name '*.cpp' \) -exec clang-format --dry-run -Werror {} +
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

check "the sources are formatted" formatted
check "includes run downwards, connections end" scripts/check_sources.py
for preset in "$@"; do run_preset "$preset"; done
echo "$passed passed, $failed failed, $skipped skipped"
((failed == 0))
