#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds what needs no Qt for Windows, by MinGW, and runs its tests under Wine:
#     tests/packages/check_windows.sh SCRATCH JOBS
# Headers that know no machine, and GoogleTest's sources, are those of the packages for this one.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
scratch=$1
jobs=$2
quietly() {
    "$@" >"$scratch/windows.log" 2>&1 || {
        cat "$scratch/windows.log"
        return 1
    }
}
of_package() {
    dpkg -L "$1" | grep "$2" | xargs dirname
}

quietly cmake --preset mingw -DEigen3_DIR="$(of_package libeigen3-dev /Eigen3Config.cmake$)" \
    -DDABCANVAS_HIGHWAY_HEADERS="$(dirname "$(of_package libhwy-dev /hwy/highway.h$)")" \
    -DDABCANVAS_GOOGLETEST_SOURCES="$(of_package googletest /googletest/googletest/CMakeLists.txt$ | xargs dirname)"
quietly cmake --build --preset mingw -j "$jobs"
export WINEPREFIX=$scratch/wine WINEDEBUG=-all
quietly wineboot --init
quietly ctest --preset mingw -j "$jobs"

# A host on what is installed.
quietly cmake --install build/mingw --prefix "$scratch/windows"
quietly cmake -S tests/hosts/plain -B "$scratch/windows-plain" -G Ninja \
    -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/toolchains/mingw-w64.cmake" -DDabcanvas_DIR="$scratch/windows/lib/cmake/Dabcanvas"
quietly cmake --build "$scratch/windows-plain"
quietly wine "$scratch/windows-plain/plain.exe"
