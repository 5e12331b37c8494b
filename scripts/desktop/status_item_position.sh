#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Prints "X Y", the centre of Tarnwick's item in the status bar of the current display, in the
# pixels of the screen. Prints nothing and fails while there is no such item.
#
# For the hosts of virtual_desktop.sh, where no other program has an item. An XEmbed icon is a
# window of ours inside the host's; a status notifier item is drawn by the panel, all of whose tray
# it fills.
set -euo pipefail

# visible_window_inside HOST NAME: the window NAME within a window HOST; both are instance
# names, HOST a pattern.
visible_window_inside() {
    local host window
    for host in $(xdotool search --onlyvisible --classname "^($1)\$" 2>/dev/null); do
        window=$(xwininfo -tree -id "$host" 2>/dev/null | awk -v name="(\"$2\"" '$3 == name {print $1}')
        [[ -n $window ]] && echo "$window" && return
    done
    return 1
}

print_centre() {
    local X Y WIDTH HEIGHT geometry
    geometry=$(xdotool getwindowgeometry --shell "$1" 2>/dev/null | grep -E '^(X|Y|WIDTH|HEIGHT)=') || return 1
    eval "$geometry"
    # Before it is laid out, and in an empty tray, it is a pixel wide.
    ((WIDTH > 8 && HEIGHT > 8)) || return 1
    echo $((X + WIDTH / 2)) $((Y + HEIGHT / 2))
}

has_status_notifier_item() {
    [[ $(gdbus call --session --timeout 5 --dest org.kde.StatusNotifierWatcher \
        --object-path /StatusNotifierWatcher --method org.freedesktop.DBus.Properties.Get \
        org.kde.StatusNotifierWatcher RegisteredStatusNotifierItems 2>/dev/null) == *"['"* ]]
}

# sway tells nobody where its bar has what: in the middle of waybar's only item, at its right end.
if [[ $XDG_CURRENT_DESKTOP == sway ]]; then
    has_status_notifier_item && xdotool getdisplaygeometry | awk '{ print $1 - 19, 14 }'
elif icon=$(visible_window_inside 'panel|stalonetray' tarnwick); then
    print_centre "$icon"
else
    has_status_notifier_item && tray=$(visible_window_inside xfce4-panel wrapper-2.0) &&
        print_centre "$tray"
fi
