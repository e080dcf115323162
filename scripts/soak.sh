#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# Runs Band Monitor under load, see docs/soak.md. Nothing of it reaches a screen or a network.
#   soak.sh [MINUTES [SPEED]]      15 minutes at 50 times real time; prints what has become of memory, descriptors and
#                                  tables, and writes it into docs/soak.md; ten minutes fill the tables
#   soak.sh --valgrind [MINUTES]   a minute, slowly, under Valgrind: fails for leaks and invalid accesses of ours
#   PYX_NO_SETUP   not empty: install nothing
# Exit status 77: this machine has no network namespaces for users.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
[ -n "${PYX_NO_SETUP:-}" ] || scripts/setup.sh --dev >&2
jobs=${PYX_JOBS:-$(nproc)}
results=$(mktemp -d)
trap 'rm -rf "$results"' EXIT
export QT_QPA_PLATFORM=offscreen
# The same figures in every language and time zone.
export LC_ALL=C.UTF-8 TZ=UTC

# A network of its own, so that no announcement leaves it: announcements are heard by their sender only.
in_private_network() {
    unshare --map-root-user --net bash -c '
        ip link set lo up && ip link add soak0 type veth peer name soak1 &&
        ip addr add 198.51.100.1/24 brd + dev soak0 && ip link set soak0 up && ip link set soak1 up &&
        exec "$@"' bash "$@"
}

if ! in_private_network true 2>/dev/null; then
    echo "soak.sh: no private network can be made here (unshare --net, veth)." >&2
    exit 77
fi

if [ "${1:-}" = --valgrind ]; then
    cmake --preset dev >/dev/null
    cmake --build --preset dev -j "$jobs" --target soak >&2
    # Everything else in the window waits for the samples: few of them, as Valgrind is slow.
    # What the regular expressions compile at run time, Valgrind takes for reading where nothing is.
    export QT_ENABLE_REGEXP_JIT=0
    in_private_network valgrind --quiet --leak-check=full --show-leak-kinds=definite,indirect \
        --errors-for-leak-kinds=definite,indirect --error-exitcode=9 --num-callers=30 \
        --suppressions=soak/valgrind.supp \
        build/dev/bin/soak --minutes "${2:-1}" --speed 0.5 --loop 1 --no-verdict
    exit
fi

minutes=${1:-15}
speed=${2:-50}
cmake --preset release -DPYX_BUILD_BENCHMARKS=OFF -DPYX_BUILD_TESTS=ON -DPYX_BUILD_EXAMPLES=ON >/dev/null
cmake --build --preset release -j "$jobs" --target soak >&2
status=0
in_private_network build/release/bin/soak --minutes "$minutes" --speed "$speed" \
    --least-speed "$(awk "BEGIN { print 0.98 * $speed }")" --samples "$results/samples.csv" \
    >"$results/summary.md" 2>"$results/trace" || status=$?
if [ $status -ne 0 ]; then
    tail -n 20 "$results/trace" >&2
fi
scripts/soak_page.py "$results/summary.md" "$results/samples.csv"
exit $status
