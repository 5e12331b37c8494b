#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# build.sh PRESET [TARGET...]: configures and builds one of CMakePresets.json, or these targets of
# it; says little while all goes well.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
preset=$1
shift
mkdir -p build
log=build/$preset.log
echo "Building ($preset) ..."
if ! { cmake --preset "$preset" && cmake --build --preset "$preset" ${1+--target "$@"}; } >"$log" 2>&1; then
    grep -E 'error|FAILED|CMake Error' -A 4 "$log" | head -n 60 >&2 || true
    echo "The build failed; the whole story is in $log" >&2
    exit 1
fi
# Where editors look for it.
ln -sfn "$preset/compile_commands.json" build/compile_commands.json
