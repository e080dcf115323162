#!/bin/bash
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
#
# run-tidy.sh [BASE|--all]: clang-tidy on the C++ files that changed since the commit BASE, committed or not.
# Without BASE: since the branch left origin/main; on main itself, since four hours before its last commit.
# A changed header stands for the source of its name; a changed .clang-tidy for every file.
#   PYX_JOBS   how many jobs at a time (default: one per processor)
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
jobs=${PYX_JOBS:-$(nproc)}
build=build/tidy-check

default_base() {
    local base
    base=$(git merge-base origin/main HEAD 2>/dev/null || true)
    if [ -z "$base" ] || [ "$base" = "$(git rev-parse HEAD)" ]; then
        base=$(git rev-list -1 --before="$(($(git log -1 --format=%ct) - 14400))" HEAD)
    fi
    echo "$base"
}

changed_files() {
    local base=$1 changed file stem
    if [ -n "$base" ]; then
        changed=$(git diff --name-only --diff-filter=d "$base" && git ls-files --others --exclude-standard)
    fi
    if [ -z "$base" ] || grep -q '\.clang-tidy$' <<<"$changed"; then
        git ls-files -- '*.cpp'
        return
    fi
    while read -r file; do
        case $file in
            *.cpp) echo "$file" ;;
            *.h)
                stem=$(basename "$file" .h)
                git ls-files -- "$stem.cpp" "*/$stem.cpp"
                ;;
        esac
    done <<<"$changed" | sort -u
}

case ${1-} in
    --all) base= ;;
    '') base=$(default_base) ;;
    *) base=$(git rev-parse --verify "$1^{commit}") ;;
esac

mapfile -t files < <(changed_files "$base")

# The command lines of clang and what the build generates from headers, without a build.
log=$(mktemp)
trap 'rm -f "$log"' EXIT
quietly() { "$@" >"$log" 2>&1 || { cat "$log" >&2 && exit 1; }; }
quietly cmake --preset tidy -B "$build" -DCMAKE_CXX_CLANG_TIDY= -DPYX_BUILD_BENCHMARKS=ON -DPYX_BUILD_FUZZERS=ON
mapfile -t generated < <(ninja -C "$build" -t targets all | grep -v CMakeFiles | sed -n 's/_autogen: phony$/_autogen/p')
quietly ninja -C "$build" -j "$jobs" "${generated[@]}"

# Files that are only built for another system have no command line here.
checked=()
for file in "${files[@]}"; do
    if grep -qF "\"file\": \"$PWD/$file\"" "$build/compile_commands.json"; then
        checked+=("$file")
    else
        echo "run-tidy.sh: not built here: $file"
    fi
done
echo "run-tidy.sh: ${#checked[@]} files${base:+ that changed since ${base:0:12}}"
[ ${#checked[@]} -gt 0 ] || exit 0
printf '%s\0' "${checked[@]}" |
    xargs -0 -n 1 -P "$jobs" clang-tidy -p "$build" --quiet --warnings-as-errors='*' 2>"$log" || {
    grep -v 'warnings generated\|^Suppressed\|^Use -header-filter' "$log" >&2
    echo "run-tidy.sh: clang-tidy found something." >&2
    exit 1
}
echo "run-tidy.sh: nothing found."
