#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# demo.sh [RECORDING]: installs what is missing, builds Band Monitor and opens the WAV file RECORDING in it;
# without one, a recording made for the purpose. Where there is no display it prints the table of detected
# signals instead.
#   PYX_JOBS       how many jobs at a time (default: one per processor)
#   PYX_NO_SETUP   not empty: install nothing
set -euo pipefail
root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
if [ $# -gt 1 ]; then
    echo "usage: demo.sh [RECORDING]" >&2
    exit 2
fi
recording=$root/build/dev/demo.wav
[ $# -eq 0 ] || recording=$(realpath -- "$1")
cd "$root"

[ -n "${PYX_NO_SETUP:-}" ] || scripts/setup.sh
cmake --preset dev
cmake --build --preset dev -j "${PYX_JOBS:-$(nproc)}" --target bandmonitor
if [ $# -eq 0 ] && ! [ -e "$recording" ]; then
    # Under its name only when it is whole.
    examples/bandmonitor/make_recording.sh "$root/build/dev/demo.part.wav"
    mv build/dev/demo.part.wav "$recording"
fi

mode=()
[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || mode=(--headless)
exec build/dev/bin/bandmonitor "${mode[@]}" -- "$recording"
