# SPDX-License-Identifier: MIT
"""What the libraries install, by SRC_New/CMakeLists.txt, and what they are, by README.md."""

import re
from functools import cache
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SOURCES = ROOT / "SRC_New"


@cache
def libraries():
    """Name -> installed headers, relative to SRC_New; libraries from the ground up."""
    text = (SOURCES / "CMakeLists.txt").read_text()
    lists = {name: words.split() for name, words in re.findall(r"^set\((\w+) ([^)]*)\)", text, re.M)}
    found, known = {}, set()
    for call in re.findall(r"^dabcanvas_library\((.*?)^(?=\S)", text, re.S | re.M):
        key, values = "", {"INSIDE": []}
        for word in re.findall(r'"[^"]*"|\$\{\w+\}|[^\s()]+', call):
            if re.fullmatch("EXPORT|ROOMS|HEADERS|INSIDE|VARIABLES|PUBLIC|PRIVATE", word):
                key = word
            else:
                is_list = word.startswith("${")
                values.setdefault(key, []).extend(lists.get(word[2:-1], []) if is_list else [word.strip('"')])
        inside = re.compile("|".join(values["INSIDE"]) or "$^")
        own = [f"Maths/{name}.h" for name in values.get("HEADERS", [])]  # as CMake's list is transformed
        for room in values["ROOMS"]:
            own += sorted(f"{room}/{path.name}" for path in (SOURCES / room).glob("*.h"))
        name = values["EXPORT"][0]
        found[name] = [header for header in own if not inside.search(f"/{header}") and header not in known]
        known.update(found[name])
    return found


def about_library(name):
    """What README.md's table says it is, and needs."""
    row = re.search(rf"^\| `Dabcanvas::{name}` \| (.*?) \| (.*?) *\|$", (ROOT / "README.md").read_text(), re.M)
    if not row:
        raise SystemExit(f"README.md has no row for Dabcanvas::{name} in its table of libraries")
    return row.groups()
