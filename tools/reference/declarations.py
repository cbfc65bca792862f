# SPDX-License-Identifier: MIT
"""What the lines of a header are: comments, and declarations with their scopes."""

import re
import subprocess
from functools import cache

from headers import SOURCES

PROPERTIES = "Brushes/BrushPropertyList.h"


# ---- The members that brush properties give


def preprocessed(defines, rows):
    """What macros of a header make of the rows, a declaration a line."""
    command = ["c++", "-E", "-P", "-CC", "-nostdinc", "-x", "c++", "-"]
    text = "\n".join([*defines, rows])
    made = subprocess.run(command, input=text, text=True, capture_output=True, check=True).stdout
    lines, depth = [""], 0
    for line in made.splitlines():
        if line.startswith("///"):
            lines += [line, ""]
            continue
        for char in line + " ":
            lines[-1] += char
            depth += {"{": 1, "(": 1, "}": -1, ")": -1}.get(char, 0)
            if depth == 0 and char in ";}":
                lines.append("")
    return [line.strip() for line in lines if line.strip()]


@cache
def told_rows(is_pictured):
    """The list of properties, above each row its text, and where it has pictures."""

    def told(row):
        about = "".join(re.findall(r'"([^"]*)"', row[0][row[0].index(".about") :]))
        name = re.search(r"\b([a-z](\w*)), [A-Z]\2,", row[0])[1]
        pictures = f' \\ref property_{name} "Values and pictures."' if is_pictured else ""
        return f"/// {about}{pictures}\n{row[0]}"

    rows = (SOURCES / PROPERTIES).read_text()
    rows = rows[rows.index("#ifndef BRUSH_PROPERTY") :]
    return re.sub(r"^BRUSH_\w+\(.*?\)\n(?=BRUSH|// clang)", told, rows, flags=re.M | re.S)


def with_properties(lines, is_pictured):
    """The lines of a header, its own macros used up."""
    defines, out, rest = {}, [], iter(lines)
    for line in rest:
        if line.startswith(f'#include "{PROPERTIES}"'):
            out += ["", *preprocessed(defines.values(), told_rows(is_pictured)), ""]
        elif line.startswith("#define"):
            while line.endswith("\\"):
                line += "\n" + next(rest)
            defines[re.match(r"#define (\w+)", line)[1]] = line
        else:
            out.append(line)
    return out


def one_by_one(lines):
    """Members that are declared together, a line each: a comment is about all of them."""
    member = r"\w+(?:\{[^{}]*\}| = [^,;{}()]+)?"
    together = re.compile(rf"(\s*(?:[\w:<>]+ )+)({member}(?:, {member})+);(\s*///<.*)?$")
    for line in lines:
        found = together.match(line)
        if not found or found[1].strip() in ("return", "using"):
            yield line
            continue
        for name in re.findall(member + r"(?=, |$)", found[2]):
            yield f"{found[1]}{name};{found[3] or ''}"


# ---- What each line is


class Line:
    """kind    blank, doc, note (a comment for readers of the header alone), macro, access or code
    begins  a declaration does, of which `whole` is the code; ends: with this line
    depth   scopes that it stands in, `after` it; hidden: in one that is private or a function's"""

    def __init__(self, text, scopes, kind):
        self.text, self.kind = text, kind
        self.indent = re.match(r"\s*", text)[0]
        self.hidden = any(hides for _, hides in scopes)
        self.scope, self.depth, self.after = scopes[-1][0], len(scopes), len(scopes)
        self.begins, self.ends, self.told, self.whole = False, False, False, ""


def kind_of(text, continues):
    text = text.strip()
    if continues or text.startswith("#"):
        return "macro"
    if re.match(r"///(?!<)", text):
        return "doc"
    if text.startswith("//") and not text.startswith("///<"):
        return "note"
    return "code" if text else "blank"


def code_of(text):
    """Without strings and comments."""
    text = re.sub(r'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])\'', "''", text)
    return re.sub(r"/\*.*?\*/|//.*", "", text)


def scope_of(head):
    """What a brace opens, and whether what is in it is hidden."""
    head = re.sub(r"^template ?<.*?> ?(?=class|struct)", "", " ".join(head.split()))
    if head.startswith("namespace"):
        return "namespace", False
    if head.startswith("enum"):
        return "enum", False
    if re.match(r"(class|struct|union)\b", head):
        return "class", head.startswith("class")
    return "code", True


class Scan:
    def __init__(self, texts):
        self.lines, self.scopes, self.head, self.brackets, self.first = [], [("namespace", False)], "", 0, None
        continues = False
        for text in texts:
            line = Line(text, self.scopes, kind_of(text, continues))
            self.lines.append(line)
            continues = line.kind == "macro" and text.endswith("\\")
            if line.kind == "code":
                self.read(line, code_of(text).strip())

    def read(self, line, code):
        access = re.match(r"(public|protected|private|Q_SIGNALS)\s*:(?!:)", code)
        if access and self.scopes[-1][0] == "class":
            self.scopes[-1] = ("class", access[1] == "private")
            line.kind, self.head = "access", ""
            return
        if code and not self.head.strip() and self.brackets == 0:
            line.begins, self.first = True, line
        if self.first:
            self.first.whole += " " + code
        for char in code:
            self.step(char)
        if self.brackets == 0 and re.fullmatch(r"\s*Q_[A-Z_]+\(.*\)\s*", self.head):
            self.head = ""  # Qt's macros take no semicolon
        self.head += " "
        line.ends, line.after = not self.head.strip() and self.brackets == 0, len(self.scopes)

    def step(self, char):
        self.brackets += {"(": 1, ")": -1}.get(char, 0)
        if char == "{":
            self.scopes.append(scope_of(self.head) if self.brackets == 0 else ("code", True))
        elif char == "}":
            self.scopes.pop()
        elif char != ";" or self.brackets:
            self.head += char
            return
        self.head = ""
