#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# run-fuzzers.sh [SECONDS]: builds the fuzz targets and runs each for this long (default: 60). Each fuzz_NAME begins
# with the inputs of fuzz/corpus/NAME, which stay as they are. What makes one fail is kept in build/fuzz.
#   PYX_JOBS   how many jobs at a time (default: one per processor)
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
export seconds=${1:-60}
jobs=${PYX_JOBS:-$(nproc)}

cmake --preset fuzz
cmake --build --preset fuzz -j "$jobs"
shopt -s nullglob
targets=(build/fuzz/bin/fuzz_*)
if [ ${#targets[@]} -eq 0 ]; then
    echo "run-fuzzers.sh: no fuzz target was built." >&2
    exit 1
fi
found=$(mktemp -d)
trap 'rm -rf "$found"' EXIT
export found

run_target() {
    local target=$1 name corpus log
    name=${target##*/fuzz_}
    corpus=fuzz/corpus/$name
    log=$found/$name.log
    if ! [ -d "$corpus" ]; then
        echo "fuzz_$name: there is no $corpus"
        return 1
    fi
    mkdir "$found/$name"
    if ! "$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
        -artifact_prefix="build/fuzz/$name-" "$found/$name" "$corpus" >"$log" 2>&1; then
        tail -n 60 "$log"
        echo "fuzz_$name: FAILED"
        return 1
    fi
    echo "fuzz_$name: no fault; $(grep 'number_of_executed_units' "$log"), $(grep 'peak_rss_mb' "$log")"
}
export -f run_target
export LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp" QT_QPA_PLATFORM=offscreen
# shellcheck disable=SC2016 # expanded by the inner shell
printf '%s\0' "${targets[@]}" | xargs -0 -n 1 -P "$jobs" bash -c 'run_target "$1"' bash
