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
# shellcheck source=scripts/windows/find-qt.sh
source scripts/windows/find-qt.sh

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

scripts/setup.sh --windows || cannot "the packages of MinGW and Wine cannot be installed here."
command -v x86_64-w64-mingw32-g++-posix >/dev/null || cannot "there is no x86_64-w64-mingw32-g++-posix."
[ -x /usr/lib/wine/wine64 ] || cannot "there is no /usr/lib/wine/wine64."

lock_wine
find_qt
export WINKISSFFT_PREFIX=${WINKISSFFT_PREFIX:-$cache/kissfft-mingw}
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
