#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Becomes i3 on the current display, with its bar at the bottom.
set -euo pipefail
mkdir -p "$XDG_CONFIG_HOME/i3"
cat >"$XDG_CONFIG_HOME/i3/config" <<END
# i3 config file (v4)
font pango:Inter 10
floating_modifier Mod4
bar {
    position bottom
}
END
exec i3
