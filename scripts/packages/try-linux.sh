#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# Run by check-packages.sh inside of a bare Debian.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive
quietly() {
    "$@" >/root/log 2>&1 || {
        tail -n 60 /root/log >&2
        exit 1
    }
}
traces() { find / -xdev -path /root -prune -o -iname '*pyxruntime*' -print; }

cd /root/packages
quietly apt-get -q update
echo "=== the runtime package alone"
quietly apt-get -q install -y --no-install-recommends ./libpyxruntime[0-9]*.deb
library=$(dpkg -L "$(dpkg-deb -f ./libpyxruntime[0-9]*.deb Package)" | grep '\.so\.[0-9]*$')
if ldd "$library" | grep 'not found'; then exit 1; fi
ldconfig -p | grep -F "${library##*/}"

echo "=== the development package, and the programs"
quietly apt-get -q install -y --no-install-recommends ./libpyxruntime-*.deb
quietly apt-get -q install -y --no-install-recommends cmake g++ ninja-build
/root/trial/trial.sh /usr ""
xargs rm -f </root/trial/build-consumer/install_manifest.txt

echo "=== removed again"
quietly apt-get -q purge -y libpyxruntime-dev libpyxruntime-l10n "libpyxruntime[0-9]*"
left=$(traces)
if [ -n "$left" ] || ldconfig -p | grep -i pyxruntime; then
    printf 'try-linux.sh: the packages left behind:\n%s\n' "$left" >&2
    exit 1
fi

echo "=== the archive"
mkdir /opt/pyx
tar -C /opt/pyx --strip-components 1 -xf PYXRuntime-*.tar.gz
/root/trial/trial.sh /opt/pyx ""
