#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# build-qt-windows.sh TARGET [STAGE...]: cross-builds Qt 5.15.8 (qtbase and qtsvg) for Windows x86_64 from Debian's
# source packages, with MinGW GCC 12 (posix threads), and leaves in TARGET what one builds against and runs
# with: headers, import libraries, DLLs (those of GCC included), plugins, CMake files. About 45 minutes on two
# processors and 6 GB of disk while it runs. The packages of setup.sh --windows must be installed.
#   STAGE      some of: sources configure build svg pack (default: all, in this order)
#   PYX_JOBS   how many jobs at a time (default: one per processor)
set -euo pipefail
here=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
if [ $# -lt 1 ]; then
    echo "usage: build-qt-windows.sh TARGET [STAGE...]" >&2
    exit 2
fi
target=$(realpath -m -- "$1")
shift
work=$target.build # stays after a failure, so that single stages can be tried again
jobs=${PYX_JOBS:-$(nproc)}
triple=x86_64-w64-mingw32
modules=(Concurrent Core Gui Network PrintSupport Svg Test Widgets Xml)
unset MAKEFLAGS CFLAGS CXXFLAGS LDFLAGS CC CXX QMAKESPEC QTDIR

# Runs a command whose many lines are only of interest when it fails.
logged() {
    local log=$work/$1.log
    shift
    "$@" >"$log" 2>&1 || {
        tail -n 40 "$log" >&2
        echo "build-qt-windows.sh: failed; all of it is in $log" >&2
        return 1
    }
}

stage_sources() {
    rm -rf "$work/qtbase" "$work/qtsvg"
    "$here/debian-source.sh" qtbase-opensource-src "$work/qtbase"
    "$here/debian-source.sh" qtsvg-opensource-src "$work/qtsvg"

    # Debian removed the wintab headers (licence): the Wintab tablet driver is left out of the platform
    # plugin. QTabletEvent and the pen handling of Windows Ink stay, so QtGui keeps its full interface.
    local plugin=$work/qtbase/src/plugins/platforms/windows
    sed -i 's/^qtConfig(tabletevent) {/false { # no wintab headers/' "$plugin/windows.pri"
    sed -i 's/#if QT_CONFIG(tabletevent)/#if 0 \/* no wintab headers *\//' "$plugin/qwindowscontext.cpp"
    # MinGW's import libraries have lower-case names.
    sed -i 's/"-lSecur32" "-lCrypt32"/"-lsecur32" "-lcrypt32"/' "$work/qtbase/src/network/ssl/ssl.pri"
}

stage_configure() {
    rm -rf "$work/build-qtbase"
    mkdir "$work/build-qtbase"
    cd "$work/build-qtbase"
    logged configure ../qtbase/configure -opensource -confirm-license -release -silent \
        -xplatform win32-g++ -device-option CROSS_COMPILE=$triple- -prefix "$work/prefix" \
        -nomake examples -nomake tests -no-compile-examples -no-pkg-config -no-opengl -no-feature-vulkan \
        -no-dbus -no-openssl -schannel -no-icu -no-iconv -no-feature-sql -no-feature-direct2d1_1 \
        -qt-zlib -qt-pcre -qt-libpng -qt-libjpeg -qt-freetype -qt-harfbuzz
}

stage_build() {
    logged make-qtbase make -C "$work/build-qtbase" -j"$jobs"
    logged install-qtbase make -C "$work/build-qtbase" install
}

stage_svg() {
    rm -rf "$work/build-qtsvg"
    mkdir "$work/build-qtsvg"
    cd "$work/build-qtsvg"
    logged qmake-qtsvg "$work/prefix/bin/qmake" ../qtsvg/qtsvg.pro
    logged make-qtsvg make -j"$jobs"
    logged install-qtsvg make install
}

# moc, rcc, uic and qmake become links to Debian's own, which are the same version.
stage_pack() {
    local pack=$work/pack gcc module tool
    rm -rf "$pack"
    mkdir -p "$pack"/{bin,include,lib/cmake,mkspecs}
    cp "$work"/prefix/bin/*.dll "$pack/bin/"
    gcc=$(dirname "$($triple-g++-posix -print-file-name=libstdc++-6.dll)")
    cp "$gcc"/libstdc++-6.dll "$gcc"/libgcc_s_seh-1.dll "/usr/$triple/lib/libwinpthread-1.dll" "$pack/bin/"
    cp -r "$work/prefix/plugins" "$pack/"
    cp -r "$work/prefix/mkspecs/win32-g++" "$pack/mkspecs/"
    cp -r "$work/prefix/lib/cmake/Qt5" "$pack/lib/cmake/"
    cp "$work/prefix/lib/libqtmain.a" "$pack/lib/"
    for module in "${modules[@]}"; do
        cp "$work/prefix/lib/libQt5$module.a" "$pack/lib/"
        cp -r "$work/prefix/lib/cmake/Qt5$module" "$pack/lib/cmake/"
        mkdir "$pack/include/Qt$module"
        find "$work/prefix/include/Qt$module" -maxdepth 1 -type f -exec cp -t "$pack/include/Qt$module" {} +
    done
    for tool in moc rcc uic qmake; do
        ln -s "/usr/lib/qt5/bin/$tool" "$pack/bin/$tool"
    done
    find "$pack" -name '*.dll' -exec "$triple-strip" --strip-unneeded {} +
    rm -rf "$target"
    mv "$pack" "$target"
}

mkdir -p "$work"
all=false
[ $# -gt 0 ] || all=true
$all && set -- sources configure build svg pack
for stage in "$@"; do
    case $stage in
        sources | configure | build | svg | pack) ;;
        *)
            echo "build-qt-windows.sh: unknown stage $stage" >&2
            exit 2
            ;;
    esac
    echo "build-qt-windows.sh: $stage ($(date +%T))"
    (set -e; "stage_$stage")
done
if $all; then
    rm -rf "$work"
fi
