#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs a command in a private desktop with a tray and returns the command's exit status, or 77 if
# such a desktop cannot run here:
#
#   virtual_desktop.sh [--host NAME] [--size 1280x800] [--dark | --dark-panel] [--scale N]
#                      [--no-accessibility] -- COMMAND...
#
# NAME is one of desktop/hosts.list, xfce4-panel by default, or none. The command sees its own
# display, session bus, accessibility bus, HOME and XDG folders, and nothing of the caller's desktop.
# It starts once the tray host takes icons, not earlier: Qt picks its tray protocol when the first
# icon is made. A Wayland compositor stands in a window on the X display of the command, which can so
# take pictures and move the pointer; desktop/in_session.sh starts what shall be the compositor's
# client. --size counts logical pixels: with --scale 2 the screen has twice as many each way. Theme,
# font and scale are given by XSettings, see desktop/desktop_theme.sh; --dark-panel leaves the
# applications light, on Plasma only.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
desktop=$scripts/desktop

usage() { sed -n '6,7s/^# *//p' "${BASH_SOURCE[0]}" >&2; exit 64; }

host=xfce4-panel size=1280x800 theme=light scale=1 accessibility=true
while (($#)); do
    case $1 in
    --host) host=${2-}; shift 2 || usage ;;
    --size) size=${2-}; shift 2 || usage ;;
    --scale) scale=${2-}; shift 2 || usage ;;
    --dark | --dark-panel) theme=${1#--}; shift ;;
    --no-accessibility) accessibility=false; shift ;;
    --) shift; break ;;
    *) usage ;;
    esac
done
[[ $size =~ ^[0-9]+x[0-9]+$ && $scale =~ ^[1-4]$ ]] || usage
(($#)) || usage
desktop_name=XFCE session=panel ready=
if [[ $host != none ]]; then
    read -r _ _ desktop_name session ready _ < <(grep "^$host " "$desktop/hosts.list") || usage
fi

for program in Xvfb dbus-daemon gdbus openbox xsettingsd hsetroot python3; do
    command -v "$program" >/dev/null && continue
    echo "virtual_desktop.sh: $program is missing; run $scripts/install_packages.sh desktop" >&2
    exit 69
done

home=$(mktemp -d "${TMPDIR:-/tmp}/tarnwick-desktop.XXXXXX")
logs=$home/logs
pids=()

# shellcheck disable=SC2317,SC2329 # called at the end
stop_everything() {
    trap - EXIT
    local pid
    for ((pid = ${#pids[@]} - 1; pid >= 0; pid--)); do
        kill "${pids[pid]}" 2>/dev/null || true
        wait "${pids[pid]}" 2>/dev/null || true
    done
    # Services that the bus started end by themselves when it has gone, some after a last file.
    local deadline=$((SECONDS + 10))
    until rm -rf "$home" 2>/dev/null || ((SECONDS > deadline)); do sleep 0.1; done
}
trap stop_everything EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

# Starts a process that ends with this script, even when the script is killed outright.
start() {
    setpriv --pdeathsig TERM -- "$@" >>"$logs/$(basename "$1").log" 2>&1 &
    pids+=($!)
}

# Starts a process that writes one line to descriptor 3, and puts the line into $answer.
start_and_read() {
    mkfifo "$home/answer"
    exec 3<>"$home/answer"
    rm "$home/answer"
    start "$@"
    read -r -t 30 answer <&3 || give_up "$1 did not start"
    exec 3>&-
}

give_up() {
    echo "virtual_desktop.sh: $1" >&2
    tail -n 20 "$logs"/*.log >&2
    local status=0
    kill -0 "${pids[-1]}" 2>/dev/null || wait "${pids[-1]}" || status=$?
    ((status == 77)) || status=70
    exit "$status"
}

enter_private_environment() {
    local name
    for name in $(compgen -e); do
        case $name in
        XDG_* | QT_* | GTK_* | GDK_* | GIT_* | DBUS_* | DISPLAY | WAYLAND_* | XAUTHORITY) unset "$name" ;;
        SESSION_MANAGER | DESKTOP_SESSION | AT_SPI_* | NO_AT_BRIDGE | LC_* | LANGUAGE) unset "$name" ;;
        esac
    done
    export HOME=$home LANG=C.UTF-8 GIT_CONFIG_NOSYSTEM=1 GSETTINGS_BACKEND=keyfile
    export XDG_CONFIG_HOME=$home/.config XDG_DATA_HOME=$home/.local/share XDG_CACHE_HOME=$home/.cache
    export XDG_STATE_HOME=$home/.local/state XDG_RUNTIME_DIR=$home/.runtime
    export XDG_CONFIG_DIRS=/etc/xdg XDG_DATA_DIRS=/usr/local/share:/usr/share
    export XDG_CURRENT_DESKTOP=$desktop_name XDG_SESSION_TYPE=x11
    [[ $session != wayland ]] || XDG_SESSION_TYPE=wayland
    export TARNWICK_DESKTOP_SCALE=$scale TARNWICK_DESKTOP_READY=$ready TARNWICK_DESKTOP_THEME=$theme
    export TARNWICK_DESKTOP_SIZE=$((${size%x*} * scale))x$((${size#*x} * scale))
    # What a program leaves in its temporary folder when it is killed goes with the desktop.
    export TMPDIR=$home/tmp
    mkdir -p "$TMPDIR" "$logs" "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$XDG_CACHE_HOME" "$XDG_STATE_HOME"
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    # Where a panel finds it that draws the item's icon by name.
    local icons=$XDG_DATA_HOME/icons/hicolor/symbolic/apps
    mkdir -p "$icons"
    cp "$scripts"/../resources/icons/*-symbolic.svg "$icons"
}

start_desktop() {
    start_and_read Xvfb -displayfd 3 -screen 0 "${TARNWICK_DESKTOP_SIZE}x24" -dpi $((96 * scale)) \
        -nolisten tcp -noreset
    export DISPLAY=:$answer
    start_and_read dbus-daemon --session --nofork --print-address=3 \
        --address="unix:path=$XDG_RUNTIME_DIR/bus"
    # What the shells ask the system for is not there either, but they want a bus that says so.
    export DBUS_SESSION_BUS_ADDRESS=$answer DBUS_SYSTEM_BUS_ADDRESS=$answer
    "$desktop/desktop_theme.sh" "${theme%-panel}"
    start xsettingsd
    echo "${pids[-1]}" >"$XDG_RUNTIME_DIR/xsettingsd.pid"
    gdbus call --session --dest org.a11y.Bus --object-path /org/a11y/bus \
        --method org.freedesktop.DBus.Properties.Set org.a11y.Status IsEnabled "<$accessibility>" \
        >"$logs/accessibility.log" 2>&1 || give_up "the accessibility bus did not start"
    [[ $session == panel ]] || return 0
    start openbox --sm-disable
    "$desktop/wait_for_desktop.py" window-manager "${pids[-1]}" || give_up "openbox did not start"
}

enter_private_environment
start_desktop
if [[ $host != none ]]; then
    start "$desktop/tray_host.sh" "$host"
    "$desktop/wait_for_desktop.py" "$ready" "${pids[-1]}" || give_up "$host did not come up"
fi

setpriv --pdeathsig TERM -- "$@" <&0 &
pids+=($!)
status=0
wait "$!" || status=$?
exit "$status"
