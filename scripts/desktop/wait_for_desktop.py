#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""wait_for_desktop.py PART[,PART] PID: returns once these parts of the desktop are ready.

notifier: a status notifier watcher says that it has a host; tray: the tray selection of the display
has an owner; window-manager; compositor: the socket of a Wayland compositor is there;
desktop: GNOME shows it, and not the overview. Fails after a minute, and when
the process has ended.
"""
import os
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


def is_running(pid):
    with open(f"/proc/{pid}/stat") as stat:
        return stat.read().rpartition(")")[2].split()[0] != "Z"


def main():
    screen = display.Display()
    runtime = os.environ["XDG_RUNTIME_DIR"]
    ready = {
        "notifier": watcher_has_host,
        "tray": lambda: has_tray_selection(screen),
        "window-manager": lambda: has_window_manager(screen),
        "compositor": lambda: os.path.exists(runtime + "/wayland-1"),
        "desktop": lambda: os.path.exists(runtime + "/overview-left"),
    }
    deadline = time.monotonic() + 60
    while not all(ready[part]() for part in sys.argv[1].split(",")):
        if time.monotonic() > deadline or not is_running(sys.argv[2]):
            sys.exit(1)
        time.sleep(0.05)


main()
