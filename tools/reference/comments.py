# SPDX-License-Identifier: MIT
"""Comments in Doxygen's words."""

import re
from functools import cache
from pathlib import Path

from headers import SOURCES, libraries

LONG = 240  # characters of a comment that is told once and pointed to, not repeated


@cache
def targets():
    """Header's name -> what a mention of it leads to: its topic, or its class."""
    found = {}
    for header in (header for headers in libraries().values() for header in headers):
        text, stem = (SOURCES / header).read_text(), Path(header).stem
        kind = r"^(?:class|struct|enum(?: class)?) (?:alignas\(\d+\) |DABCANVAS_\w+ )*"
        named = {m[1]: m.start() for m in re.finditer(kind + r"(\w+)\b[^;]*?\{", text, re.M)}
        if "/// \\file" in text:
            found[f"{stem}.h"] = f"header_{stem}"
        elif named:
            name = stem if stem in named else next(iter(named))
            inside = text[: named[name]].count("namespace dabcanvas {") > text[: named[name]].count("}  // namespace")
            found[f"{stem}.h"] = f"dabcanvas::{name}" if inside else name
    return found


def plain(text):
    """A line of text, of which nothing is a command; mentions of headers lead there."""

    def leads(mention):
        target = targets().get(mention[1])
        return f'\\ref {target} "{mention[1]}"' if target else mention[0]

    parts = re.split(r"(`[^`]*`)", text)
    for at in range(0, len(parts), 2):
        parts[at] = re.sub(r"([<>#@*&|])", r"\\\1", parts[at])
        parts[at] = re.sub(r"(?:\w+/)*\b(\w+\.h)\b", leads, parts[at])
        parts[at] = re.sub(r"\bdocs/(\w+)\.md\b", r'\\ref md_docs_\1 "\g<0>"', parts[at])
    return "".join(parts)


def capital(text):
    return text[0].upper() + text[1:] if re.match(r"(?!is |are |of |that )[a-z][a-z-]*[,;:. ]", text + " ") else text


def sentence(text):
    """A remark at a line's end, as a sentence."""
    return capital(text) if text[-1] in ".:!?" else capital(text) + "."


class Comment:
    """Takes the lines of a comment, without their slashes; `out` is what Doxygen is to have."""

    def __init__(self, lines, declaration=""):
        self.parameters = re.findall(r"(\w+)\s*(?:=[^,()]*|=.*?\{\})?\s*[,)]", declaration)
        self.out, self.inside, self.hang = [], "", 0
        for line, following in zip(lines, [*lines[1:], ""]):
            word = re.match(r"\S{8,} (?=\S)", line)
            if word and re.match(rf" {{{word.end()}}}\S", following):  # too long a name for two blanks after it
                line = f"{word[0]} {line[word.end():]}"
                self.take(line, 0)
                self.hang -= 1
            else:
                self.take(line, len(line) - len(line.lstrip()))
        self.close()

    def close(self):
        if self.inside == "code":
            while not self.out[-1].strip():
                self.out.pop()
            self.out.append("\\endcode")
        self.inside = ""

    def apart(self):
        if self.out and self.out[-1]:
            self.out.append("")

    def take(self, line, lead):
        named = re.match(r"( {0,2})(\S+(?:,? \S+)*?) {2,}(?=\S)", line)
        if self.inside == "code" and (lead >= 4 or not line.strip()):
            self.out.append(line[4:])
        elif self.inside == "item" and line.strip() and lead == self.hang:
            self.out.append("  " + plain(line.strip()))
        elif lead >= 4 and (not self.out or not self.out[-1] or self.out[-1].endswith(":")):
            self.begin_code(line)
        elif named:
            self.begin_item(len(named[1]), named[2], line[named.end() :], named.end())
        else:
            if self.inside and line.strip():
                self.close()
                self.apart()
            self.out.append(plain(line))

    def begin_code(self, line):
        self.close()
        language = ".qml" if "import Qt" in line else ".json" if line.strip()[0] == "{" else ".cpp"
        self.out += [f"\\code{{{language}}}", line[4:]]
        self.inside = "code"

    def begin_item(self, indent, name, text, hang):
        self.close()
        names = name.split(", ")
        if indent == 0:
            self.apart()
            self.out += [f"\\par {name}", plain(capital(text))]
        elif all(name in self.parameters for name in names):
            self.out.append(f"\\param {','.join(names)} {plain(text)}")
        else:
            if self.inside != "item" and self.out and not self.out[-1].startswith(("- ", "  ")):
                self.apart()
            self.out.append(f"- **{plain(name)}**: {plain(text)}")
        self.inside, self.hang = "item", hang


def pointing(comment, declaration):
    """A long comment in short, for one more declaration that it is about."""
    whole = " ".join(comment)
    name = re.search(r"(\w+)\(", declaration)
    if len(whole) < LONG or not name:
        return comment
    return [re.match(r".*?(?:[.:](?=\s)|$)", whole)[0].rstrip(":."), f"\\see {name[1]}()"]
