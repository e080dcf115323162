#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# check-symbols.sh [--update] [LIBRARY]: compares the names that LIBRARY (default: that of package.sh) exports with the
# list in abi/PYXRuntime.symbols; --update writes the list anew. A name that goes breaks programs that are compiled
# already; a name that comes is a promise from then on.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
export LC_ALL=C
update=false
if [ "${1:-}" = --update ]; then
    update=true
    shift
fi
library=${1:-build/package/lib/libPYXRuntime.so}
list=abi/PYXRuntime.symbols

# What the compiler leaves of templates and inline functions changes with its options: of weak names only the
# tables of our classes count. Constructors and destructors have several names that read the same.
exported() {
    nm --dynamic --defined-only --demangle --format=posix "$1" |
        sed -E 's/ ([A-Za-z]) [0-9a-f]+( [0-9a-f]+)?$/\t\1/' |
        awk -F '\t' '
            $1 ~ /^(__bss_start|_edata|_end|__odr_asan\..*|typeinfo name for .*)$/ { next }
            $2 ~ /^[TDBR]$/ { print $1; next }
            $2 == "V" && $1 ~ /^(vtable|typeinfo|VTT) for PYX[A-Za-z0-9_:]*$/ { print $1 }' | sort -u
}

exported "$library" >"$library.symbols"
if [ ! -s "$library.symbols" ]; then
    echo "check-symbols.sh: $library exports nothing" >&2
    exit 1
fi
if $update; then
    mkdir -p "$(dirname $list)"
    cp "$library.symbols" $list
    echo "check-symbols.sh: $list has $(wc -l <$list) names now."
    exit 0
fi
removed=$(comm -23 $list "$library.symbols")
added=$(comm -13 $list "$library.symbols")
if [ -z "$removed$added" ]; then
    echo "check-symbols.sh: $library exports the $(wc -l <$list) names of $list."
    exit 0
fi
[ -z "$removed" ] || printf 'No longer exported; programs that use it do not start any more:\n%s\n' "$removed"
[ -z "$added" ] || printf 'Newly exported:\n%s\n' "$added"
echo "check-symbols.sh: if that is meant, run check-symbols.sh --update and commit the list; a name that has gone" \
    "since the last release needs a new major version." >&2
exit 1
