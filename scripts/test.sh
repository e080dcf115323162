#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# test.sh [CTEST ARGUMENT...]: installs what is missing, builds everything and runs the tests.
#   PYX_JOBS       how many jobs at a time (default: one per processor)
#   PYX_NO_SETUP   not empty: install nothing
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
jobs=${PYX_JOBS:-$(nproc)}

[ -n "${PYX_NO_SETUP:-}" ] || scripts/setup.sh
cmake --preset dev
cmake --build --preset dev -j "$jobs"
exec ctest --preset dev -j "$jobs" "$@"
