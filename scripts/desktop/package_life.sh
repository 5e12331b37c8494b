#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# package_life.sh: installs the package that ./package made, uses it on a virtual desktop, upgrades it
# below the running program and removes it. Fails at the first thing that is not as it should be.
#
# By root, and only in a Debian made for it (see ../prove_package.sh): it first removes what was
# needed to build.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
work=$scripts/../build/package
export DEBIAN_FRONTEND=noninteractive

step() { echo "$1 ..."; }
fail() { echo "package_life.sh: $1" >&2; exit 1; }
apt() { apt-get -y "$@" >>"$work/apt.log" 2>&1 || { tail -n 20 "$work/apt.log" >&2; fail "apt-get $*"; }; }

# wait_for COMMAND...: repeats the command until it succeeds.
wait_for() {
    local deadline=$((SECONDS + 60))
    until "$@"; do
        ((SECONDS < deadline)) || fail "waited a minute for: $*"
        sleep 0.2
    done
}

menu_shows() { "$scripts/desktop/accessible_tree.py" Tarnwick | grep -F "$1" >/dev/null; }
item_position() { position=$("$scripts/desktop/status_item_position.sh"); }
is_running() { kill -0 "$1" 2>/dev/null || fail "$2 ended the program"; }

open_menu() {
    wait_for item_position
    # A panel that has just started still moves its plugins.
    sleep 1 && item_position
    # shellcheck disable=SC2086 # two numbers
    xdotool mousemove $position click 1
    wait_for menu_shows sample
    xdotool key Escape
    sleep 0.5
}

on_desktop() {
    local package=$1 newer=$2 preferences=$XDG_CONFIG_HOME/tarnwick/preferences.json before
    git init -q "$HOME/sample"
    mkdir -p "${preferences%/*}"
    echo "{\"repos\": \"$HOME/sample\", \"launchOnStartup\": true}" >"$preferences"

    trap 'kill "$pid" 2>/dev/null || true' EXIT
    step "Starting it"
    tarnwick >"$HOME/tarnwick.log" 2>&1 &
    pid=$!
    open_menu
    wait_for test -e "$XDG_CONFIG_HOME/autostart/org.tarnwick.TarnwickLauncher.desktop"

    step "Upgrading it while it runs"
    apt install "$newer"
    is_running "$pid" "the upgrade"
    open_menu

    step "Removing it while it runs"
    before=$(sha256sum "$preferences")
    apt purge tarnwick
    is_running "$pid" "the removal"
    [[ $(sha256sum "$preferences") == "$before" ]] || fail "the preferences changed"
    kill "$pid"
    wait "$pid" || true
    [[ $(sha256sum "$preferences") == "$before" ]] || fail "the preferences changed"

    step "Installing it again"
    apt install "$package"
    tarnwick >"$HOME/tarnwick.log" 2>&1 &
    pid=$!
    open_menu
    kill "$pid"
}

if [[ ${1-} == --on-desktop ]]; then
    pid=
    on_desktop "${@:2}"
    exit
fi

package=$(realpath "$work"/tarnwick_*.deb)
step "Removing what it was built with"
# Those of other releases are not known here.
# shellcheck disable=SC2016 # dpkg-query fills it in
read -ra tools < <(awk '$1 ~ /^(build|package)/ && $2 != "git" && $2 != "ca-certificates" && $2 !~ /^python3$/ { print $2 }' \
    "$scripts/packages.list" | xargs dpkg-query --show --showformat='${Package}\n' 2>/dev/null | xargs)
apt purge --auto-remove "${tools[@]}"
[[ $(dpkg-query -W -f='${db:Status-Status}' qt6-base-dev libqt6widgets6 2>/dev/null) != *installed* ]] ||
    fail "Qt is still there"

step "Resolving what it recommends"
lacking=$(apt-get --simulate install --install-recommends "$package" | sed -n '/^Recommended packages:/,/^[^ ]/p')
[[ ! $lacking ]] || fail "it recommends what is not to be had: $lacking"

step "Installing it with nothing but what it depends on"
apt install --no-install-recommends "$package"
[[ $(env -u DISPLAY tarnwick --version) == Tarnwick\ * ]] || fail "it does not start"
newer=${package%.deb}-newer.deb
dpkg-deb --raw-extract "$package" "$work/newer"
sed -i 's/^Version: .*/&+newer/' "$work/newer/DEBIAN/control"
dpkg-deb --build --root-owner-group "$work/newer" "$newer" >/dev/null
rm -r "$work/newer"

"$scripts/install_packages.sh" desktop
"$scripts/virtual_desktop.sh" --host xfce4-panel -- "${BASH_SOURCE[0]}" --on-desktop "$package" "$newer"

apt purge tarnwick
left=$(find /usr /etc /var/lib -xdev -iname '*tarnwick*' -not -path '/var/lib/apt/*')
[[ ! $left ]] || fail "left behind: $left"
echo "The package installs, starts, is upgraded, is removed and leaves the preferences alone."
