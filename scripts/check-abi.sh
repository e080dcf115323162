#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# check-abi.sh BASE: fails where a program compiled against BASE (the tag or commit of a release) would not work with
# the library as it is now: names that are gone, classes of another size or layout, tables of virtual functions that
# differ. abidiff sees that for classes which the library implements; of interfaces that applications implement it
# sees nothing, so that every changed declaration of a virtual function in a header that was there counts too.
# Changes are allowed together with a new SONAME.
# Both are built for that, the library of BASE once: it is kept in build/abi. Nothing of it is in the repository: a description of the interface as abidw writes it is 14 MB, and only fits the version of the
# tool that wrote it.
#   PYX_JOBS   how many jobs at a time (default: one per processor)
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
jobs=${PYX_JOBS:-$(nproc)}
if [ $# -ne 1 ] || ! base=$(git rev-parse -q --verify "$1^{commit}"); then
    echo "usage: check-abi.sh BASE (a tag or commit)" >&2
    exit 2
fi
kept=build/abi/$base
# Compiled as the preset dev, as deep below the sources, so that ccache knows most of it.
sources=$kept/sources
trap 'rm -rf "$sources"; git worktree prune' EXIT

# build SOURCES
build() {
    local build=$1/build/abi-current
    mkdir -p "$build"
    {
        cmake --preset dev -S "$1" -B "$build" -DPYX_BUILD_TESTS=OFF -DPYX_BUILD_EXAMPLES=OFF &&
            cmake --build "$build" -j "$jobs" --target PYXRuntime
    } >"$build/log" 2>&1 || {
        tail -n 40 "$build/log" >&2
        return 1
    }
}

soname() { objdump -p "$1" | awk '$1 == "SONAME" { print $2 }'; }

if [ ! -e "$kept/libPYXRuntime.so" ]; then
    echo "check-abi.sh: building $1"
    rm -rf "$kept"
    git worktree prune
    git worktree add -q --detach "$sources" "$base"
    build "$sources"
    cp -r "$sources/include" "$kept/"
    cp "$sources/build/abi-current/lib/libPYXRuntime.so" "$kept/"
fi
echo "check-abi.sh: building what is here"
build .
current=build/abi-current/lib/libPYXRuntime.so

echo "check-abi.sh: comparing"
status=0
virtuals=$(git diff -U0 --diff-filter=MD "$base" -- include | grep -E '^([-+][^-+].*\<virtual\>|--- )' |
    grep -B 1 '^[-+][^-+]' | grep -v '^--$' || true)
if [ -n "$virtuals" ]; then
    printf 'Virtual functions that came, went or moved:\n%s\n' "$virtuals"
    status=8
fi
abidiff --exported-interfaces-only --drop-private-types --no-added-syms --hd1 "$kept/include" --hd2 include \
    --suppressions abi/abidiff.suppr "$kept/libPYXRuntime.so" $current || status=$((status | $?))
if [ $status -eq 0 ]; then
    echo "check-abi.sh: programs compiled against $1 go on working."
elif [ $((status & 3)) -ne 0 ]; then
    echo "check-abi.sh: abidiff failed." >&2
    exit 1
elif [ "$(soname $current)" != "$(soname "$kept/libPYXRuntime.so")" ]; then
    echo "check-abi.sh: the library differs from that of $1, and says so by its name, $(soname $current)."
else
    echo "check-abi.sh: programs compiled against $1 may not work any more: keep the old interface, or raise the" \
        "major version in CMakeLists.txt, with which the SONAME and the name of the package change." >&2
    exit 1
fi
