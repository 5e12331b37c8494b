#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# prove_fresh_root.sh [SUITE [COMMAND...]]: proves that packages.list is complete. Makes a bare Debian
# (bookworm by default, trixie or forky) from the mirror of this machine's package sources, clones
# this repository's HEAD into it and runs the commands there, ./run and ./test by default.
#
# build/fresh/SUITE keeps the logs, the picture of ./run and, unless all went well, the root. Ends
# with 0 if all commands did, with 1 if one failed, and with 77, having said why, where no root can
# be made. Mounts and processes are in namespaces of their own, so they end with this script.
set -euo pipefail
repository=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
suite=${1-bookworm}
(($# > 1)) && commands=("${@:2}") || commands=(./run ./test)
folder=$repository/build/fresh/$suite
root=$folder/root

skip() {
    echo "prove_fresh_root.sh: skipped, because $1"
    exit 77
}

if [[ ! ${TARNWICK_OWN_NAMESPACES-} ]]; then
    ((EUID == 0)) || skip "only root can make a root"
    "$repository/scripts/install_packages.sh" root || skip "debootstrap cannot be installed"
    namespaces=(unshare --mount --pid --fork --kill-child --mount-proc)
    "${namespaces[@]}" true 2>/dev/null || skip "nothing can be mounted here"
    status=0
    TARNWICK_OWN_NAMESPACES=1 "${namespaces[@]}" "${BASH_SOURCE[0]}" "$@" || status=$?
    ((status)) || rm -rf --one-file-system "$root"
    exit "$status"
fi

# Where this machine has the main part of its own Debian from.
own_mirror() {
    # shellcheck disable=SC2016 # apt fills them in
    apt-get indextargets --format '$(ORIGIN) $(LABEL) $(COMPONENT) $(REPO_URI)' 'Created-By: Packages' |
        awk '$1 == "Debian" && $2 == "Debian" && $3 == "main" && !found++ { print $4 }'
}

# With apt's own means, which know this machine's proxies.
mirror_answers() {
    /usr/lib/apt/apt-helper download-file "${mirror}dists/$suite/InRelease" "$folder/InRelease" \
        >"$folder/mirror.log" 2>&1
}

make_root() {
    local script=/usr/share/debootstrap/scripts/$suite
    # A suite that is newer than debootstrap is made as sid is.
    [[ -e $script ]] || script=/usr/share/debootstrap/scripts/sid
    local http_proxy='' https_proxy=''
    eval "$(apt-config shell http_proxy Acquire::http::Proxy https_proxy Acquire::https::Proxy)"
    export http_proxy https_proxy
    debootstrap --variant=minbase --include=ca-certificates "$suite" "$root" "$mirror" "$script" \
        >"$folder/debootstrap.log" 2>&1 || return
    cp /etc/resolv.conf /etc/hosts "$root/etc/"
    {
        # How this machine reaches its mirror, but for what names files of its own.
        apt-config dump | grep -E '^Acquire::(Retries|ForceIPv[46]|https?::)' | grep -v '"/' || true
        # A mirror may lag behind the dates of its release files.
        printf 'Acquire::%s "false";\n' Check-Valid-Until Check-Date
    } >"$root/etc/apt/apt.conf.d/90machine"
    git clone -q "$repository" "$root/home/tarnwick"
    mount -t proc proc "$root/proc"
    mount --rbind /dev "$root/dev"
}

# inside COMMAND LOG: with none of the caller's environment, as on a machine just installed.
inside() {
    local status=0 start=$SECONDS
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
        chroot "$root" /bin/bash -c "cd /home/tarnwick && $1" </dev/null >"$2" 2>&1 || status=$?
    echo "$1 in a bare $suite ended with $status after $((SECONDS - start)) s; its last lines:"
    tail -n 5 "$2"
    return "$status"
}

rm -rf --one-file-system "$folder"
mkdir -p "$folder"
apt-get update >/dev/null 2>&1 || true
mirror=$(own_mirror) || true
[[ $mirror ]] || skip "this machine has no Debian mirror that can be reached"
mirror_answers || skip "the mirror cannot be reached, or has no $suite: $folder/mirror.log"
echo "Making a bare $suite ..."
make_root || skip "no root could be made: $folder/debootstrap.log"

failed=0
for command in "${commands[@]}"; do
    name=$(basename "${command%% *}")
    inside "$command" "$folder/$name.log" && continue
    mirror_answers || skip "the mirror cannot be reached any more"
    failed=1
done
cp "$root"/home/tarnwick/build/screenshots/*.png "$folder" 2>/dev/null || true
exit "$failed"
