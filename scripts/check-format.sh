#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# check-format.sh: fails on every C++ file that clang-format would change.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

git ls-files -z -- '*.h' '*.cpp' | xargs -0 -r -n 20 -P 2 clang-format --dry-run -Werror
echo "check-format.sh: nothing to change."
