#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# plasma.sh x11|wayland: becomes Plasma on the current display, or in a window that fills it, with a
# panel at the bottom that holds the task bar and the tray.
set -euo pipefail

write_settings() {
    cat >"$XDG_CONFIG_HOME/plasma-org.kde.plasma.desktop-appletsrc" <<END
[Containments][1]
formfactor=0
lastScreen=0
location=0
plugin=org.kde.desktopcontainment
wallpaperplugin=org.kde.color
[Containments][1][Wallpaper][org.kde.color][General]
Color=63,102,144
[Containments][2]
formfactor=2
lastScreen=0
location=4
plugin=org.kde.panel
[Containments][2][Applets][3]
plugin=org.kde.plasma.taskmanager
[Containments][2][Applets][4]
plugin=org.kde.plasma.systemtray
[Containments][2][Applets][4][Configuration]
SystrayContainmentId=5
[Containments][5]
formfactor=2
lastScreen=0
location=4
plugin=org.kde.plasma.private.systemtray
[Containments][5][General]
extraItems=
knownItems=$(cd /usr/share/plasma/plasmoids && echo org.kde.* | tr ' ' ,)
END
    local applications=BreezeLight panel=breeze-light
    [[ $TARNWICK_DESKTOP_THEME != dark ]] || applications=BreezeDark
    [[ $TARNWICK_DESKTOP_THEME == light ]] || panel=breeze-dark
    {
        cat "/usr/share/color-schemes/$applications.colors"
        printf '\n[KDE]\nAnimationDurationFactor=0\n'
    } >"$XDG_CONFIG_HOME/kdeglobals"
    printf '[Theme]\nname=%s\n' "$panel" >"$XDG_CONFIG_HOME/plasmarc"
}

# It holds the watcher of status notifier items.
start_kded() {
    setpriv --pdeathsig TERM -- "kded$KDE_SESSION_VERSION" &
    gdbus wait --session --timeout 20 org.kde.StatusNotifierWatcher
}

version=6
command -v kded6 >/dev/null || version=5
export KDE_FULL_SESSION=true KDE_SESSION_VERSION=$version
case $1 in
x11)
    write_settings
    setpriv --pdeathsig TERM -- kwin_x11 &
    start_kded
    exec plasmashell
    ;;
wayland)
    write_settings
    # The copy lacks the installed one's capabilities, which a container may not grant.
    cp "$(command -v kwin_wayland)" "$TMPDIR"
    exec "$TMPDIR/kwin_wayland" --x11-display "$DISPLAY" --socket wayland-1 --xwayland \
        --width "${TARNWICK_DESKTOP_SIZE%x*}" --height "${TARNWICK_DESKTOP_SIZE#*x}" \
        --scale "$TARNWICK_DESKTOP_SCALE" --exit-with-session "$(realpath "$0") session"
    ;;
session)
    echo "$DISPLAY" >"$XDG_RUNTIME_DIR/xwayland"
    dbus-update-activation-environment DISPLAY WAYLAND_DISPLAY KDE_FULL_SESSION KDE_SESSION_VERSION
    start_kded
    exec plasmashell
    ;;
esac
