#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# trace_sockets.sh PROGRAM: on a virtual desktop, starts PROGRAM under strace, refreshes, opens the
# menu, a panel and the settings, and quits. Fails if the program or a child of it has made an
# internet socket. The last line counts; without the right to trace, the test is skipped.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
program=$1

if ! strace -o /dev/null true 2>/dev/null; then
    echo "Skipped: strace is missing or may not trace here"
    echo "Totals: 0 passed, 0 failed, 1 skipped"
    exit
fi

folder=$(mktemp -d "${TMPDIR:-/tmp}/tarnwick-trace.XXXXXX")
repository=$("$scripts/sample_repositories.sh" "$folder/repositories" 1)
mkdir -p "$folder/config/tarnwick"
printf '{"repos": "%s", "refreshOnMenuOpen": true}\n' "$repository" >"$folder/config/tarnwick/preferences.json"
XDG_CONFIG_HOME=$folder/config strace -D -f -qq -e trace=socket -o "$folder/trace" "$program" >"$folder/log" 2>&1 &
pid=$!
trap 'kill "$pid" 2>/dev/null || true; wait "$pid" 2>/dev/null || true; rm -rf "$folder"' EXIT

give_up() {
    echo "trace_sockets.sh: $1" >&2
    tail -n 20 "$folder/log" >&2
    echo "Totals: 0 passed, 1 failed, 0 skipped"
    exit 1
}

# wait_for COMMAND...: repeats the command until it succeeds.
wait_for() {
    local deadline=$((SECONDS + 60))
    until "$@"; do
        ((SECONDS < deadline)) || give_up "waited a minute for: $*"
        sleep 0.2
    done
}

# call METHOD ARGUMENT...: of the running program, as desktops call it.
call() {
    gdbus call --session --dest org.tarnwick.Tarnwick --object-path /org/tarnwick/Tarnwick \
        --method "org.freedesktop.Application.$1" "${@:2}" >/dev/null 2>&1
}
shows() { "$scripts/accessible_tree.py" Tarnwick | cut -f 6 | grep -x "$1.*" >/dev/null; }
statuses() { (($(grep -c ' status -sb' "$folder/log") >= $1)); }
open_panel() {
    # shellcheck disable=SC2046 # two numbers
    xdotool mousemove $("$scripts/accessible_tree.py" Tarnwick |
        awk -F '\t' '$5 == "menu item" { print int($1 + $3 / 2), int($2 + $4 / 2) }')
    shows "Show in Finder"
}
has_ended() { ! kill -0 "$pid" 2>/dev/null; }

wait_for "$scripts/status_item_position.sh" >/dev/null
wait_for statuses 1
call ActivateAction refresh '[]' '{}'
wait_for statuses 2
call Activate '{}'
wait_for shows "Refresh all"
wait_for shows "project-001, branch main, ."
wait_for open_panel
xdotool key Escape Escape
call ActivateAction settings '[]' '{}'
wait_for shows "Settings"
call ActivateAction quit '[]' '{}'
wait_for has_ended

# Those to the display and to the session bus show that sockets are seen.
local_sockets=$(grep -c 'AF_UNIX' "$folder/trace") || give_up "no socket at all was seen"
if grep -E 'AF_INET6?\b' "$folder/trace"; then give_up "made an internet socket"; fi
echo "$local_sockets local sockets, no internet socket"
echo "Totals: 1 passed, 0 failed, 0 skipped"
