#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the Debian packages, asks lintian, and uses what is in them, and nothing else of this checkout, from a prefix:
#     tests/packages/check_packages.sh SCRATCH JOBS
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
sources=$PWD
scratch=$1
jobs=$2
quietly() {
    "$@" >"$scratch/packages.log" 2>&1 || {
        cat "$scratch/packages.log"
        echo "packages: this failed: $*" >&2
        return 1
    }
}
fail() {
    echo "packages: $1" >&2
    exit 1
}

rm -rf build/packages/packages
quietly cmake --preset packages
quietly cmake --build --preset packages -j "$jobs"
quietly cpack --preset packages
packages=$(echo build/packages/packages/*.deb)

# Not for these packages: an address that mail goes to, a bug that they close, a package for each of the libraries,
# which only go together, and how CPack calls ldconfig.
quietly lintian --allow-root --no-cfg --fail-on error,warning \
    --suppress-tags bogus-mail-host,bogus-mail-host-in-debian-changelog,initial-upload-closes-no-bugs \
    --suppress-tags package-name-doesnt-match-sonames,maintscript-calls-ldconfig $packages

# What each is for is there and nowhere else.
holds() {
    local package=build/packages/packages/$1_*.deb files
    shift
    files=$(dpkg-deb --fsys-tarfile $package | tar -t | sed 's|^\./usr||')
    for pattern in "$@"; do
        grep -qE "$pattern" <<<"$files" || fail "$package has no $pattern"
    done
    echo "$files" | grep -v '/$' | grep -vE "/share/doc/|$(IFS='|' && echo "$*")" || return 0
    fail "$package has what is another's"
}
holds libdabcanvas0 '\.so\.0(\.[0-9.]+)?$'
holds libdabcanvas-dev '/include/Dabcanvas/.*\.h$' '\.so$' '/cmake/Dabcanvas/.*\.cmake$' '/pkgconfig/dabcanvas-[a-z]+\.pc$'
holds dabcanvas-tools '/bin/dabpaint$' '/man1/dabpaint(-[a-z]+)?\.1\.gz$'
holds dabpainter '/bin/dabpainter$' '/dabcanvas/docs/' '/man1/dabpainter\.1\.gz$' '/icons/hicolor/' '/applications/' '/metainfo/' '/mime/packages/'
holds dabcanvas-brushes '/share/dabcanvas/brushes/[a-z0-9-]+\.xbf$' '/share/dabcanvas/palettes/[a-z]+\.gpl$'
holds qml6-module-dabcanvas '/qt6/qml/Dabcanvas/(qmldir|plugins\.qmltypes|libdabcanvasplugin\.so)$'
holds dabcanvas-designer '/qt6/plugins/designer/libdabcanvasdesigner\.so$'
depends() {
    dpkg-deb -f build/packages/packages/"$1"_*.deb Depends | grep -qE "$2" || fail "$1 does not depend on $2"
}
depends libdabcanvas-dev 'libdabcanvas0 \(= 0'
depends dabcanvas-tools 'libdabcanvas0'
depends libdabcanvas0 'libqt6gui6'
depends qml6-module-dabcanvas 'qml6-module-qtquick'
if dpkg-deb -f build/packages/packages/dabcanvas-tools_*.deb Depends | grep libqt6widgets6; then
    fail "dabcanvas-tools depends on Qt's widgets"
fi

prefix=$scratch/debian
for package in $packages; do
    dpkg-deb -x "$package" "$prefix"
done
libraries=$(dirname "$(find "$prefix" -name libDabcanvasStroke.so)")
export LD_LIBRARY_PATH=$libraries QT_QPA_PLATFORM=offscreen
(
    cd "$scratch"
    quietly "$prefix/usr/bin/dabpaint" paint "$sources/samples/signature.inkml" -o packaged.png \
        --brush "$prefix/usr/share/dabcanvas/brushes/pencil.xbf"
    quietly "$prefix/usr/bin/dabpainter" --version
)

# A host that finds them by pkg-config, one that finds them by CMake.
export PKG_CONFIG_PATH=$libraries/pkgconfig
for file in "$libraries"/pkgconfig/*.pc; do
    quietly pkg-config --validate "$(basename "$file" .pc)"
    quietly pkg-config --cflags --libs "$(basename "$file" .pc)"
done
compile() {
    quietly c++ -std=c++20 -fPIC -DEXPECTED_VERSION="\"$(pkg-config --modversion "$3")\"" "$1" -o "$2" \
        $(pkg-config --cflags --libs "$3")
}
compile tests/hosts/plain/plain.cpp "$scratch/plain" dabcanvas-processor
quietly "$scratch/plain"
compile examples/consumer/window.cpp "$scratch/window" dabcanvas-view
quietly "$scratch/window" --grab "$scratch/window.png"
quietly cmake -S examples/consumer -B "$scratch/consumer" -G Ninja -DCMAKE_PREFIX_PATH="$prefix/usr"
quietly cmake --build "$scratch/consumer" -j "$jobs"
quietly "$scratch/consumer/headless" "$scratch/headless.png"

# What a desktop reads.
share=$prefix/usr/share
quietly desktop-file-validate "$share"/applications/*.desktop
quietly appstreamcli validate --no-net "$share"/metainfo/*.xml
quietly xmllint --noout "$share"/mime/packages/*.xml "$share"/icons/hicolor/scalable/apps/*.svg
icon=$(sed -n 's/^Icon=//p' "$share"/applications/*.desktop)
[ -f "$share/icons/hicolor/48x48/apps/$icon.png" ] || fail "there is no icon $icon"
quietly update-mime-database "$share/mime"
grep -q ':application/x-xbf:\*\.xbf$' "$share/mime/globs2" || fail "presets have no type"
for page in "$share"/man/man1/*.gz; do
    # Neither asks for a date, which there is none of before a release.
    wrong=$(zcat "$page" | { mandoc -T lint -W warning || true; } | grep -v 'missing date' || true)
    wrong+=$(MANROFFSEQ= LC_ALL=C.UTF-8 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >"$scratch/page" || true)
    [ -z "$wrong" ] && [ -s "$scratch/page" ] || fail "$page: $wrong"
done
lexgrog "$share"/man/man1/*.gz >"$scratch/page" || fail "$(cat "$scratch/page")"
