#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# trial.sh PREFIX RUNNER [CMAKE ARGUMENT...]: builds the two programs beside this script against the library that is
# installed in PREFIX, and runs them without a display, through RUNNER if that is not empty.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")"
prefix=$1
runner=()
[ -z "$2" ] || runner=("$2")
shift 2
export QT_QPA_PLATFORM=offscreen

quietly() {
    "$@" >log 2>&1 || {
        cat log >&2
        exit 1
    }
}
for program in first consumer; do
    rm -rf "build-$program"
    quietly cmake -S $program -B "build-$program" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_INSTALL_PREFIX="$prefix" "$@"
    quietly cmake --build "build-$program"
done

# A window that nobody closes: it has worked when the trace is there.
first=$(find build-first -name 'firststeps*' -type f -perm -u+x | head -n 1)
case $first in
    # A DLL has no run path to be found by.
    *.exe) export WINEPATH="Z:${prefix//\//\\}\\bin" ;;
esac
"${runner[@]}" "$first" >first.log 2>&1 &
pid=$!
for _ in $(seq 300); do
    ! grep -q 'TRACE_INFO : start [0-9]' first.log || break
    kill -0 $pid 2>/dev/null || break
    sleep 0.1
done
kill $pid 2>/dev/null || true
wait $pid 2>/dev/null || true
grep 'TRACE_INFO : start [0-9]' first.log || {
    echo "trial.sh: the README's first application did not trace its start:" >&2
    cat first.log >&2
    exit 1
}

# Beside the library this one finds it, and the German texts, by itself.
unset WINEPATH
cmake --install build-consumer >/dev/null
cmake --build build-consumer --target run_consumer >consumer.log 2>&1 || true
grep 'TRACE_INFO : reached [0-9.]*, Bandbreite' consumer.log || {
    cat consumer.log >&2
    exit 1
}
