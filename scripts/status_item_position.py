#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Prints "X Y", the centre of the only tray item on the current display, in real pixels.

Waits up to 30 seconds for the item. Both kinds of tray embed windows: an XEmbed icon is a window of
its own, and xfce4-panel embeds its tray plugin, which is as large as the items it shows. So the item
is the innermost embedded window that is visible and large enough for an icon, once it stays put: a
panel that has just started still moves its plugins.
"""
import sys
import time

from Xlib import X, display, error

smallest_icon = 12


def embedded_windows(screen, window):
    try:
        for child in window.query_tree().children:
            yield from embedded_windows(screen, child)
        if window.get_full_property(screen.intern_atom("_XEMBED_INFO"), X.AnyPropertyType):
            yield window
    except error.BadWindow:
        pass


def centre(screen, window):
    try:
        size = window.get_geometry()
        if window.get_attributes().map_state != X.IsViewable or size.width < smallest_icon:
            return None
        place = window.translate_coords(screen.screen().root, 0, 0)
        return -place.x + size.width // 2, -place.y + size.height // 2
    except error.BadWindow:
        return None


def item_centre(screen):
    for window in embedded_windows(screen, screen.screen().root):
        if place := centre(screen, window):
            return place
    return None


def main():
    screen = display.Display()
    deadline = time.monotonic() + 30
    last, seen = None, 0
    while time.monotonic() < deadline:
        place = item_centre(screen)
        seen = seen + 1 if place == last else 0
        if place and seen == 8:
            print(*place)
            return
        last = place
        time.sleep(0.05)
    sys.exit("status_item_position.py: no tray item appeared")


main()
