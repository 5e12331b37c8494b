#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the presets dev and sanitize, runs their tests and the checks of the sources, and counts:
# each test function or row of a Qt Test class is one, each check is one.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
passed=0 failed=0 skipped=0

# check NAME COMMAND...
check() {
    local name=$1
    shift
    echo "Check: $name"
    if "$@"; then passed=$((passed + 1)); else failed=$((failed + 1)) && echo "FAILED: $name"; fi
}
formatted() { find src helpers tests -name '*.h' -o -name '*.cpp' | xargs clang-format --dry-run -Werror; }

# Adds up the lines "Totals: 3 passed, 0 failed, 1 skipped, ..." of a log.
count_totals() {
    local p f s
    while read -r p f s; do
        passed=$((passed + p)) failed=$((failed + f)) skipped=$((skipped + s))
    done < <(sed -nE 's/^.*Totals: ([0-9]+) passed, ([0-9]+) failed, ([0-9]+) skipped.*/\1 \2 \3/p' "$1")
}

run_preset() {
    local preset=$1 log=build/$1-tests.log before=$failed
    scripts/build.sh "$preset" || { failed=$((failed + 1)); return; }
    echo "Testing ($preset) ..."
    ctest --preset "$preset" --verbose >"$log" 2>&1
    local status=$?
    count_totals "$log"
    grep -E '^ +[0-9]+/[0-9]+ Test|^[0-9]+/[0-9]+ Test' "$log"
    ((status == 0)) && return
    # A test program that died counts no failure of its own.
    ((failed > before)) || failed=$((failed + 1))
    grep -E 'FAIL!|Actual|Expected|Loc:|ERROR:|runtime error|SUMMARY|Timeout' -A 3 "$log" | head -n 150
    echo "The whole story is in $log"
}

check "the sources are formatted" formatted
check "includes run downwards, connections end" scripts/check_sources.py
run_preset dev
run_preset sanitize

ran=$((passed + failed))
((ran > 2)) || failed=$((failed + 1))
echo "$passed passed, $failed failed, $skipped skipped"
((failed == 0))
