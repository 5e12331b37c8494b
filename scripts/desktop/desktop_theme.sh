#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# desktop_theme.sh light|dark: gives the virtual desktop its theme, at once when it is running.
#
# The theme travels as on an XFCE desktop, by XSettings: GTK takes Net/ThemeName from there, and so
# does Qt through its gtk3 platform theme, which calls a GTK theme named "-dark" a dark appearance
# and then uses Fusion's dark palette. When the name changes, a running Qt 6.4 program is told so by
# QEvent::ThemeChange and finds the new colours in QStyle::standardPalette(), but its own palette keeps
# the old ones until it sets them. Xft/DPI is what Qt derives its scale from, GTK has
# Gdk/WindowScalingFactor.
set -euo pipefail

case ${1-} in
light) gtk=Adwaita openbox=Clearlooks top='#7fa7c9' bottom='#3f6690' ;;
dark) gtk=Adwaita-dark openbox=Onyx top='#34475c' bottom='#16202c' ;;
*) echo "usage: desktop_theme.sh light|dark" >&2; exit 64 ;;
esac
scale=${TARNWICK_DESKTOP_SCALE:-1}

mkdir -p "$XDG_CONFIG_HOME/xsettingsd" "$XDG_CONFIG_HOME/openbox"
cat >"$XDG_CONFIG_HOME/xsettingsd/xsettingsd.conf" <<END
Net/ThemeName "$gtk"
Net/IconThemeName "Adwaita"
Gtk/FontName "Inter 10"
Xft/DPI $((98304 * scale))
Xft/Antialias 1
Xft/Hinting 1
Xft/HintStyle "hintslight"
Xft/RGBA "none"
Gdk/UnscaledDPI 98304
Gdk/WindowScalingFactor $scale
END
cat >"$XDG_CONFIG_HOME/openbox/rc.xml" <<END
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <theme>
    <name>$openbox</name>
    <titleLayout>NLIMC</titleLayout>
    <font place="ActiveWindow"><name>Inter</name><size>10</size><weight>bold</weight></font>
    <font place="InactiveWindow"><name>Inter</name><size>10</size><weight>bold</weight></font>
  </theme>
  <desktops><number>1</number><popupTime>0</popupTime></desktops>
</openbox_config>
END
hsetroot -add "$top" -add "$bottom" -gradient 180 >/dev/null

running=$XDG_RUNTIME_DIR/xsettingsd.pid
if [[ -e $running ]]; then
    kill -HUP "$(<"$running")"
    openbox --reconfigure
fi
