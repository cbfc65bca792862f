#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds what there is without Qt, and without Qt's widgets (and EGL), installs it and runs hosts on it:
#     tests/packages/check_parts.sh SCRATCH JOBS
# The build folders stand beside the others, build/without-...: compiler caches then know what is compiled.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
scratch=$1
jobs=$2
quietly() {
    "$@" >"$scratch/parts.log" 2>&1 || {
        cat "$scratch/parts.log"
        return 1
    }
}

# Without what find_package() is told not to find, DABCANVAS_BUILD_... being AUTO.
build() {
    local out=build/without-$1
    quietly cmake --preset ci -B "$out" -DCMAKE_DISABLE_FIND_PACKAGE_"$2"=ON -DDABCANVAS_BUILD_TOOL=AUTO \
        -DDABCANVAS_BUILD_PAINTER=AUTO -DDABCANVAS_WITH_EGL=OFF -DDABCANVAS_BUILD_TESTS=OFF -DDABCANVAS_BUILD_BENCHMARKS=OFF
    quietly cmake --build "$out" -j "$jobs"
    quietly cmake --install "$out" --prefix "$scratch/$1"
    quietly cmake -S tests/hosts/plain -B "$scratch/$1-plain" -G Ninja -DCMAKE_PREFIX_PATH="$scratch/$1" -DWITHOUT="$3"
    quietly cmake --build "$scratch/$1-plain"
    quietly "$scratch/$1-plain/plain"
}

build qt Qt6 Brushes
if readelf -d "$(find "$scratch/qt" -name 'libDabcanvasProcessor.so')" "$scratch/qt-plain/plain" | grep 'NEEDED.*Qt'; then
    echo "what is built without Qt links it" >&2
    exit 1
fi

build widgets Qt6Widgets View
export QT_QPA_PLATFORM=offscreen
if nm -D "$scratch"/widgets/lib*/libDabcanvasRender-qt6.so | grep epoxy_egl; then
    echo "what is built without EGL calls it" >&2
    exit 1
fi
DABCANVAS_SURFACE=auto quietly "$scratch/widgets/bin/dabpaint" paint samples/signature.inkml -o "$scratch/signature.png"
if ldd "$scratch/widgets/bin/dabpaint" | grep Qt6Widgets; then
    echo "dabpaint links Qt's widgets" >&2
    exit 1
fi
# What is asked for and cannot be had is an error that names it.
if cmake --preset ci -B "$scratch/asked" -DCMAKE_DISABLE_FIND_PACKAGE_Qt6Widgets=ON -DDABCANVAS_BUILD_VIEW=ON \
    >"$scratch/parts.log" 2>&1 || ! grep -q "DABCANVAS_BUILD_VIEW is ON, but .* Qt6::Widgets" "$scratch/parts.log"; then
    cat "$scratch/parts.log"
    echo "a view without widgets is not refused" >&2
    exit 1
fi
