#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Tries the program on a private desktop of any kind: installs the desktop if it is missing, opens
# menu and panel over sample repositories with real input, prints what was seen and where the
# pictures are.
#
#   try_desktop.sh [--program PATH] [--size WxH] [--dark | --dark-panel] [--scale N] HOST [OUTPUT_DIR]
#
# HOST is one of desktop/hosts.list.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
usage() {
    sed -n '7s/^# *//p' "${BASH_SOURCE[0]}" >&2
    awk '!/^#/ && NF { print "  " $1 }' "$scripts/desktop/hosts.list" >&2
    exit 64
}

program=$scripts/../build/release/bin/tarnwick
options=()
while [[ ${1-} == --* ]]; do
    case $1 in
    --program) program=${2-}; shift 2 || usage ;;
    --size | --scale) options+=("$1" "${2-}"); shift 2 || usage ;;
    --dark | --dark-panel) options+=("$1"); shift ;;
    *) usage ;;
    esac
done
(($# == 1 || $# == 2)) || usage
host=$1 output=${2-$scripts/../build/desktops/$1}
read -r _ group _ < <(grep "^$host " "$scripts/desktop/hosts.list") || usage
[[ -x $program ]] || { echo "try_desktop.sh: there is no program $program" >&2; exit 66; }
"$scripts/install_packages.sh" desktop "$group"
rm -f "$output"/*.png
mkdir -p "$output"
program=$(realpath "$program") output=$(realpath "$output")

folder=$(mktemp -d "${TMPDIR:-/tmp}/tarnwick-samples.XXXXXX")
trap 'rm -rf "$folder"' EXIT
paths=$("$scripts/desktop/sample_repositories.sh" "$folder/repositories")
mkdir -p "$folder/config/tarnwick"
printf '{ "repos": "%s" }\n' "${paths//$'\n'/\\n}" >"$folder/config/tarnwick/preferences.json"
status=0
"$scripts/virtual_desktop.sh" --host "$host" "${options[@]}" -- \
    "$scripts/desktop/try_menu.sh" "$program" "$folder" "$output" || status=$?
printf '%s\n' "$output"/*.png
exit "$status"
