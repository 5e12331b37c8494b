#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# gnome.sh x11|wayland [plain]: becomes GNOME's shell on the current display, or in a window that
# fills it; with the extension that shows status notifier items, or plain, without.
set -euo pipefail
extensions=(/usr/share/gnome-shell/extensions/*appindicator*)
enabled="['$(basename "${extensions[0]}")']"
[[ ${2-} != plain ]] || enabled="@as []"
scheme=default theme=Adwaita
[[ $TARNWICK_DESKTOP_THEME != dark ]] || scheme=prefer-dark theme=Adwaita-dark
mkdir -p "$XDG_CONFIG_HOME/glib-2.0/settings"
cat >>"$XDG_CONFIG_HOME/glib-2.0/settings/keyfile" <<END
[org/gnome/shell]
enabled-extensions=$enabled
welcome-dialog-last-shown-version='9999'
[org/gnome/desktop/interface]
color-scheme='$scheme'
gtk-theme='$theme'
enable-animations=false
[org/gnome/desktop/notifications]
show-banners=false
[org/gnome/desktop/screensaver]
lock-enabled=false
END

# It starts with the overview, which covers the desktop.
overview() {
    gdbus call --session --dest org.gnome.Shell --object-path /org/gnome/Shell \
        --method "org.freedesktop.DBus.Properties.$1" org.gnome.Shell OverviewActive "${@:2}" 2>&1
}
leave_overview() {
    until [[ $(overview Get) == *true* ]]; do sleep 0.2; done
    until [[ $(overview Get) == *false* ]]; do
        overview Set '<false>'
        sleep 1
    done
    touch "$XDG_RUNTIME_DIR/overview-left"
}
leave_overview &

case $1 in
x11) exec gnome-shell --x11 --sm-disable ;;
wayland)
    export MUTTER_DEBUG_DUMMY_MODE_SPECS=$TARNWICK_DESKTOP_SIZE
    export MUTTER_DEBUG_DUMMY_MONITOR_SCALES=$TARNWICK_DESKTOP_SCALE
    exec gnome-shell --wayland --nested --wayland-display wayland-1
    ;;
esac
