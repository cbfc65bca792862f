#!/bin/sh
# SPDX-License-Identifier: MIT
# Writes a program's pages for man: packaging/man_pages.sh PROGRAM FOLDER
# A program that has commands, as its help says, gets a page for each.
set -eu
program=$1
folder=$2
script=$(dirname "$0")/man_page.awk
name=$(basename "$program" .exe)
source=Dabcanvas\ $("$program" --version | sed 's/.* //')
mkdir -p "$folder"

page() {
    upper=$(echo "$1" | tr '[:lower:]' '[:upper:]')
    awk -v name="$upper" -v source="$source" -v also="$2" -f "$script" >"$folder/$1.1.part"
    gzip -9n <"$folder/$1.1.part" >"$folder/$1.1.gz"
    rm "$folder/$1.1.part"
}

commands=
if "$program" --help | grep -q "^    $name help \[COMMAND\]"; then
    commands=$("$program" help help | sed -n "s/^    $name help \[\(.*\)\]$/\1/p" | tr -d '|')
fi
also=
for command in $commands; do
    "$program" help "$command" | page "$name-$command" "$name(1)"
    also="$also${also:+, }$name-$command(1)"
done
"$program" --help | page "$name" "$also"
