#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""wait_for_desktop.py xfce4-panel|xembed-tray|window-manager: returns once that part is ready.

The panel is ready when a status notifier watcher says it has a host, the other tray when it owns
the tray selection of the display. Fails after 30 seconds.
"""
import sys
import time

from gi.repository import Gio, GLib
from Xlib import X, display


def watcher_has_host():
    try:
        answer = Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
            "org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher",
            "org.freedesktop.DBus.Properties", "Get",
            GLib.Variant("(ss)", ("org.kde.StatusNotifierWatcher", "IsStatusNotifierHostRegistered")),
            None, Gio.DBusCallFlags.NO_AUTO_START, 2000, None)
        return answer.unpack()[0]
    except GLib.Error:
        return False


def has_tray_selection(screen):
    return screen.get_selection_owner(screen.intern_atom("_NET_SYSTEM_TRAY_S0")) != X.NONE


def has_window_manager(screen):
    return bool(screen.screen().root.get_full_property(
        screen.intern_atom("_NET_SUPPORTING_WM_CHECK"), X.AnyPropertyType))


def main():
    screen = display.Display()
    ready = {
        "xfce4-panel": lambda: watcher_has_host() and has_tray_selection(screen),
        "xembed-tray": lambda: has_tray_selection(screen),
        "window-manager": lambda: has_window_manager(screen),
    }[sys.argv[1]]
    deadline = time.monotonic() + 30
    while not ready():
        if time.monotonic() > deadline:
            sys.exit(1)
        time.sleep(0.05)


main()
