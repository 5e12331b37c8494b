#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""accessible_tree.py NAME: what assistive technology finds in the running application NAME.

Prints one line for each item that is showing: left, top, width, height, role, name and description,
with tabs between them. What a named control or a row consists of is left out, but for a row's open submenu.
A "push button", as older accessibility libraries call it, is a "button". Positions are those on the
display of the virtual desktop, in sway as well.
"""
import glob
import json
import os
import subprocess
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib


# Roles of what holds items of its own, whatever it is called.
HOLDERS = {"alert", "application", "dialog", "frame", "list", "list item", "page tab list", "panel", "popup menu"}


def role_of(item):
    role = item.get_role_name()
    return "button" if role == "push button" else role


def windows(node):
    yield node
    for child in node["nodes"] + node["floating_nodes"]:
        yield from windows(child)


def menu_origin():
    """A Wayland client does not learn where its menu is; Qt puts that at 0,0, and all else beside it."""
    for socket in glob.glob(os.environ["XDG_RUNTIME_DIR"] + "/sway-ipc.*"):
        tree = subprocess.run(["swaymsg", "-s", socket, "-rt", "get_tree"], capture_output=True, check=True)
        for window in windows(json.loads(tree.stdout)):
            if window.get("app_id") == "org.tarnwick.Tarnwick":
                return window["rect"]["x"], window["rect"]["y"]
    return 0, 0


def walk(item, left, top):
    try:
        name = item.get_name().replace("\n", " ")
        role = role_of(item)
        if item.get_state_set().contains(Atspi.StateType.SHOWING):
            area = item.get_extents(Atspi.CoordType.SCREEN)
            print(left + area.x, top + area.y, area.width, area.height, role, name, item.get_description(), sep="\t")
        if name and role not in HOLDERS and role != "menu item":
            return
        children = [item.get_child_at_index(i) for i in range(item.get_child_count())]
        if role == "menu item":
            children = [c for c in children if c and role_of(c) == "popup menu"]
    except GLib.Error:  # it went away while we looked
        return
    for child in children:
        if child:
            walk(child, left, top)


desktop = Atspi.get_desktop(0)
for index in range(desktop.get_child_count()):
    application = desktop.get_child_at_index(index)
    if application and application.get_name() == sys.argv[1]:
        walk(application, *menu_origin())
