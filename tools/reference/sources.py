# SPDX-License-Identifier: MIT
"""Writes what Doxygen reads: sources.py FOLDER [PAGES]

PAGES is where dabpaint has written properties.md, the page of brush properties.

Headers are free of commands. What house style says once is said here in Doxygen's words:

    /// \\file                the functions and types of the header are a topic of their own, else they are its library's
    /// Units    pixels      a paragraph of that name; indented by two, a parameter of that name, or an item of a list
    ///     code             a sample
    // ---- Paint            members up to the next such line are listed under that name; // below it is about them all
    /// ...                  is about all declarations that follow without a blank line or a comment of their own
    #include "...List.h"     inside of a class: the members that it gives for each brush property, with that row's text
"""

import re
import sys
from pathlib import Path

from comments import Comment, capital, plain, pointing, sentence
from declarations import PROPERTIES, Scan, one_by_one, with_properties
from headers import ROOT, SOURCES, about_library, libraries


def topic_of_library(name):
    return f"library_{name.lower()}"


# Declarations that a comment above others is not about.
APART = re.compile(
    r"= delete|\bstatic_assert\b|\bfriend\b|~\w+\(|operator=\(|^ *using [^=]*;|^ *(Q_[A-Z]|[}\])])"
    r"|^ *(template ?<[^{;]*> *)?(class|struct|union|enum|namespace|typedef)\b"
)


class Header:
    def __init__(self, header, library, is_pictured=False):
        texts = (SOURCES / header).read_text().split("\n")
        uses = header != PROPERTIES and any(text.startswith(f'#include "{PROPERTIES}"') for text in texts)
        self.header, self.topic = header, topic_of_library(library)
        self.lines = Scan(one_by_one(with_properties(texts, is_pictured) if uses else texts)).lines
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
    out += ["\\namespace dabcanvas", "The newer names; those of old are global."]
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
        about = re.match(r"# [^\n]*\n\n(.*?[.])(?=\s)", texts[name], re.S)[1]
        label = re.sub(r"\W", "_", name.removesuffix(".md"))
        out += [f"- \\subpage md_docs_guide_{label} <br>", f"  {' '.join(about.split())}"]
        name = following.get(name)
    if listed != set(texts):
        raise SystemExit(f"no page of the guide leads to {', '.join(sorted(set(texts) - listed))}")
    return "\n".join(out + [""])


def properties_page(pages):
    """With a place for each property to lead to."""
    text = (pages / "properties.md").read_text()
    return re.sub(r"^### (\w+)$", r"### \1 {#property_\1}", text, flags=re.M)


def main(folder, pages=None):
    folder.mkdir(parents=True, exist_ok=True)
    if pages:
        (folder / "properties.md").write_text(properties_page(pages))
    for library, headers in libraries().items():
        for header in headers:
            path = folder / header
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(list_of_properties() if header == PROPERTIES else Header(header, library, bool(pages)).written())
    (folder / "libraries.dox").write_text(libraries_page())
    if (ROOT / "docs/guide").is_dir():
        (folder / "guide.md").write_text(guide_page())
    # Headings of the first page would stand beside the other pages in the list of contents.
    readme = (ROOT / "README.md").read_text()
    (folder / "README.md").write_text(re.sub(r"^## (.*)$", r"<h2>\1</h2>", readme, flags=re.M))


if __name__ == "__main__":
    main(*map(Path, sys.argv[1:]))
