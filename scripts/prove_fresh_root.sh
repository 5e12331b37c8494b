#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# prove_fresh_root.sh [FOLDER]: proves that packages.list is complete. Makes a bare Debian 12 in
# FOLDER (a temporary one by default), clones this repository's HEAD into it and runs ./run without
# a display and ./test there. Needs root and debootstrap. The root stays for a look at it; the logs
# are FOLDER/run.log and FOLDER/test.log.
set -euo pipefail
repository=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
folder=${1:-$(mktemp -d "${TMPDIR:-/tmp}/tarnwick-fresh.XXXXXX")}
root=$folder/root
mkdir -p "$folder"

debootstrap --variant=minbase bookworm "$root" http://deb.debian.org/debian >"$folder/debootstrap.log"
cp /etc/resolv.conf /etc/hosts "$root/etc/"
git clone -q "$repository" "$root/home/tarnwick"

mounted=()
unmount() {
    local i
    for ((i = ${#mounted[@]} - 1; i >= 0; i--)); do umount "${mounted[i]}"; done
}
trap unmount EXIT
mount_into() {
    mount "${@:2}" "$root$1"
    mounted+=("$root$1")
}
mount_into /proc -t proc proc
mount_into /dev --bind /dev
mount_into /dev/pts --bind /dev/pts

# inside COMMAND LOG: with none of the caller's environment, as on a machine just installed.
inside() {
    local status=0
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
        chroot "$root" /bin/bash -c "cd /home/tarnwick && $1" </dev/null >"$folder/$2" 2>&1 || status=$?
    echo "$1 ended with $status; its last lines:"
    tail -n 5 "$folder/$2"
}
inside ./run run.log
inside ./test test.log
