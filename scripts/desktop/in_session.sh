#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# in_session.sh COMMAND...: becomes the command as a client of the virtual desktop: of its Wayland
# compositor and that one's X server, if it has them, and not of the display on which they stand.
set -euo pipefail
if [[ $XDG_SESSION_TYPE == wayland ]]; then
    unset DISPLAY
    export WAYLAND_DISPLAY=wayland-1
    if [[ -e $XDG_RUNTIME_DIR/xwayland ]]; then
        DISPLAY=$(<"$XDG_RUNTIME_DIR/xwayland")
        export DISPLAY
    fi
fi
exec "$@"
