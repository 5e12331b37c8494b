#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""exported_menu.py [LABEL]: what a panel is told about the only status notifier item.

Prints the item's tooltip and then the label of each entry of its menu, or clicks the first entry
whose label starts with LABEL.
"""
import sys

from gi.repository import Gio, GLib

BUS = Gio.bus_get_sync(Gio.BusType.SESSION)
WATCHER = "org.kde.StatusNotifierWatcher"


def call(service, path, interface, method, signature, *arguments):
    return BUS.call_sync(service, path, interface, method, GLib.Variant(signature, arguments), None,
                         Gio.DBusCallFlags.NO_AUTO_START, 5000, None).unpack()


def read(service, path, interface, name):
    return call(service, path, "org.freedesktop.DBus.Properties", "Get", "(ss)", interface, name)[0]


def call_menu(method, signature, *arguments):
    return call(service, menu, "com.canonical.dbusmenu", method, signature, *arguments)


items = read(WATCHER, "/StatusNotifierWatcher", WATCHER, "RegisteredStatusNotifierItems")
service, slash, path = items[0].partition("/")
path = slash + path or "/StatusNotifierItem"
menu = read(service, path, "org.kde.StatusNotifierItem", "Menu")
root = call_menu("GetLayout", "(iias)", 0, -1, [])[1]
entries = [(identifier, properties.get("label", "")) for identifier, properties, _ in root[2]]
if len(sys.argv) > 1:
    clicked = next(i for i, label in entries if label.startswith(sys.argv[1]))
    call_menu("Event", "(isvu)", clicked, "clicked", GLib.Variant("i", 0), 0)
else:
    print(read(service, path, "org.kde.StatusNotifierItem", "ToolTip")[2])
    print("\n".join(label for _, label in entries))
