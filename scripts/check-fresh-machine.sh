#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# check-fresh-machine.sh: runs test.sh and demo.sh on the last commit in a bare Debian 12 made for it, where a
# package that setup.sh forgets is missed. Needs root, 3 GB of disk below TMPDIR, and Debian's mirror, which is taken
# from this machine's apt.
#   PYX_JOBS   how many jobs at a time (default: one per processor)
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
if [ "$(id -u)" -ne 0 ]; then
    echo "check-fresh-machine.sh: must be run as root." >&2
    exit 1
fi
if ! command -v debootstrap >/dev/null; then
    apt-get -q update
    DEBIAN_FRONTEND=noninteractive apt-get -q install -y --no-install-recommends debootstrap
fi

scratch=$(mktemp -d)
# Mounts are made in a name space of their own, which ends before this.
trap 'rm -rf --one-file-system "$scratch"' EXIT
root=$scratch/root

# shellcheck disable=SC2016 # apt's own placeholders
indices=$(apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' "Created-By: Packages" 2>/dev/null || true)
mirror=$(awk '$2 == "bookworm" && $3 == "main" { print $1; exit }' <<<"$indices")
[ -n "$mirror" ] || mirror=http://deb.debian.org/debian
echo "check-fresh-machine.sh: making a bare Debian 12 from $mirror"
debootstrap --variant=minbase bookworm "$root" "$mirror" >"$scratch/debootstrap.log" 2>&1 || {
    tail -n 40 "$scratch/debootstrap.log" >&2
    exit 1
}
# The network as this machine has it.
cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
apt-config dump | grep '^Acquire::https\?::Proxy' >"$root/etc/apt/apt.conf.d/99proxy" || true
echo "deb $mirror bookworm main" >"$root/etc/apt/sources.list"
awk '$2 ~ /^bookworm-/ && $3 == "main" { print "deb " $1 " " $2 " main" }' <<<"$indices" >>"$root/etc/apt/sources.list"

git clone -q . "$root/root/py x runtime"
cat >"$root/root/try.sh" <<'TRY'
set -euo pipefail
cd "/root/py x runtime"
scripts/test.sh
echo "=== the demo"
scripts/demo.sh
echo "=== both again, with everything there"
scripts/setup.sh
scripts/demo.sh >/dev/null
TRY
# shellcheck disable=SC2016 # expanded by the inner shell
unshare --mount --pid --fork bash -c '
    set -e
    mount -t proc proc "$1/proc"
    mount --rbind /sys "$1/sys"
    mount --rbind /dev "$1/dev"
    exec chroot "$1" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 PYX_JOBS="$2" bash /root/try.sh
' bash "$root" "${PYX_JOBS:-$(nproc)}"
echo "check-fresh-machine.sh: both commands work on a bare Debian 12."
