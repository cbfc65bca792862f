#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds libmypaint, the benchmarks' peer, from Debian's source for the processor of this machine, which Debian's own
# build is not: tools/build_peer.sh FOLDER
# Afterwards: LD_LIBRARY_PATH=FOLDER build/bench/bin/DabPainterBenchmark
# Nothing is installed, and the system's list of sources stays as it is. Needs dpkg-dev and libmypaint-dev.
set -euo pipefail

if [ $# -ne 1 ]; then
    echo "usage: tools/build_peer.sh FOLDER" >&2
    exit 2
fi
mkdir -p "$1"
out=$(cd "$1" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# The sources that are configured, asked for source packages in lists of our own.
mkdir -p "$scratch/sources" "$scratch/lists/partial"
for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources; do
    [ -f "$file" ] || continue
    sed -E 's/^Types:.*/Types: deb-src/; s/^deb(-src)? /deb-src /' "$file" >"$scratch/sources/$(basename "$file")"
done
apt=(-o "Dir::Etc::sourcelist=/dev/null" -o "Dir::Etc::sourceparts=$scratch/sources" -o "Dir::State::lists=$scratch/lists")
cd "$scratch"
apt-get "${apt[@]}" -qq update
apt-get "${apt[@]}" -qq source libmypaint
cd libmypaint-*/

soname=$(objdump -p "$(pkg-config --variable=libdir libmypaint)/libmypaint.so" | awk '$1 == "SONAME" { print $2 }')
"${CC:-gcc}" -O3 -march=native -ffast-math -fopenmp -fPIC -shared -w -Wl,-soname,"$soname" -DHAVE_JSON_C=1 -I. \
    $(pkg-config --cflags json-c gobject-2.0) ./*.c -o "$out/$soname" $(pkg-config --libs json-c gobject-2.0) -lm
echo "build_peer: $out/$soname"
