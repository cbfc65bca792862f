#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Fails for what a shared library exports beside the list, and for entries of the list that nothing is exported by:
#     check_exports.sh NM exports.txt LIBRARY...
set -euo pipefail
nm=$1
list=$2
shift 2

# Left out are the linker's own symbols, and instances of the standard library's and Qt's templates.
"$nm" -DC --defined-only "$@" | awk -v list="$list" '
    BEGIN {
        while ((getline line < list) > 0) {
            if (line ~ /^[^#]/) {
                pattern = line
                gsub(/[*]/, "[A-Za-z0-9_]*", pattern)
                patterns[line] = "^" pattern "$"
            }
        }
    }
    NF < 3 || $3 ~ /^(_end|_edata|__bss_start)$/ { next }
    {
        sub(/^[0-9a-f]+ [A-Za-z] /, "")
        whole = $0
        sub(/^(vtable|VTT|typeinfo|typeinfo name|guard variable|TLS (wrapper|init) function) for /, "")
        sub(/^(non-virtual|virtual) thunk to /, "")
        sub(/^(void|bool|int|float|auto) /, "")  # what an instance of a template returns
        if (!match($0, /^(dabcanvas::)?[A-Za-z0-9_]+/)) {
            next  # the type of a function
        }
        name = substr($0, 1, RLENGTH)
        if (name ~ /^(std|__gnu_cxx|QMeta[A-Za-z]*|QtPrivate)$/) {
            next
        }
        count++
        if (!(name in known)) {
            known[name] = 0
            for (line in patterns) {
                if (name ~ patterns[line]) {
                    known[name] = used[line] = 1
                }
            }
        }
        if (!known[name]) {
            print "exported, but not in the list: " whole
            wrong = 1
        }
    }
    END {
        for (line in patterns) {
            if (!(line in used)) {
                print "in the list, but not exported: " line
                wrong = 1
            }
        }
        print count " symbols"
        exit wrong
    }'
