# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
# shellcheck shell=bash
#
# To be sourced: makes a bare Debian 12 in a directory and runs scripts in it. Needs root and Debian's mirror, which is
# taken from this machine's apt.

# bare_debian ROOT: ROOT must not exist; its parent gets debootstrap.log.
bare_debian() {
    local root=$1 log indices mirror
    log=$(dirname -- "$root")/debootstrap.log
    if [ "$(id -u)" -ne 0 ]; then
        echo "$0: must be run as root." >&2
        exit 1
    fi
    if ! command -v debootstrap >/dev/null; then
        apt-get -q update
        DEBIAN_FRONTEND=noninteractive apt-get -q install -y --no-install-recommends debootstrap
    fi
    # shellcheck disable=SC2016 # apt's own placeholders
    indices=$(apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' "Created-By: Packages" 2>/dev/null || true)
    mirror=$(awk '$2 == "bookworm" && $3 == "main" { print $1; exit }' <<<"$indices")
    [ -n "$mirror" ] || mirror=http://deb.debian.org/debian
    echo "${0##*/}: making a bare Debian 12 from $mirror"
    debootstrap --variant=minbase bookworm "$root" "$mirror" >"$log" 2>&1 || {
        tail -n 40 "$log" >&2
        exit 1
    }
    # The network as this machine has it.
    cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
    apt-config dump | grep '^Acquire::https\?::Proxy' >"$root/etc/apt/apt.conf.d/99proxy" || true
    echo "deb $mirror bookworm main" >"$root/etc/apt/sources.list"
    awk '$2 ~ /^bookworm-/ && $3 == "main" { print "deb " $1 " " $2 " main" }' <<<"$indices" >>"$root/etc/apt/sources.list"
}

# in_bare_debian ROOT SCRIPT [NAME=VALUE...]: runs SCRIPT, a path as seen inside. Mounts are made in a name space of
# their own, which ends before this.
in_bare_debian() {
    # shellcheck disable=SC2016 # expanded by the inner shell
    unshare --mount --pid --fork bash -c '
        set -e
        root=$1 script=$2
        shift 2
        mount -t proc proc "$root/proc"
        mount --rbind /sys "$root/sys"
        mount --rbind /dev "$root/dev"
        exec chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 "$@" bash "$script"
    ' bash "$@"
}
