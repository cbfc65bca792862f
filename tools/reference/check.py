# SPDX-License-Identifier: MIT
"""Tells what Doxygen alone does not, from its XML: check.py FOLDER

Classes, enumerations and free functions that nothing is said about, and names in the text of what there is not: functions,
headers, and all that is spelled as names of code are.
"""

import re
import sys
import xml.etree.ElementTree as xml
from pathlib import Path

# Of other libraries, formats and this one's inside.
ELSEWHERE = set(
    "drand48 fclose ferror fmemopen free fromRawData main malloc rand srand strcmp deleteLater currentContext release destroy "
    "glUseProgram glValidateProgram OpenGL QtGui QtWidgets QtQuick InkML clipPath penUp MyPaint BrushState kResetOrder".split()
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
    about = f"{where(compound)}: {compound.findtext('compoundname')} speaks of"
    for part in [*compound.iter("briefdescription"), *compound.iter("detaileddescription")]:
        text = "".join(mentions(part))
        names = re.findall(r"(?<![\w.:])(\w+)\(\)", text)
        names += re.findall(r"(?<![\w.:/\"])((?:[A-Z][a-z]+|[a-z]+)[A-Z]\w+)\b(?![(.])", text)
        yield from (f"{about} {name}, which there is not" for name in names if name not in known)
        for name in re.findall(r"\b\w+\.h\b", text):
            yield f"{about} {name}, which is not installed"


def main(folder):
    compounds = [
        compound
        for path in sorted(Path(folder).glob("*.xml"))
        for compound in xml.parse(path).getroot().findall("compounddef")
        if compound.get("kind") in ("class", "struct", "union", "namespace", "group", "file")
    ]
    known = ELSEWHERE | {compound.findtext("compoundname").split("::")[-1] for compound in compounds}
    for tag in ("name", "declname", "defname"):
        known.update(name.text for compound in compounds for name in compound.iter(tag))
    problems = set()
    for compound in compounds:
        problems.update(undocumented(compound))
        problems.update(dangling(compound, known))
    for problem in sorted(problems):
        print(problem, file=sys.stderr)
    return 1 if problems or len(compounds) < 100 else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
