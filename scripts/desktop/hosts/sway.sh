#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# sway.sh waybar|swaybar: becomes sway in a window that fills the current display, with that bar. X
# clients find no server there.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
mkdir -p "$XDG_CONFIG_HOME/sway" "$XDG_CONFIG_HOME/waybar"
cat >"$XDG_CONFIG_HOME/sway/config" <<END
xwayland disable
output * mode --custom $TARNWICK_DESKTOP_SIZE
output * scale $TARNWICK_DESKTOP_SCALE
output * background #3f6690 solid_color
bar {
    position top
    swaybar_command true
}
END
cat >"$XDG_CONFIG_HOME/waybar/config" <<END
{
    "layer": "top",
    "position": "top",
    "height": 28,
    "modules-left": ["sway/workspaces"],
    "modules-right": ["tray"],
    "tray": { "icon-size": 18, "spacing": 6 }
}
END

# sway 1.7 refuses to run as root, so root is somebody else to it. The bar is not its child, because
# the session bus would take that for somebody else, too.
as_user=(unshare --user --map-user=1000 --map-group=1000 --)
if ((EUID)) || [[ $(sway --version) != *" 1.7"* ]]; then
    as_user=()
elif ! "${as_user[@]}" true; then
    echo "this sway does not run as root, and there is no other user here" >&2
    exit 77
fi
export WLR_BACKENDS=x11 WLR_RENDERER=pixman
"${as_user[@]}" setpriv --pdeathsig TERM -- sway &
until ls "$XDG_RUNTIME_DIR"/sway-ipc.*.sock >/dev/null 2>&1; do
    kill -0 $!
    sleep 0.05
done
SWAYSOCK=$(ls "$XDG_RUNTIME_DIR"/sway-ipc.*.sock)
export SWAYSOCK
case $1 in
waybar) exec ../in_session.sh waybar ;;
swaybar) exec ../in_session.sh swaybar --bar_id bar-0 ;;
esac
