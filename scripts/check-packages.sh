#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# check-packages.sh [--windows]: tries what package.sh has left in build/packages as somebody does who got nothing
# else: the .deb files are installed with apt in a bare Debian 12 and removed again, and the archive is unpacked there;
# against both, the README's first application and tests/install/consumer are built and run. Needs root, 2 GB of disk
# below TMPDIR, and Debian's mirror.
#   --windows   the .zip instead, with MinGW and Wine
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/bare-debian.sh
source scripts/bare-debian.sh
packages=$PWD/build/packages
scratch=$(mktemp -d)
trap 'rm -rf --one-file-system "$scratch"' EXIT

# block START KIND: the first code block of that kind after a line of README.md that begins with START.
block() {
    awk -v start="$1" -v kind="\`\`\`$2" '
        index($0, start) == 1 { after = 1 }
        inside && $0 == "```" { exit }
        inside { print }
        after && $0 == kind { inside = 1 }' README.md
}

# only NAME...: there is one file of that name, and this is it.
only() {
    if [ $# -ne 1 ] || [ ! -e "$1" ]; then
        echo "check-packages.sh: there should be one $1; make it with package.sh" >&2
        exit 1
    fi
    printf '%s\n' "$1"
}

# What is built against every package, and how to see that it works.
make_trial() {
    mkdir -p "$1/first"
    block "## A first application" cpp >"$1/first/main.cpp"
    {
        echo "cmake_minimum_required(VERSION 3.25)"
        echo "project(FirstSteps LANGUAGES CXX)"
        block "Its \`CMakeLists.txt\`" cmake
    } >"$1/first/CMakeLists.txt"
    cp -r tests/install/consumer "$1/consumer"
    cp scripts/packages/trial.sh "$1/trial.sh"
}

check_linux() {
    local root=$scratch/root deb=() archive
    deb=("$(only "$packages"/libpyxruntime[0-9]*.deb)" "$(only "$packages"/libpyxruntime-l10n_*.deb)"
        "$(only "$packages"/libpyxruntime-dev_*.deb)")
    archive=$(only "$packages"/PYXRuntime-*.tar.gz)
    bare_debian "$root"
    make_trial "$root/root/trial"
    mkdir "$root/root/packages"
    cp "${deb[@]}" "$archive" "$root/root/packages"
    cp scripts/packages/try-linux.sh "$root/root/"
    in_bare_debian "$root" /root/try-linux.sh
}

check_windows() {
    local prefix
    # shellcheck source=scripts/windows/find-qt.sh
    source scripts/windows/find-qt.sh
    find_qt
    lock_wine
    make_trial "$scratch/windows"
    cmake -E chdir "$scratch" cmake -E tar xf "$(only "$packages"/PYXRuntime-*.zip)"
    prefix=$(only "$scratch"/PYXRuntime-*)
    export WINEPREFIX=${WINEPREFIX:-$cache/wine}
    # Wine's server outlives its programs: it runs without the lock, and ends before its display does.
    # shellcheck disable=SC2016 # expanded by the inner shell
    xvfb-run -a -s "-screen 0 1280x1024x24" bash -c '
        scripts/windows/run-wine.sh cmd /c ver
        status=0
        "$@" || status=$?
        wineserver -k || true
        exit $status' bash \
        "$scratch/windows/trial.sh" "$prefix" "$PWD/scripts/windows/run-wine.sh" \
        --toolchain "$PWD/cmake/mingw-toolchain.cmake" -DWINQT_PREFIX="$WINQT_PREFIX" 9>&-
}

case ${1:-} in
    "") check_linux ;;
    --windows) check_windows ;;
    *)
        echo "usage: check-packages.sh [--windows]" >&2
        exit 2
        ;;
esac
echo "check-packages.sh: the packages can be used."
