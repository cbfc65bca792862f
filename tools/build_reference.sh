#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the reference of the installed headers, the guide and the other documents as HTML:
#     tools/build_reference.sh [FOLDER]      build/reference where none is given; FOLDER/html/index.html is the first page
# Warnings are errors; so is a class, an enumeration or a free function about which nothing is said. A dabpaint that was
# built in build/ci, or is on the path, adds the pages of brush properties.
set -euo pipefail

if [ $# -gt 1 ] || [[ ${1-} == -* ]]; then
    echo "usage: tools/build_reference.sh [FOLDER]" >&2
    exit 2
fi
out=$(realpath -m "${1:-build/reference}")
cd "$(dirname "${BASH_SOURCE[0]}")/.."
root=$PWD
if ! command -v doxygen >/dev/null; then
    echo "doxygen is needed; tools/setup.sh installs it" >&2
    exit 1
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

mkdir -p "$out"
rm -rf "$out/html"
dabpaint=$(PATH=build/ci/bin:$PATH command -v dabpaint || true)
pages=()
if [ -n "$dabpaint" ] && "$dabpaint" help properties | grep -q -e --reference; then
    pages=("$work/pages")
    "$dabpaint" properties --reference "$work/pages"
fi

python3 -B tools/reference/sources.py "$work/sources" "${pages[@]}"
shopt -s nullglob
theme=(/usr/share/doxygen-awesome-css/doxygen-awesome{,-sidebar-only}.cs[s])  # none where it is not installed
version=$(sed -n 's/^#define DABCANVAS_VERSION_[MP][A-Z]* //p' SRC_New/Maths/Version.h | paste -sd.)
{
    cat docs/reference/Doxyfile
    echo "PROJECT_NUMBER = $version"
    echo "INPUT = $work/sources" docs/guide/*.md docs/painter.md docs/recordings.md docs/architecture.md benchmarks/README.md CHANGELOG.md
    echo "USE_MDFILE_AS_MAINPAGE = $work/sources/README.md"
    echo "IMAGE_PATH = docs/images ${pages[*]/%//properties}"
    echo "STRIP_FROM_PATH = $work/sources \"$root\""
    echo "STRIP_FROM_INC_PATH = $work/sources"
    echo "INCLUDE_PATH = $work/sources"
    echo "HTML_EXTRA_STYLESHEET = ${theme[*]} docs/reference/style.css"
    echo "OUTPUT_DIRECTORY = $work"
    echo "WARN_LOGFILE = $work/warnings"
} >"$work/Doxyfile"
doxygen "$work/Doxyfile" >"$work/log" 2>&1 || cat "$work/log" >&2
cat "$work/warnings" "$work/log" | sed "s,$work/sources/,SRC_New/,; s,$root/,," >&2
if [ -s "$work/warnings" ] || [ -s "$work/log" ]; then
    exit 1
fi
python3 -B tools/reference/check.py "$work/xml"
if grep -rlF -e "$work" -e "$root" "$work/html" >&2; then
    echo "pages name a place on this machine" >&2
    exit 1
fi
rm -f "$work"/html/dir_*.html  # to which nothing leads
mv "$work/html" "$out/html"
echo "$out/html/index.html"
