#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# try_menu.sh PROGRAM FOLDER OUTPUT: on a virtual desktop, starts PROGRAM with the preferences in
# FOLDER/config and does with its item what a user would, with real pointer and keys. Saves pictures
# in the folder OUTPUT and prints what was seen.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
program=$1 folder=$2 output=$3

picture() { import -window root "png:$output/$1.png"; }
tree() { "$scripts/accessible_tree.py" Tarnwick; }
menu_is_open() { tree | grep "Refresh all" >/dev/null; }
menu_is_closed() { ! menu_is_open; }
panel_is_open() { tree | grep -P "\tbutton\tShow in Finder" >/dev/null; }
panel_is_closed() { ! panel_is_open; }
say() { printf '%-16s %s\n' "$1" "$2"; }
# report WHAT DOES OBJECT COMMAND...: says whether it does so.
report() { if "${@:4}"; then say "$1" "$2 $3"; else say "$1" "does not ${2%s} $3"; fi; }
pointer() { xdotool mousemove "$1" "$2" sleep 0.2; }

# within SECONDS COMMAND...: repeats the command until it succeeds.
within() {
    local deadline=$((SECONDS + $1))
    until "${@:2}"; do
        ((SECONDS < deadline)) || return 1
        sleep 0.2
    done
}

screen_at_rest() {
    local before
    before=$(import -window root rgb:- | md5sum) && sleep 0.5 &&
        [[ $(import -window root rgb:- | md5sum) == "$before" ]]
}

# saw NAME BEFORE: takes the picture NAME of the screen at rest and puts the area in which it differs
# from the picture BEFORE into $area.
saw() {
    within 10 screen_at_rest || say "$1" "the screen does not come to rest"
    picture "$1"
    read -r -a area < <("$scripts/changed_area.sh" "$output/$2.png" "$output/$1.png")
}

start_program() {
    XDG_CONFIG_HOME=$folder/config "$scripts/in_session.sh" "$program" >"$output/program.log" 2>&1 &
    pid=$!
    trap 'kill "$pid" 2>/dev/null || true; wait "$pid" 2>/dev/null || true' EXIT
}

has_tray() { [[ $TARNWICK_DESKTOP_READY =~ notifier|tray ]]; }

# By the item; where the host shows the exported menu instead, as GNOME's top bar does, by its first
# entry; where there is no place for an item, by a second start.
open_menu() {
    if ! has_tray; then
        opened_by="a second start"
        XDG_CONFIG_HOME=$folder/config timeout 5 "$scripts/in_session.sh" "$program" || true
        within 4 menu_is_open
        return
    fi
    opened_by="a click on the item"
    pointer "${item[@]}"
    xdotool click 1
    within 4 menu_is_open && return
    opened_by="the first entry of the exported menu"
    saw exported item || return 1
    pointer $((area[0] + area[2] / 2)) $((2 * item[1] + 31 * TARNWICK_DESKTOP_SCALE))
    xdotool click 1
    within 4 menu_is_open
}

hover_row() {
    local menu=("${area[@]}") left top x y
    read -r left top < <(tree | awk -F '\t' '$5 == "popup menu" && !found++ { print $1, $2 }')
    read -r x y < <(tree | awk -F '\t' '$5 == "menu item" && !found++ {
        print int($1 + $3 / 2), int($2 + $4 / 2) }')
    pointer $((menu[0] + (x - left) * TARNWICK_DESKTOP_SCALE - 20)) \
        $((menu[1] + (y - top) * TARNWICK_DESKTOP_SCALE))
    xdotool mousemove_relative 20 0
}

# Away from the menu, from where pointer and panels are.
click_outside() {
    local width=${TARNWICK_DESKTOP_SIZE%x*} height=${TARNWICK_DESKTOP_SIZE#*x}
    local x=60
    ((menu_area[0] > width / 2)) || x=$((width - 60))
    pointer "$x" $((height * 2 / 3))
    xdotool click 1
}

find_item() {
    saw item desktop || { say item "not seen"; exit 1; }
    item=($((area[0] + area[2] / 2)) $((area[1] + area[3] / 2)))
    convert "$output/item.png" -crop "64x40+$((item[0] - 32))+$((item[1] > 20 ? item[1] - 20 : 0))" \
        +repage -scale 800% "$output/glyph.png"
    say item "${area[2]}x${area[3]} at ${area[0]},${area[1]}"
}

pointer 200 300
within 10 screen_at_rest || true
picture desktop
start_program
sleep 3
if has_tray; then
    find_item
else
    within 10 screen_at_rest || true
    picture item
fi
open_menu || { say menu "does not open"; exit 1; }
saw menu item
menu_area=("${area[@]}")
say menu "${area[2]}x${area[3]} at ${area[0]},${area[1]}, opened by $opened_by"

hover_row
if within 5 panel_is_open; then
    saw panel menu
    say panel "${area[2]}x${area[3]} at ${area[0]},${area[1]}"
else
    picture panel
    say panel "does not open"
fi

xdotool key Escape
if within 2 menu_is_closed; then
    say Escape "closes panel and menu"
else
    panel_is_open || say Escape "closes the panel"
    xdotool key Escape
    report Escape closes "the menu" within 2 menu_is_closed
fi

menu_is_closed || ! has_tray || { pointer "${item[@]}"; xdotool click 1; within 2 menu_is_closed || true; }
open_menu || { say menu "does not open again"; exit 1; }
xdotool key k e s Right
report keys opens "a panel" within 3 panel_is_open
within 10 screen_at_rest || true
picture keys
has_tray || exit 0 # a window stays
click_outside
report "click outside" closes "panel and menu" within 2 menu_is_closed
picture closed

menu_is_closed || xdotool key Escape
pointer "${item[@]}"
xdotool click 3
report "right click" opens "a menu" saw context item
