#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# test-windows.sh [CTEST ARGUMENT...]: cross-builds the library, its tests and the demo for Windows with MinGW
# and runs the tests under Wine. Exit status 77: MinGW or Wine cannot be had on this machine.
#   WINQT_PREFIX   a Qt 5.15 for Windows. Without it: the one in the cache; else a ready archive in
#                  ../shared/winqt beside this checkout; else one is built (45 minutes on two processors).
#   PYX_JOBS       how many jobs at a time (default: one per processor)
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
jobs=${PYX_JOBS:-$(nproc)}
cache=${XDG_CACHE_HOME:-$HOME/.cache}/pyxruntime
version=5.15.8

loudly() {
    {
        echo "******************************************************************************"
        echo "*** $1"
        echo "******************************************************************************"
    } >&2
}

cannot() {
    loudly "WINDOWS IS NOT TESTED: $1"
    exit 77
}

unpack_qt() {
    local scratch
    scratch=$(mktemp -d "$cache/unpack.XXXXXX")
    tar -C "$scratch" -xf "$1"
    mv -T "$scratch/winqt-$version" "$cache/winqt-$version"
    rmdir "$scratch"
}

find_qt() {
    local archive
    [ -n "${WINQT_PREFIX:-}" ] && return
    WINQT_PREFIX=$cache/winqt-$version
    [ -d "$WINQT_PREFIX" ] && return
    for archive in ../shared/winqt/winqt-"$version"-*.tar.xz; do
        if [ -e "$archive" ]; then
            echo "Unpacking $archive"
            unpack_qt "$archive"
            return
        fi
    done
    echo "There is no Qt for Windows yet: building one from Debian's sources. This takes about 45 minutes."
    scripts/windows/build-qt-windows.sh "$WINQT_PREFIX"
}

scripts/setup.sh --windows || cannot "the packages of MinGW and Wine cannot be installed here."
command -v x86_64-w64-mingw32-g++-posix >/dev/null || cannot "there is no x86_64-w64-mingw32-g++-posix."
[ -x /usr/lib/wine/wine64 ] || cannot "there is no /usr/lib/wine/wine64."

mkdir -p "$cache"
# One run at a time: the programs of one Wine prefix share its server, and that one display.
exec 9>"$cache/windows.lock"
flock -n 9 || { echo "Waiting for another run of the Windows tests" && flock 9; }
find_qt
export WINQT_PREFIX WINKISSFFT_PREFIX=${WINKISSFFT_PREFIX:-$cache/kissfft-mingw}
examples=ON
if ! scripts/windows/build-kissfft.sh "$WINKISSFFT_PREFIX"; then
    loudly "THE DEMO IS NOT BUILT FOR WINDOWS: KissFFT cannot be fetched."
    examples=OFF
fi

# Found packages stay in CMake's cache: another Qt needs a new one.
fresh=()
grep -qsxF "WINQT_PREFIX:PATH=$WINQT_PREFIX" build/windows/CMakeCache.txt || fresh=(--fresh)
cmake "${fresh[@]}" --preset windows -DWINQT_PREFIX="$WINQT_PREFIX" -DWINKISSFFT_PREFIX="$WINKISSFFT_PREFIX" \
    -DPYX_BUILD_EXAMPLES=$examples
cmake --build --preset windows -j "$jobs"
# Wine's server outlives its programs: it runs without the lock, and ends before its display does.
export WINEPREFIX=${WINEPREFIX:-$cache/wine}
# shellcheck disable=SC2016 # expanded by the inner shell
xvfb-run -a -s "-screen 0 1280x1024x24" bash -c '
    scripts/windows/run-wine.sh cmd /c ver
    status=0
    ctest --preset windows "$@" || status=$?
    wineserver -k || true
    exit $status' bash -j "$jobs" "$@" 9>&-
