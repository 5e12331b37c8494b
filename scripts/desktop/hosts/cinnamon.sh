#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Becomes Cinnamon on the current display, with a panel at the bottom.
set -euo pipefail
mkdir -p "$XDG_CONFIG_HOME/glib-2.0/settings"
cat >>"$XDG_CONFIG_HOME/glib-2.0/settings/keyfile" <<END
[org/cinnamon]
enabled-applets=['panel1:left:0:window-list@cinnamon.org:1', 'panel1:right:0:xapp-status@cinnamon.org:2', 'panel1:right:1:systray@cinnamon.org:3']
END
exec cinnamon
