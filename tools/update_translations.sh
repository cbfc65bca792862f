#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Brings the painter's catalogues up to what its sources and tables say: tools/update_translations.sh [BUILD [--check]]
# BUILD: where it is built (build/ci). --check changes nothing, and fails when a
# catalogue lacks a text, has one too many, or says it wrongly.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=${1:-build/ci}
catalogues=apps/dabpainter/translations
bin=$(qtpaths6 --query QT_INSTALL_BINS)

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cmake --build "$build" --target table_texts >/dev/null
# A name of its own, so that lupdate finds the same texts wherever they are gathered.
mkdir "$scratch/tables"
{
    echo 'static const char* const texts[] = {'
    "$build/bin/table_texts" samples/brushes/*.xbf | sed 's/$/,/'
    echo '};'
} >"$scratch/tables/texts.cpp"

if [ "${2-}" = --check ]; then
    cp -r $catalogues "$scratch/now"
    into=$scratch/now
else
    into=$catalogues
fi
"$bin/lupdate" -silent -no-obsolete -locations none apps/dabpainter "$scratch/tables" -ts "$into"/*.ts \
    2> >(grep -v "lacks Q_OBJECT" >&2)  # of free functions, whose context is their namespace
if [ "${2-}" = --check ]; then
    for file in "$into"/*.ts; do
        if ! cmp -s "$file" "$catalogues/$(basename "$file")"; then
            echo "$(basename "$file") is not up to date: tools/update_translations.sh" >&2
            exit 1
        fi
    done
    python3 tools/translations/check_catalogues.py $catalogues/*.ts
fi
