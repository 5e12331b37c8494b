#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# lint.sh [FILE...]: clang-tidy with the checks of .clang-tidy over these sources, or all of them.
# Takes some minutes, so it is no part of ./test.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
scripts/install_packages.sh build lint
scripts/build.sh dev
(($#)) || mapfile -t files < <(find src helpers -name '*.cpp')
printf '%s\n' "${@:-${files[@]}}" | xargs -P "$(nproc)" -n 1 clang-tidy -p build/dev --quiet 2>/dev/null
