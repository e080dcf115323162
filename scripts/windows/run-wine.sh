#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# run-wine.sh PROGRAM.exe [ARGUMENT...]: runs a program built with MinGW under Wine, without a window.
# Exit status and output are the program's.
#   WINQT_PREFIX     the Qt for Windows (required)
#   WINEPREFIX       the Wine prefix, made on first use (default: pyxruntime/wine in the user's cache)
#   WINEPATH         more folders with DLLs, Windows form, separated by ;
#   QT_QPA_PLATFORM  offscreen (default), minimal, or windows (needs a DISPLAY: run inside xvfb-run -a)
set -euo pipefail

: "${WINQT_PREFIX:?must name the Qt for Windows}"
: "${WINEPREFIX:=${XDG_CACHE_HOME:-$HOME/.cache}/pyxruntime/wine}"
: "${WINEDEBUG:=-all}"
: "${WINEDLLOVERRIDES:=mscoree,mshtml=}" # no questions about Mono and Gecko
wine=/usr/lib/wine/wine64

windows_path() { printf 'Z:%s' "${1//\//\\}"; }

# The version comes last, so a prefix that was left half made is made again.
make_prefix() {
    local display=()
    [ -n "${DISPLAY:-}" ] || display=(xvfb-run -a)
    "${display[@]}" "$wine" wineboot -i
    wineserver -w
    # The default answers "Windows 7".
    "${display[@]}" "$wine" winecfg /v win10
    wineserver -w
    touch "$WINEPREFIX/made-for-pyxruntime"
}

WINEPATH="$(windows_path "$WINQT_PREFIX/bin")${WINEPATH:+;$WINEPATH}"
export WINEPREFIX WINEDEBUG WINEDLLOVERRIDES WINEPATH
if [ ! -e "$WINEPREFIX/made-for-pyxruntime" ]; then
    mkdir -p "$WINEPREFIX"
    (
        flock 9
        [ -e "$WINEPREFIX/made-for-pyxruntime" ] || make_prefix >&2 9>&-
    ) 9>"$WINEPREFIX.lock"
fi

: "${QT_QPA_PLATFORM:=offscreen}"
: "${QT_QPA_FONTDIR:=$(windows_path /usr/share/fonts/truetype/dejavu)}" # for offscreen and minimal
: "${QT_PLUGIN_PATH:=$(windows_path "$WINQT_PREFIX/plugins")}"
# Without a console window QtTest and qDebug write to OutputDebugString, not to standard output.
: "${QT_ASSUME_STDERR_HAS_CONSOLE:=1}"
# Wine hides QT_* of the Unix environment from programs; WINEQT_* arrives as QT_*.
for name in ${!QT_*}; do
    export "WINE$name=${!name}"
done
exec "$wine" "$@"
