#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# install_packages.sh GROUP...: installs what is missing of these groups of packages.list.
set -euo pipefail
list=$(dirname "${BASH_SOURCE[0]}")/packages.list

# Releases that the list does not know, as those of other distributions, are taken for the newest.
# shellcheck source=/dev/null
release=$(. /etc/os-release 2>/dev/null; echo "${VERSION_CODENAME:-unknown}")
grep -qE "^\w+@\S*\b$release\b" "$list" || release=forky

wanted=()
for group in "$@"; do
    grep -qE "^$group(@[^ ]+)? " "$list" || { echo "install_packages.sh: no group '$group'" >&2; exit 64; }
    mapfile -t -O "${#wanted[@]}" wanted < <(awk -v group="$group" -v release="$release" '
        { split($1, part, "@") }
        part[1] == group && (!part[2] || index("," part[2] ",", "," release ",")) { print $2 }' "$list")
done
((${#wanted[@]})) || { echo "usage: install_packages.sh GROUP..." >&2; exit 64; }

is_installed() { [[ $(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null) == installed ]]; }

if ! command -v dpkg-query >/dev/null; then
    echo "This is no Debian system, so nothing is installed. Needed are what Debian calls:" >&2
    echo "  ${wanted[*]}" >&2
    exit 0
fi
missing=()
for package in "${wanted[@]}"; do
    is_installed "$package" || missing+=("$package")
done
((${#missing[@]})) || exit 0

as_root=()
if ((EUID != 0)); then
    command -v sudo >/dev/null || {
        echo "Missing, and only root can install them: ${missing[*]}" >&2
        exit 77
    }
    as_root=(sudo)
fi
echo "Installing ${#missing[@]} packages: ${missing[*]}"
log=$(mktemp "${TMPDIR:-/tmp}/tarnwick-install.XXXXXX")
if ! { "${as_root[@]}" apt-get update &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y \
        --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
    tail -n 30 "$log" >&2
    echo "The packages could not be installed; the whole story is in $log" >&2
    exit 1
fi
rm "$log"
