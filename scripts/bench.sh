#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
# Runs every benchmark and prints each race as a ratio: our median over the peer's, from one run in
# which the contestants take turns. More words go to the benchmarks, e.g. --benchmark_filter=broker.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
[ -n "${PYX_NO_SETUP:-}" ] || scripts/setup.sh --dev
cmake --preset release -DPYX_BUILD_TESTS=OFF -DPYX_BUILD_EXAMPLES=OFF >/dev/null
cmake --build --preset release -- -j"$(nproc)" >/dev/null
results=$(mktemp -d)
trap 'rm -rf "$results"' EXIT
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
for program in build/release/bin/bench_*; do
    echo "running ${program##*/}" >&2
    "$program" --benchmark_repetitions="${PYX_BENCH_REPETITIONS:-9}" --benchmark_enable_random_interleaving=true \
        --benchmark_format=json "$@" >"$results/${program##*/}.json" 2>/dev/null
done
python3 scripts/bench_ratios.py "$results"/*.json
