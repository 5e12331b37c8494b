#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""accessible_tree.py NAME: what assistive technology finds in the running application NAME.

Prints one line for each item that is showing, down to the first one with a name: left, top, width,
height, role and name, with tabs between them.
"""
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib


def walk(item, depth=0):
    try:
        name = item.get_name()
        if item.get_state_set().contains(Atspi.StateType.SHOWING):
            area = item.get_extents(Atspi.CoordType.SCREEN)
            print(area.x, area.y, area.width, area.height, item.get_role_name(), name,
                  sep="\t")
        if name and depth > 0:
            return
        children = [item.get_child_at_index(i) for i in range(item.get_child_count())]
    except GLib.Error:  # it went away while we looked
        return
    for child in children:
        if child:
            walk(child, depth + 1)


desktop = Atspi.get_desktop(0)
for index in range(desktop.get_child_count()):
    application = desktop.get_child_at_index(index)
    if application and application.get_name() == sys.argv[1]:
        walk(application)
