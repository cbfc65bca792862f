# SPDX-License-Identifier: MIT
# A program's help, as its --help prints it, into a page for man:
#     awk -v name=DABPAINT-PAINT -v source="Dabcanvas 0.1.0" -v also="dabpaint(1)" -f man_page.awk
# Headings stand at the margin, text below them at column 4, and what a term is said about at column 8. Text that is laid
# out, in columns or further in, stays as it is.

function roff(text) {
    gsub(/\\/, "\\e", text)
    gsub(/-/, "\\-", text)
    return text ~ /^[.']/ ? "\\&" text : text
}
function indentOf(text) {
    match(text, /^ */)
    return RLENGTH
}
function printLines(from, margin, laidOut,    i) {
    if (laidOut) {
        print ".nf"
    }
    for (i = from; i <= count; i++) {
        print roff(substr(block[i], laidOut ? margin + 1 : indentOf(block[i]) + 1))
    }
    if (laidOut) {
        print ".fi"
    }
}
function isLaidOut(from, margin,    i) {
    for (i = from; i <= count; i++) {
        if (indentOf(block[i]) > margin || substr(block[i], margin + 1) ~ /[^ .:]  +[^ ]/) {
            return 1
        }
    }
    return 0
}
function beginParagraph() {
    if (!first) {
        print ".PP"
    }
}
function finishBlock() {
    if (count == 0) {
        return
    }
    if (section == "NAME") {
        about = block[1]
        sub(/^.* - /, "", about)
        print roff(tolower(name)) " \\- " roff(about)
    } else if (section == "SYNOPSIS" || section == "EXAMPLES") {
        beginParagraph()
        printLines(1, 4, 1)
    } else if (indentOf(block[1]) == 4 && count > 1 && indentOf(block[2]) == 8 && block[1] !~ /[^ ]  +[^ ]/) {
        print ".TP\n.B " roff(substr(block[1], 5))
        printLines(2, 8, isLaidOut(2, 8))
    } else if (indentOf(block[1]) >= 8) {
        print ".IP"
        printLines(1, 8, 1)
    } else {
        beginParagraph()
        printLines(1, 4, isLaidOut(1, 4))
    }
    count = first = 0
}

BEGIN {
    print ".\\\" Made of the program's help.\n.TH \"" name "\" 1 \"\" \"" source "\" \"User Commands\"\n.nh\n.ad l"
}
/^[A-Z]/ {
    finishBlock()
    section = $0
    first = 1
    print ".SH " section
    next
}
/^ *$/ {
    finishBlock()
    next
}
{
    block[++count] = $0
}
END {
    finishBlock()
    if (also != "") {
        print ".SH SEE ALSO\n" roff(also)
    }
}
