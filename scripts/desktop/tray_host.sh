#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# tray_host.sh HOST: becomes that host of hosts.list on the current display.
#
# Meant for a desktop made by virtual_desktop.sh: it writes the host's settings to XDG_CONFIG_HOME.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
read -r _ _ _ _ _ starter < <(grep "^${1-} " hosts.list) ||
    { echo "tray_host.sh: no host '${1-}' in hosts.list" >&2; exit 64; }
# shellcheck disable=SC2086 # a program and its arguments
exec hosts/$starter
