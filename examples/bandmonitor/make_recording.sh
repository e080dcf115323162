#!/bin/sh
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: BSD-3-Clause

# Makes a recording of 12 s with sox: steady tones, an amplitude and a frequency modulated signal, one
# that comes and goes, and noise.
#   make_recording.sh OUT.wav
set -eu

if [ $# -ne 1 ]; then
    echo "usage: $0 OUT.wav" >&2
    exit 2
fi
if ! command -v sox > /dev/null; then
    echo "$0: sox is missing (apt install sox)" >&2
    exit 1
fi

seconds=12
parts=$(mktemp -d)
trap 'rm -rf "$parts"' EXIT INT TERM

# make NAME LEVEL-IN-DB SYNTH-ARGUMENTS...
make() {
    name=$1
    level=$2
    shift 2
    # -R: the same noise every time
    sox -R -V1 -r 48000 -n -c 1 -e floating-point -b 32 "$parts/$name.wav" synth "$@" gain "$level"
}

make carrier1 -32 $seconds sine 2500
make carrier2 -50 $seconds sine 21000
# Amplitude modulation: the level of a carrier wavers at several rates at once.
make am -24 $seconds sine 6000 tremolo 110 50 tremolo 170 50 tremolo 310 40 tremolo 3 40
# Frequency modulation: up and down in whole numbers of cycles, so that nothing clicks in between.
make up -22 0.06 sine 11000:12500
make down -22 0.06 sine 12500:11000
sox -V1 "$parts/up.wav" "$parts/down.wav" "$parts/fm.wav" repeat $((seconds * 9)) trim 0 $seconds
# On for two seconds, off for two, with soft edges.
make pulsed -28 2 sine 16500 fade t 0.05 2 0.05 pad 1 1 repeat $((seconds / 4 - 1))
make noise -38 $seconds whitenoise

sox -R -V1 -m -v 1 "$parts/carrier1.wav" -v 1 "$parts/carrier2.wav" -v 1 "$parts/am.wav" \
    -v 1 "$parts/fm.wav" -v 1 "$parts/pulsed.wav" -v 1 "$parts/noise.wav" \
    -b 16 -e signed-integer "$1" trim 0 $seconds
