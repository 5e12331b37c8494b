#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# tray_host.sh xfce4-panel|xembed-tray: becomes that tray host, at the top right of the current display.
#
# Meant for a desktop made by virtual_desktop.sh: it writes the panel's settings to XDG_CONFIG_HOME.
# The panel takes status notifier items and XEmbed icons. The other, which takes only the latter, is
# trayer, or stalonetray on the Debian releases that no longer have trayer.
set -euo pipefail
height=28
pixels=$((height * ${TARNWICK_DESKTOP_SCALE:-1}))

write_panel_settings() {
    local folder=$XDG_CONFIG_HOME/xfce4/xfconf/xfce-perchannel-xml
    mkdir -p "$folder"
    cat >"$folder/xfce4-panel.xml" <<END
<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value="false"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="$height"/>
      <property name="icon-size" type="uint" value="16"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/>
        <value type="int" value="2"/>
        <value type="int" value="3"/>
        <value type="int" value="4"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-2" type="string" value="systray">
      <property name="square-icons" type="bool" value="true"/>
    </property>
    <property name="plugin-3" type="string" value="separator">
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-4" type="string" value="clock">
      <property name="mode" type="uint" value="2"/>
      <property name="digital-layout" type="uint" value="3"/>
      <property name="digital-time-format" type="string" value="%a %d %b  %H:%M"/>
      <property name="digital-time-font" type="string" value="Inter 10"/>
    </property>
  </property>
</channel>
END
}

case ${1-} in
xfce4-panel)
    write_panel_settings
    exec xfce4-panel --disable-wm-check
    ;;
xembed-tray)
    ! command -v trayer >/dev/null ||
        exec trayer --edge top --align right --margin 0 --distance 0 --SetDockType true \
            --expand true --widthtype request --height "$pixels"
    exec stalonetray --config /dev/null --geometry 1x1-0+0 --grow-gravity NE --slot-size "$pixels" \
        --icon-size "$pixels" --window-type dock --window-strut top --background '#eeeeee'
    ;;
*)
    echo "usage: tray_host.sh xfce4-panel|xembed-tray" >&2
    exit 64
    ;;
esac
