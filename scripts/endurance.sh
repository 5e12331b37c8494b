#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# endurance.sh [PERCENT]: refreshes a small list 10,000 times, rebuilds the menu 2,000 times and opens
# 500 windows of settings, or a percentage of these, on a virtual desktop. Prints what the program
# holds after the first tenth and at the end, and fails if it has grown or a child was left over.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
percent=${1:-100} program=$PWD/build/release/bin/tarnwick_endurance
scripts/install_packages.sh build run desktop
scripts/build.sh release tarnwick_endurance

folder=$(mktemp -d "${TMPDIR:-/tmp}/tarnwick-endurance.XXXXXX")
trap 'rm -rf "$folder"' EXIT
mapfile -t repositories < <(scripts/desktop/sample_repositories.sh "$folder" 3)
scripts/virtual_desktop.sh --host none --no-accessibility -- \
    "$program" "$percent" "${repositories[@]}" >/dev/null
