#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compares what the shared libraries promise programs with the last tag's, by abidiff: tools/check_abi.sh [TAG [CMAKE-OPTION]...]
# Fails for anything but additions, unless DABCANVAS_ABI went up since: programs built with the tag's might not run. What was
# looked at and does no harm stands in tools/abi.suppr, as libabigail's manual says, until the next tag.
# Both are built, with debugging information, in build/abi.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
tag=${1:-$(git describe --tags --abbrev=0 2>/dev/null || true)}
if [ -z "$tag" ]; then
    echo "abi: there is no tag to compare with"
    exit 0
fi
shift || true
jobs=${JOBS:-$(nproc)}
options=("$@")
here=$PWD/build/abi
suppressions=()
[ ! -e tools/abi.suppr ] || suppressions=(--suppressions tools/abi.suppr)
mkdir -p "$here"
quietly() {
    "$@" >"$here/log" 2>&1 || {
        cat "$here/log"
        return 1
    }
}
# Into build/abi/NAME, of the sources in a folder.
build() {
    quietly cmake -S "$2" -B "$here/$1" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DDABCANVAS_BUILD_TESTS=OFF \
        -DDABCANVAS_BUILD_APPS=OFF "${options[@]}"
    quietly cmake --build "$here/$1" -j "$jobs"
    quietly cmake --install "$here/$1" --prefix "$here/$1-installed"
}
abi_of() {
    sed -n 's/^#define DABCANVAS_ABI //p' "$1/SRC_New/Maths/Version.h" 2>/dev/null
}

rm -rf "$here"/*-installed
git worktree remove --force "$here/sources" 2>/dev/null || rm -rf "$here/sources"
git worktree prune
quietly git worktree add --detach "$here/sources" "$tag"
trap 'git worktree remove --force "$here/sources"' EXIT
build then "$here/sources"
build now .

# Only what installed headers declare is promised. Of abidiff's status 1 and 2 are its own failures, 4 and 8 changes.
broken=0
for before in "$here"/then-installed/lib*/libDabcanvas*.so; do
    after=$(echo "$here"/now-installed/lib*/"$(basename "$before")")
    if [ ! -e "$after" ]; then
        echo "abi: $(basename "$before") is gone"
        broken=1
        continue
    fi
    status=0
    abidiff --no-added-syms "${suppressions[@]}" --headers-dir1 "$here/then-installed/include" --headers-dir2 "$here/now-installed/include" \
        "$before" "$after" || status=$?
    if [ $((status & 3)) -ne 0 ]; then  # nothing was compared
        echo "abi: abidiff failed" >&2
        exit 2
    elif [ "$status" -ne 0 ]; then
        broken=1
    fi
done
was=$(abi_of "$here/sources")
if [ $broken -ne 0 ] && [ "$was" = "$(abi_of .)" ]; then
    echo "abi: programs built with $tag may break: DABCANVAS_ABI in Maths/Version.h must go up from $was"
    exit 1
fi
echo "abi: compared with $tag"
