#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Becomes a tray that takes XEmbed icons only, at the top right of the current display: trayer, or
# stalonetray on the Debian releases that no longer have trayer.
set -euo pipefail
pixels=$((28 * TARNWICK_DESKTOP_SCALE))
! command -v trayer >/dev/null ||
    exec trayer --edge top --align right --margin 0 --distance 0 --SetDockType true \
        --expand true --widthtype request --height "$pixels"
exec stalonetray --config /dev/null --geometry 1x1-0+0 --grow-gravity NE --slot-size "$pixels" \
    --icon-size "$pixels" --window-type dock --window-strut top --background '#eeeeee'
