# SPDX-License-Identifier: MIT
"""Tells what Doxygen alone does not, from its XML: check.py FOLDER

Classes, enumerations and free functions that nothing is said about, and names of functions and headers in the text that
lead nowhere, as they are nowhere.
"""

import re
import sys
import xml.etree.ElementTree as xml
from pathlib import Path

# Of the C library, Qt, POSIX and the like.
ELSEWHERE = set(
    "drand48 fclose ferror fmemopen free fromRawData main malloc rand srand strcmp deleteLater "
    "currentContext glValidateProgram release destroy".split()
)


def says_something(element):
    return any(
        "".join(element.find(part).itertext()).strip()
        for part in ("briefdescription", "detaileddescription")
        if element.find(part) is not None
    )


def where(element):
    place = element.find("location")
    return f"{place.get('file')}" if place is not None else "?"


def undocumented(compound):
    kind = compound.get("kind")
    name = compound.findtext("compoundname")
    if kind in ("class", "struct", "union") and compound.get("prot") != "private" and not says_something(compound):
        yield f"{where(compound)}: nothing is said about {kind} {name}"
    for member in compound.iter("memberdef"):
        wanted = member.get("kind") == "enum" or (member.get("kind") == "function" and kind not in ("class", "struct", "union"))
        if wanted and member.get("prot") == "public" and not says_something(member):
            yield f"{where(member)}: nothing is said about {member.findtext('qualifiedname') or member.findtext('name')}"


BLOCKS = ("title", "para", "listitem", "simplesect", "parameterlist")


def mentions(element):
    """Text outside of links and code."""
    if element.tag in ("ref", "programlisting", "computeroutput", "ulink"):
        return
    yield (" " if element.tag in BLOCKS else "") + (element.text or "")
    for child in element:
        yield from mentions(child)
        yield child.tail or ""


def dangling(compound, known):
    for part in list(compound.iter("briefdescription")) + list(compound.iter("detaileddescription")):
        text = "".join(mentions(part))
        for name in re.findall(r"(?<![\w.:])(\w+)\(\)", text):
            if name not in known:
                yield f"{where(compound)}: {compound.findtext('compoundname')} speaks of {name}(), which there is not"
        for name in re.findall(r"\b(\w+\.h)\b", text):
            yield f"{where(compound)}: {compound.findtext('compoundname')} speaks of {name}, which is not installed"


def main(folder):
    compounds = [
        compound
        for path in sorted(Path(folder).glob("*.xml"))
        for compound in xml.parse(path).getroot().findall("compounddef")
        if compound.get("kind") in ("class", "struct", "union", "namespace", "group", "file")
    ]
    known = ELSEWHERE | {name.text for compound in compounds for name in compound.iter("name")}
    problems = set()
    for compound in compounds:
        problems.update(undocumented(compound))
        problems.update(dangling(compound, known))
    for problem in sorted(problems):
        print(problem, file=sys.stderr)
    return 1 if problems or len(compounds) < 100 else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
