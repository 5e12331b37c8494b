#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Becomes LXQt's panel, at the bottom of the current display.
set -euo pipefail
mkdir -p "$XDG_CONFIG_HOME/lxqt"
cat >"$XDG_CONFIG_HOME/lxqt/panel.conf" <<END
[General]
panels=panel1
[panel1]
position=Bottom
desktop=0
width=100
width-percent=true
panelSize=32
iconSize=22
plugins=taskbar, statusnotifier
[taskbar]
type=taskbar
alignment=Left
[statusnotifier]
type=statusnotifier
alignment=Right
END
exec lxqt-panel
