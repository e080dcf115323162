#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# check-fresh-machine.sh: runs test.sh and demo.sh on the last commit in a bare Debian 12 made for it, where a
# package that setup.sh forgets is missed. Needs root, 3 GB of disk below TMPDIR, and Debian's mirror, which is taken
# from this machine's apt.
#   PYX_JOBS   how many jobs at a time (default: one per processor)
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/bare-debian.sh
source scripts/bare-debian.sh

scratch=$(mktemp -d)
trap 'rm -rf --one-file-system "$scratch"' EXIT
root=$scratch/root
bare_debian "$root"

git clone -q . "$root/root/py x runtime"
cat >"$root/root/try.sh" <<'TRY'
set -euo pipefail
cd "/root/py x runtime"
scripts/test.sh
echo "=== the demo"
scripts/demo.sh
echo "=== both again, with everything there"
scripts/setup.sh
scripts/demo.sh >/dev/null
TRY
in_bare_debian "$root" /root/try.sh PYX_JOBS="${PYX_JOBS:-$(nproc)}"
echo "check-fresh-machine.sh: both commands work on a bare Debian 12."
