#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Fails for a text of a catalogue that is not translated, lost a place for a value or a key of the menu: FILE.ts..."""
import re
import sys
import xml.etree.ElementTree as ElementTree


def marks(text, pattern):
    return sorted(re.findall(pattern, text))


def faults(message):
    source, translation = message.findtext("source"), message.find("translation")
    forms = [form.text or "" for form in translation.findall("numerusform")] or [translation.text or ""]
    if translation.get("type") == "unfinished" or not all(forms):
        yield "is not translated"
    for form in forms:
        if marks(form, "%[0-9n]") != marks(source, "%[0-9n]"):
            yield f"has other values in \"{form}\""
        if len(marks(form, "&[^& ]")) != len(marks(source, "&[^& ]")):
            yield f"has other keys in \"{form}\""


wrong = [f"{path}: \"{message.findtext('source')}\" {fault}"
         for path in sys.argv[1:]
         for message in ElementTree.parse(path).getroot().iter("message")
         for fault in faults(message)]
print("\n".join(wrong[:20]), file=sys.stderr, end="\n" if wrong else "")
sys.exit(1 if wrong else 0)
