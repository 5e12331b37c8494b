#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Starts the program on a virtual desktop, over repositories made for it, clicks its item in the
# panel and saves a picture of the screen; prints the picture's path.
#
#   screenshot_menu.sh [--output PNG] [--program PATH] [--repos samples|COUNT] [--dark] [--scale N]
#                      [--panel ROW] [--type LETTERS] [--host xfce4-panel|xembed-tray] [--size WxH]
#                      [--preference KEY=JSON]...
#
# The preferences are made for the occasion, too: nothing of the user's is read or written.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
usage() { sed -n '6,8s/^# *//p' "${BASH_SOURCE[0]}" >&2; exit 64; }

output=$scripts/../build/screenshots/menu.png
panel=
letters=
program=$scripts/../build/release/bin/tarnwick
repos=samples
desktop=()
preferences=()
while (($#)); do
    case $1 in
    --output) output=${2-}; shift 2 || usage ;;
    --program) program=${2-}; shift 2 || usage ;;
    --repos) repos=${2-}; shift 2 || usage ;;
    --preference) preferences+=("${2-}"); shift 2 || usage ;;
    --panel) panel=${2-}; shift 2 || usage ;;
    --type) letters=${2-}; shift 2 || usage ;;
    --dark) desktop+=("$1"); shift ;;
    --scale | --host | --size) desktop+=("$1" "${2-}"); shift 2 || usage ;;
    *) usage ;;
    esac
done
[[ -x $program ]] || { echo "screenshot_menu.sh: there is no program $program" >&2; exit 66; }
mkdir -p "$(dirname "$output")"
output=$(realpath "$output")

folder=$(mktemp -d "${TMPDIR:-/tmp}/tarnwick-samples.XXXXXX")
trap 'rm -rf "$folder"' EXIT
case $repos in
samples) paths=$("$scripts/desktop/sample_repositories.sh" "$folder/repositories") ;;
0) paths= ;;
*) paths=$("$scripts/desktop/sample_repositories.sh" "$folder/repositories" "$repos") ;;
esac
mkdir -p "$folder/config/tarnwick"
{
    printf '{\n'
    for preference in ${preferences[@]+"${preferences[@]}"}; do
        printf '    "%s": %s,\n' "${preference%%=*}" "${preference#*=}"
    done
    printf '    "repos": "%s"\n}\n' "${paths//$'\n'/\\n}"
} >"$folder/config/tarnwick/preferences.json"

"$scripts/virtual_desktop.sh" ${desktop[@]+"${desktop[@]}"} -- \
    "$scripts/desktop/photograph_menu.sh" "$program" "$folder" "$output" "$panel" "$letters"
echo "$output"
