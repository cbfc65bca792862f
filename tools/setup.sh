#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what building needs, on Debian and its relatives: tools/setup.sh [build|check]
#   build   the libraries and dabpaint, and what painting needs
#   check   the tests, the benchmarks and the other checks as well (default)
# apt-get is called only when a package is missing, as root or through sudo.
set -euo pipefail

build=(cmake ninja-build g++ pkg-config libcli11-dev libeigen3-dev nlohmann-json3-dev qt6-base-dev qt6-declarative-dev qt6-tools-dev qt6-l10n-tools libepoxy-dev libhwy-dev liblz4-dev libquazip1-qt6-dev libwebp-dev libxxhash-dev zlib1g-dev libegl-dev libegl-mesa0 libgl1-mesa-dri)
# clang: the fuzzers. locales: the tests compile a locale with a decimal comma from its files. xvfb: Qt's own OpenGL and window tests need a
# display. qt6-base-private-dev: the window tests report pens to Qt as a platform does. dpkg-dev to abigail-tools: the packages. g++-mingw to wine64: what runs
# on Windows. The last three: the reference.
check=(libgtest-dev qt6-base-private-dev qml6-module-qtqml qml6-module-qtquick qml6-module-qtquick-window qml6-module-qtqml-workerscript libgmock-dev libbenchmark-dev libmypaint-dev mypaint-brushes clang-format-14 clang libclang-rt-dev ccache locales xvfb xauth dbus-daemon
    dpkg-dev lintian desktop-file-utils appstream libxml2-utils shared-mime-info man-db groff-base mandoc file gzip abigail-tools
    g++-mingw-w64-x86-64-posix wine wine64 doxygen doxygen-awesome-css python3)

case ${1:-check} in
    build) wanted=("${build[@]}") ;;
    check) wanted=("${build[@]}" "${check[@]}") ;;
    *)
        echo "usage: tools/setup.sh [build|check]" >&2
        exit 2
        ;;
esac

if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    echo "setup: no apt-get here; going on with what is installed (needed: ${wanted[*]})"
    exit 0
fi

missing=()
for package in "${wanted[@]}"; do
    state=$(dpkg-query --show --showformat='${db:Status-Status}\n' "$package" 2>/dev/null || true)
    grep -qx installed <<<"$state" || missing+=("$package")
done
if [ ${#missing[@]} -eq 0 ]; then
    echo "setup: every package is there"
    exit 0
fi

echo "setup: installing ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "setup: neither root nor sudo; as root: apt-get install ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi
# What apt-get prints is shown only when it fails.
log=$(mktemp)
trap 'rm -f "$log"' EXIT
quietly() {
    if ! ${as_root[@]+"${as_root[@]}"} env DEBIAN_FRONTEND=noninteractive "$@" >"$log" 2>&1 </dev/null; then
        cat "$log" >&2
        echo "setup: this failed: $*" >&2
        return 1
    fi
}
quietly apt-get update || echo "setup: going on with the package lists that are there" >&2
quietly apt-get install --yes --no-install-recommends "${missing[@]}"
