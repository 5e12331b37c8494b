#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Becomes weston in a window that fills the current display. Its panel takes no items.
set -euo pipefail
exec weston --backend=x11-backend.so --socket=wayland-1 --scale="$TARNWICK_DESKTOP_SCALE" \
    --width="$((${TARNWICK_DESKTOP_SIZE%x*} / TARNWICK_DESKTOP_SCALE))" \
    --height="$((${TARNWICK_DESKTOP_SIZE#*x} / TARNWICK_DESKTOP_SCALE))"
