# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
# shellcheck shell=bash
#
# To be sourced, in the top directory of the sources: where the Qt for Windows is, and who may use Wine.
cache=${XDG_CACHE_HOME:-$HOME/.cache}/pyxruntime
qt_version=5.15.8

# One run at a time: the programs of one Wine prefix share its server, and that one display. Holds descriptor 9.
lock_wine() {
    mkdir -p "$cache"
    exec 9>"$cache/windows.lock"
    flock -n 9 || { echo "Waiting for another run of the Windows programs" && flock 9; }
}

unpack_qt() {
    local scratch
    scratch=$(mktemp -d "$cache/unpack.XXXXXX")
    tar -C "$scratch" -xf "$1"
    mv -T "$scratch/winqt-$qt_version" "$WINQT_PREFIX"
    rmdir "$scratch"
}

# Sets and exports WINQT_PREFIX.
find_qt() {
    local archive
    [ -z "${WINQT_PREFIX:-}" ] || return 0
    export WINQT_PREFIX=$cache/winqt-$qt_version
    [ ! -d "$WINQT_PREFIX" ] || return 0
    for archive in ../shared/winqt/winqt-"$qt_version"-*.tar.xz; do
        if [ -e "$archive" ]; then
            echo "Unpacking $archive"
            unpack_qt "$archive"
            return
        fi
    done
    echo "There is no Qt for Windows yet: building one from Debian's sources. This takes about 45 minutes."
    scripts/windows/build-qt-windows.sh "$WINQT_PREFIX"
}
