#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# photograph_menu.sh PROGRAM FOLDER PNG: on the current display, starts PROGRAM with the preferences
# in FOLDER/config, opens its menu by a click, waits until the screen is at rest and takes a picture.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
program=$1 folder=$2 output=$3

XDG_CONFIG_HOME=$folder/config "$program" >"$folder/program.log" 2>&1 &
pid=$!
trap 'kill "$pid" 2>/dev/null || true; wait "$pid" 2>/dev/null || true' EXIT

give_up() {
    echo "photograph_menu.sh: $1" >&2
    tail -n 20 "$folder/program.log" >&2
    exit 70
}
take_picture() { import -window root "png:$1"; }
checksum() { take_picture "$folder/now.png" && convert "$folder/now.png" rgb:- | md5sum; }

wait_until_at_rest() {
    local before='' now
    for ((i = 0; i < 40; i++)); do
        now=$(checksum)
        [[ $now == "$before" ]] && return
        before=$now
        sleep 0.4
    done
}

for ((i = 0; i < 100; i++)); do
    position=$("$scripts/status_item_position.sh") && break
    kill -0 "$pid" 2>/dev/null || give_up "the program ended"
    sleep 0.2
done
[[ -n ${position-} ]] || give_up "no item appeared in the status bar"
wait_until_at_rest
closed=$(checksum)
for ((i = 0; i < 5; i++)); do
    # shellcheck disable=SC2086 # two numbers
    xdotool mousemove $position click 1
    wait_until_at_rest
    [[ $(checksum) != "$closed" ]] && break
done
[[ $(checksum) != "$closed" ]] || give_up "the menu did not open"
take_picture "$output"
