# SPDX-License-Identifier: MIT
"""Writes what Doxygen reads: sources.py FOLDER

Headers are free of commands. What house style says once is said here in Doxygen's words:

    /// \\file                the functions and types of the header are a topic of their own, else they are its library's
    /// Units    pixels      a paragraph of that name; indented by two, a parameter of that name, or an item of a list
    ///     code             a sample
    // ---- Paint            members up to the next such line are listed under that name; // below it is about them all
    /// ...                  is about all declarations that follow without a blank line or a comment of their own
    #include "...List.h"     inside of a class: the members that it gives for each brush property, with that row's text
"""

import re
import subprocess
import sys
from functools import cache
from pathlib import Path

from headers import ROOT, SOURCES, about_library, libraries

PROPERTIES = "Brushes/BrushPropertyList.h"
LONG = 240  # characters of a comment that is told once and pointed to, not repeated


def topic_of_library(name):
    return f"library_{name.lower()}"


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
def told_rows():
    """The list of properties, the text of a row above it."""

    def told(row):
        about = "".join(re.findall(r'"([^"]*)"', row[0][row[0].index(".about") :]))
        return f"/// {about}\n{row[0]}"

    rows = (SOURCES / PROPERTIES).read_text()
    rows = rows[rows.index("#ifndef BRUSH_PROPERTY") :]
    return re.sub(r"^BRUSH_\w+\(.*?\)\n(?=BRUSH|// clang)", told, rows, flags=re.M | re.S)


def with_properties(lines):
    """The lines of a header, its own macros used up."""
    defines, out, rest = {}, [], iter(lines)
    for line in rest:
        if line.startswith(f'#include "{PROPERTIES}"'):
            out += ["", *preprocessed(defines.values(), told_rows()), ""]
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


# ---- Comments, in Doxygen's words


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


# ---- A header anew

# Declarations that a comment above others is not about.
APART = re.compile(
    r"= delete|\bstatic_assert\b|\bfriend\b|~\w+\(|operator=\(|^ *using [^=]*;|^ *(Q_[A-Z]|[}\])])"
    r"|^ *(template ?<[^{;]*> *)?(class|struct|union|enum|namespace|typedef)\b"
)


class Header:
    def __init__(self, header, library):
        texts = (SOURCES / header).read_text().split("\n")
        uses = header != PROPERTIES and any(text.startswith(f'#include "{PROPERTIES}"') for text in texts)
        self.header, self.topic = header, topic_of_library(library)
        self.lines = Scan(one_by_one(with_properties(texts) if uses else texts)).lines
        self.out, self.shared, self.section = [], None, 0

    def say(self, comment, indent=""):
        self.out += [f"{indent}/// {line}".rstrip() for line in comment]

    def written(self):
        """A topic's braces do not reach into those of a namespace."""
        at = 0
        while at < len(self.lines):
            line = self.lines[at]
            if line.text == "#pragma once":
                self.open_topic()
            elif re.match(r"namespace .*\{|\}  // namespace", line.text):
                self.out += ["/// @}", line.text]
                self.open_topic()
            elif line.kind == "doc" and not line.hidden:
                at = self.documented(at)
                continue
            elif line.text.strip().startswith("// ----") and not line.hidden:
                at = self.open_section(at)
                continue
            elif line.kind == "code":
                at = self.code(at)
                continue
            else:
                if line.kind == "access":
                    self.close_section()
                self.out.append(line.text)
            self.shared = None
            at += 1
        return "\n".join(self.out + ["/// @}", ""])

    def take(self, at):
        """The texts of the lines of one kind from here on, and where the next is."""
        end = at
        while end < len(self.lines) and self.lines[end].kind == self.lines[at].kind:
            end += 1
        return [line.text for line in self.lines[at:end]], end

    def open_topic(self):
        self.say([f"\\addtogroup {self.topic}", "@{"])

    def documented(self, at):
        """A comment, and what it is about: takes it and stops at that."""
        texts, end = self.take(at)
        comment = [re.sub(r"^\s*/// ?", "", text) for text in texts]
        if comment[0] == "\\file":
            stem, library = Path(self.header).stem, self.topic
            self.topic = f"header_{stem}"
            self.say([f"\\defgroup {self.topic} {stem}.h", f"\\ingroup {library}", *Comment(comment[1:]).out])
            self.say(["", f"`#include <{self.header}>`"])
            return end
        about = self.lines[end]
        made = Comment(comment, about.whole).out
        self.say(made, self.lines[at].indent)
        if about.kind == "code":
            about.told, self.shared = True, pointing(made, about.whole)
        return end

    def close_section(self):
        if self.section:
            self.say(["@}"])
        self.section = 0

    def open_section(self, at):
        texts, end = self.take(at)
        self.close_section()
        head = re.match(r"// ---- (.*?)(?: ----)?$", texts[0].strip())[1]
        title, rest = re.match(r"(.*?)(?:[;:.] (.*)| \((.*)\))?$", head).group(1, 2)
        about = ([sentence(rest)] if rest and len(texts) == 1 else [capital(rest)] if rest else []) + [text.strip()[3:] for text in texts[1:]]
        self.say([f"\\name {title[0].upper()}{title[1:]}", *Comment(about).out, "@{"])
        self.section, self.shared = self.lines[at].depth, None
        return end

    def code(self, at):
        line = self.lines[at]
        if line.begins and line.ends and re.search(r"operator=\(.*= delete", line.whole):
            return at + 1  # which the deleted constructor above it says
        if line.begins and not line.hidden and line.scope != "enum":
            if APART.search(line.whole) or self.has_remark(at):
                self.shared = self.shared if line.told and line.whole.startswith(" using ") else None
            elif self.shared and not line.told:
                self.say(self.shared, line.indent)
        if self.section and line.after < self.section:
            self.close_section()
        remark = re.match(r"(.*)///< ?(.*)", line.text)
        at += 1
        if not remark:
            self.out.append(line.text)
            return at
        words = [remark[2]]
        while self.lines[at].text.strip().startswith("///<"):
            words.append(self.lines[at].text.strip()[4:].strip())
            at += 1
        self.out.append(f"{remark[1]}///< {plain(sentence(' '.join(words)))}")
        return at

    def has_remark(self, at):
        while "///<" not in self.lines[at].text and not self.lines[at].ends and at + 1 < len(self.lines):
            at += 1
        return "///<" in self.lines[at].text


def list_of_properties():
    """The topic of the list alone: its rows are told where they are used."""
    text = (SOURCES / PROPERTIES).read_text().split("// clang-format")[0]
    header = Header(PROPERTIES, next(name for name, headers in libraries().items() if PROPERTIES in headers))
    header.lines = Scan(text.strip().split("\n") + ["", "#pragma once"]).lines
    return header.written()


def libraries_page():
    out = ["/**"]
    for name in libraries():
        about, needs = about_library(name)
        out += [f"\\defgroup {topic_of_library(name)} {name}", f"{about[0].upper()}{about[1:]}.", ""]
        out += [f"To link: `Dabcanvas::{name}`" + (f"; needs, besides the libraries below it: {needs}." if needs else "."), ""]
    out += ["\\namespace dabcanvas", "What has no name of old, and all that comes."]
    return "\n".join(out + ["*/", ""])


def guide_page():
    """The pages of the guide, each of which ends in a link to the next."""
    texts = {path.name: path.read_text() for path in (ROOT / "docs/guide").glob("*.md")}
    following = {name: re.search(r"^Next: .*\]\((.*?)\)", text, re.M) for name, text in texts.items()}
    following = {name: link[1] for name, link in following.items() if link}
    name = next((name for name in texts if name not in following.values()), None)
    out, listed = ["# Guide", ""], set()
    while name in texts and name not in listed:
        listed.add(name)
        about = re.match(r"# [^\n]*\n\n(.*?[.:])(?=\s)", texts[name], re.S)[1].rstrip(":.")
        label = re.sub(r"\W", "_", name.removesuffix(".md"))
        out += [f"- \\subpage md_docs_guide_{label} <br>", f"  {' '.join(about.split())}."]
        name = following.get(name)
    if listed != set(texts):
        raise SystemExit(f"no page of the guide leads to {', '.join(sorted(set(texts) - listed))}")
    return "\n".join(out + [""])


def main(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for library, headers in libraries().items():
        for header in headers:
            path = folder / header
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(list_of_properties() if header == PROPERTIES else Header(header, library).written())
    (folder / "libraries.dox").write_text(libraries_page())
    if (ROOT / "docs/guide").is_dir():
        (folder / "guide.md").write_text(guide_page())
    # Headings of the first page would stand beside the other pages in the list of contents.
    readme = (ROOT / "README.md").read_text()
    (folder / "README.md").write_text(re.sub(r"^## (.*)$", r"<h2>\1</h2>", readme, flags=re.M))


if __name__ == "__main__":
    main(Path(sys.argv[1]))
