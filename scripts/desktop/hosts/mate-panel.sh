#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Becomes MATE's panel, at the top of the current display.
set -euo pipefail
mkdir -p "$XDG_CONFIG_HOME/glib-2.0/settings"
cat >>"$XDG_CONFIG_HOME/glib-2.0/settings/keyfile" <<END
[org/mate/panel/general]
toplevel-id-list=['top']
object-id-list=['windows', 'notification-area']
[org/mate/panel/toplevels/top]
expand=true
orientation='top'
size=28
[org/mate/panel/objects/windows]
object-type='applet'
applet-iid='WnckletFactory::WindowListApplet'
toplevel-id='top'
position=0
[org/mate/panel/objects/notification-area]
object-type='applet'
applet-iid='NotificationAreaAppletFactory::NotificationArea'
toplevel-id='top'
panel-right-stick=true
position=0
END
exec mate-panel
