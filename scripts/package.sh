#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# package.sh [--windows]: makes the packages in build/packages from an optimised build of the library alone, with its
# Qt help: three .deb files, which lintian checks where it is installed, and an archive (.tar.gz). Two runs on the same
# commit make the same bytes but for the Qt help.
#   --windows       the .zip for Windows instead, cross-built with MinGW
#   WINQT_PREFIX    see test-windows.sh
#   PYX_JOBS        how many jobs at a time (default: one per processor)
#   PYX_NO_SETUP    not empty: install nothing
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
umask 022
jobs=${PYX_JOBS:-$(nproc)}
packages=$PWD/build/packages
only_library=(-DPYX_BUILD_TESTS=OFF -DPYX_BUILD_EXAMPLES=OFF -DPYX_BUILD_BENCHMARKS=OFF -DPYX_BUILD_DOCS=ON)
if [ -z "${SOURCE_DATE_EPOCH:-}" ] && git rev-parse -q --verify HEAD >/dev/null 2>&1; then
    SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
    export SOURCE_DATE_EPOCH
fi

# pack BUILD PATTERN: the files that cpack makes there take the place of older ones.
pack() {
    local scratch=$PWD/$1/packages
    rm -rf "$scratch"
    (cd "$1" && cpack -B "$scratch" >"$scratch.log" 2>&1) || {
        tail -n 40 "$scratch.log" >&2
        exit 1
    }
    mkdir -p "$packages"
    find "$packages" -maxdepth 1 -name "$2" -delete
    find "$scratch" -maxdepth 1 -type f -exec mv -t "$packages" {} +
    rm -rf "$scratch"
}

linux() {
    local build=build/package
    [ -n "${PYX_NO_SETUP:-}" ] || scripts/setup.sh --packages
    # As Debian compiles; the flags of the preset come after these.
    export DEB_BUILD_MAINT_OPTIONS=hardening=+all DEB_CXXFLAGS_MAINT_STRIP=-g
    CXXFLAGS="$(dpkg-buildflags --get CXXFLAGS) $(dpkg-buildflags --get CPPFLAGS)"
    LDFLAGS=$(dpkg-buildflags --get LDFLAGS)
    export CXXFLAGS LDFLAGS
    # The prefix decides about the place of the files and the format of the package, not about what is compiled.
    cmake --preset release -B $build "${only_library[@]}" -DPYX_KEYCHAIN=ON -DCMAKE_INSTALL_PREFIX=/usr/local
    cmake --build $build -j "$jobs" --target all docs
    pack $build 'PYXRuntime-*.tar.gz'
    cmake -B $build -DCMAKE_INSTALL_PREFIX=/usr
    cmake --build $build -j "$jobs"
    pack $build '*.deb'
    if command -v lintian >/dev/null; then
        lintian --allow-root --fail-on error,warning --tag-display-limit 0 "$packages"/*.deb
        echo "package.sh: lintian has nothing to say."
    else
        echo "package.sh: lintian is not installed (setup.sh --dev); the .deb files are not checked." >&2
    fi
}

windows() {
    local build=build/package-windows
    [ -n "${PYX_NO_SETUP:-}" ] || scripts/setup.sh --windows --packages
    # shellcheck source=scripts/windows/find-qt.sh
    source scripts/windows/find-qt.sh
    find_qt
    cmake --preset windows -B $build "${only_library[@]}" -DPYX_KEYCHAIN=OFF \
        -DWINQT_PREFIX="$WINQT_PREFIX"
    cmake --build $build -j "$jobs" --target all docs
    pack $build 'PYXRuntime-*.zip'
}

case ${1:-} in
    "") linux ;;
    --windows) windows ;;
    *)
        echo "usage: package.sh [--windows]" >&2
        exit 2
        ;;
esac
echo "package.sh: in build/packages are now"
find "$packages" -type f -printf '  %9s  %f\n' | sort -k 2
