#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""folder_to_drag.py DIR: a square in the upper left corner of the screen, from which DIR can be
dragged as from a file manager; prints a line when it is there and ends when it is killed."""
import pathlib
import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gtk

window = Gtk.Window(type=Gtk.WindowType.POPUP)  # which no window manager places elsewhere
window.set_default_size(40, 40)
window.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, [], Gdk.DragAction.COPY | Gdk.DragAction.MOVE)
window.drag_source_add_uri_targets()
window.connect("drag-data-get", lambda _window, _context, data, *_:
               data.set_uris([pathlib.Path(sys.argv[1]).as_uri()]))
window.connect("map-event", lambda *_: print("ready", flush=True))
window.show_all()
Gtk.main()
