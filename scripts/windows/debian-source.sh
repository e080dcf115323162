#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# debian-source.sh PACKAGE DIRECTORY: fetches Debian's source package and unpacks it (with Debian's patches)
# into DIRECTORY, which must not exist. Leaves the package lists of the system alone and needs no root.
set -euo pipefail

if [ $# -ne 2 ]; then
    echo "usage: debian-source.sh PACKAGE DIRECTORY" >&2
    exit 2
fi
package=$1
target=$2

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -p "$scratch/lists/partial" "$scratch/cache/archives/partial" "$scratch/sources"

# The same mirror and keys as the packages of this machine, asked for sources. Only Debian's own.
for file in /etc/apt/sources.list.d/*.sources; do
    [ -e "$file" ] && grep -q /debian "$file" && sed 's/^Types:.*/Types: deb-src/' "$file" >"$scratch/sources/${file##*/}"
done
for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
    [ -e "$file" ] && sed -n '/\/debian/s/^deb \(.*\)/deb-src \1/p' "$file" >"$scratch/sources/${file##*/}"
done
options=(-o "Dir::Etc::SourceList=/dev/null" -o "Dir::Etc::SourceParts=$scratch/sources"
    -o "Dir::State::Lists=$scratch/lists" -o "Dir::Cache=$scratch/cache" -o "APT::Sandbox::User=$(id -un)"
    -o "APT::Update::Post-Invoke-Success::=" -q)
apt-get "${options[@]}" update >&2
mkdir "$scratch/download"
(cd "$scratch/download" && apt-get "${options[@]}" source --download-only "$package" >&2)
dpkg-source -x "$scratch"/download/*.dsc "$target" >&2
