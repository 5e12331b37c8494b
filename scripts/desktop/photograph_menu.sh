#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# photograph_menu.sh PROGRAM FOLDER PNG [ROW [LETTERS]]: on the current display, starts PROGRAM with
# the preferences in FOLDER/config, opens its menu by a click, waits until nothing turns in it any
# more, opens the panel of ROW, types LETTERS and takes a picture of the screen.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
program=$1 folder=$2 output=$3 row=${4-} letters=${5-}

XDG_CONFIG_HOME=$folder/config "$program" >"$folder/program.log" 2>&1 &
pid=$!
trap 'kill "$pid" 2>/dev/null || true; wait "$pid" 2>/dev/null || true' EXIT

give_up() {
    echo "photograph_menu.sh: $1" >&2
    tail -n 20 "$folder/program.log" >&2
    exit 70
}

# wait_for COMMAND...: repeats the command until it succeeds.
wait_for() {
    local deadline=$((SECONDS + 60))
    until "$@"; do
        kill -0 "$pid" 2>/dev/null || give_up "the program ended"
        ((SECONDS < deadline)) || give_up "waited a minute for: $*"
        sleep 0.2
    done
}

# A panel that has just started still moves its plugins.
item_at_rest() {
    local here
    here=$("$scripts/status_item_position.sh") && sleep 0.4 &&
        [[ $("$scripts/status_item_position.sh") == "$here" ]] && echo "$here"
}

# Beside the menu, only the icon in an XEmbed tray is a visible window of the program.
open_menu() {
    local window width
    for window in $(xdotool search --onlyvisible --classname '^tarnwick$' 2>/dev/null); do
        width=$(xdotool getwindowgeometry --shell "$window" 2>/dev/null | sed -n 's/^WIDTH=//p')
        ((width > 100)) && echo "$window" && return
    done
    return 1
}

menu_at_rest() {
    local before
    before=$(import -window "$1" rgb:- | md5sum) && sleep 0.4 &&
        [[ $(import -window "$1" rgb:- | md5sum) == "$before" ]]
}

row_middle() {
    "$scripts/accessible_tree.py" Tarnwick |
        awk -F '\t' -v row="$row" -v scale="${TARNWICK_DESKTOP_SCALE:-1}" '$5 == "menu item" && index($6, row) == 1 && !found++ {
            print int(($1 + $3 / 2) * scale), int(($2 + $4 / 2) * scale) }' | grep .
}

open_panel() { "$scripts/accessible_tree.py" Tarnwick | grep -P "\tbutton\tShow in Finder" >/dev/null; }

position=$(wait_for item_at_rest)
# shellcheck disable=SC2086 # two numbers
xdotool mousemove $position click 1
menu=$(wait_for open_menu)
wait_for menu_at_rest "$menu"
if [[ $row ]]; then
    middle=$(wait_for row_middle)
    # shellcheck disable=SC2086 # two numbers
    xdotool mousemove $middle
    wait_for open_panel
    wait_for menu_at_rest root
fi
if [[ $letters ]]; then
    xdotool type "$letters"
    sleep 0.5
fi
import -window root "png:$output"
