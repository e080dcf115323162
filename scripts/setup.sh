#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# setup.sh [--dev] [--packages] [--windows]: installs with apt what is missing on Debian 12.
#   (nothing)   to build the library and the demo, and to run the tests
#   --dev       also clang and its tools, sanitizers, fuzzing, documentation, benchmarks, packages
#   --packages  only what of this makes and checks the packages
#   --windows   also what cross-builds for Windows and runs the result: MinGW and Wine
# Uses sudo when it is not run by root. Does nothing, quickly, where everything is there.
set -euo pipefail

base=(ca-certificates ccache cmake fonts-dejavu-core fonts-roboto-unhinted g++ git libkissfft-dev libqt5svg5-dev
    libsodium-dev ninja-build python3 python3-fonttools qtbase5-dev qtbase5-dev-tools qtkeychain-qt5-dev
    qttools5-dev-tools qttranslations5-l10n sox xauth xvfb)
packaging=(abigail-tools dpkg-dev file lintian)
dev=("${packaging[@]}" clang clang-format clang-tidy dbus doxygen gnome-keyring iproute2 libbenchmark-dev
    libclang-rt-14-dev libgstreamer1.0-dev libkf5config-dev libkf5iconthemes-dev libmimalloc-dev libspdlog-dev llvm
    pkgconf python3-pycryptodome qhelpgenerator-qt5 qtwayland5 shellcheck valgrind weston)
windows=(binutils-mingw-w64-x86-64 bzip2 dpkg-dev g++-mingw-w64-x86-64-posix make patch perl qt5-qmake-bin wine
    wine64 xz-utils)

packages=("${base[@]}")
for option in "$@"; do
    case $option in
        --dev) packages+=("${dev[@]}") ;;
        --packages) packages+=("${packaging[@]}") ;;
        --windows) packages+=("${windows[@]}") ;;
        *)
            echo "usage: setup.sh [--dev] [--packages] [--windows]" >&2
            exit 2
            ;;
    esac
done

if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    echo "setup.sh: this system has no apt. Going on with what is installed; needed are (Debian's names):" >&2
    echo "  ${packages[*]}" >&2
    exit 0
fi

installed=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${packages[@]}" 2>/dev/null || true)
missing=()
for package in "${packages[@]}"; do
    grep -qx "installed $package" <<<"$installed" || missing+=("$package")
done
if [ ${#missing[@]} -eq 0 ]; then
    echo "setup.sh: all ${#packages[@]} packages are installed."
    exit 0
fi

root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "setup.sh: not root, and there is no sudo. As root, run:" >&2
        echo "  apt-get install --no-install-recommends ${missing[*]}" >&2
        exit 1
    fi
    root=(sudo)
fi
echo "setup.sh: installing ${missing[*]}"
"${root[@]}" apt-get -q update
"${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q install -y --no-install-recommends "${missing[@]}"
