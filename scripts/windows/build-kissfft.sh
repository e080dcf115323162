#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# build-kissfft.sh PREFIX: cross-builds KissFFT (float, static) for Windows from Debian's source package and
# installs it in the layout of Debian's libkissfft-dev. Does nothing where PREFIX already holds it.
set -euo pipefail
here=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)

if [ $# -ne 1 ]; then
    echo "usage: build-kissfft.sh PREFIX" >&2
    exit 2
fi
prefix=$1
triple=x86_64-w64-mingw32
[ -e "$prefix/lib/libkissfft-float.a" ] && exit 0

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$here/debian-source.sh" kissfft "$scratch/kissfft"
cmake -S "$scratch/kissfft" -B "$scratch/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_SYSTEM_NAME=Windows -DCMAKE_C_COMPILER=$triple-gcc-posix -DCMAKE_CXX_COMPILER=$triple-g++-posix \
    -DCMAKE_FIND_ROOT_PATH_MODE_PROGRAM=NEVER -DCMAKE_INSTALL_PREFIX="$scratch/prefix" \
    -DCMAKE_INSTALL_LIBDIR=lib -DCMAKE_INSTALL_INCLUDEDIR=include -DCMAKE_C_FLAGS=-w \
    -DKISSFFT_DATATYPE=float -DKISSFFT_STATIC=ON -DKISSFFT_TEST=OFF -DKISSFFT_TOOLS=OFF -DKISSFFT_PKGCONFIG=OFF
cmake --build "$scratch/build" -j 2
cmake --install "$scratch/build"
# The prefix appears whole or not at all.
mkdir -p "$(dirname "$prefix")"
rm -rf "$prefix"
mv "$scratch/prefix" "$prefix"
