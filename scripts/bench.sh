#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# bench.sh [--no-page] [WORD...]: runs every benchmark, prints each race as a ratio (our median over the
# peer's, from one run in which the contestants take turns) and writes docs/benchmarks.md.
# More words go to the benchmarks, e.g. --benchmark_filter=broker; then the page stays as it is.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
page=(--page docs/benchmarks.md)
if [ "${1:-}" = --no-page ]; then
    page=()
    shift
fi
[ $# -eq 0 ] || page=()
[ -n "${PYX_NO_SETUP:-}" ] || scripts/setup.sh --dev
cmake --preset release -DPYX_BUILD_TESTS=OFF -DPYX_BUILD_EXAMPLES=OFF >/dev/null
cmake --build --preset release -- -j"$(nproc)" >/dev/null
results=$(mktemp -d)
trap 'rm -rf "$results"' EXIT
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
for program in build/release/bin/bench_*; do
    name=${program##*/}
    echo "running $name" >&2
    if ! "$program" --benchmark_repetitions="${PYX_BENCH_REPETITIONS:-9}" \
        --benchmark_enable_random_interleaving=true --benchmark_out_format=json \
        --benchmark_out="$results/$name.json" "$@" >"$results/$name.log" 2>&1; then
        cat "$results/$name.log" >&2
        exit 1
    fi
    # Nothing in it matched the filter.
    [ -s "$results/$name.json" ] || rm -f "$results/$name.json"
done
python3 scripts/bench_ratios.py "${page[@]}" "$results"/*.json
