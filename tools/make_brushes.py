#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes the brush presets in samples/brushes with dabpaint, from the tables of brushes_*.py.

Needs Python 3 with numpy and a built dabpaint; the same brushes come out every time.

    tools/make_brushes.py [--dabpaint PROGRAM] [--sheet SHEET.jpg] [NAME...]

The program is build/release/bin/dabpaint unless another is named; with names only those brushes are made. A sheet shows
all of them.
"""

import argparse
import subprocess
import sys
import tempfile
from pathlib import Path

sys.dont_write_bytecode = True  # no __pycache__ in the source tree

# Each fills the table; the order is that of the sheet.
import brushes_dry, brushes_ink, brushes_water, brushes_oil, brushes_air  # noqa: E401, F401
from brush_table import BRUSHES

ROOT = Path(__file__).resolve().parent.parent
FOLDER = ROOT / "samples" / "brushes"
AUTHOR, LICENCE = "Dabcanvas", "CC0-1.0"


def file_name(name):
    return name.lower().replace(" ", "-") + ".xbf"


def written(value, folder, key):
    """A setting as dabpaint takes it; images become files in the folder."""
    if isinstance(value, bytes):
        value = [value]
    if isinstance(value, list):
        paths = [folder / f"{key}-{place}.png" for place in range(len(value))]
        for path, image in zip(paths, value):
            path.write_bytes(image)
        return ",".join(map(str, paths))
    if isinstance(value, bool):
        return "yes" if value else "no"
    if isinstance(value, tuple):
        return ",".join(map(str, value))
    return str(value)


def make(program, name):
    brush = BRUSHES[name]
    with tempfile.TemporaryDirectory() as folder:
        words = [program, "preset", "make", "-o", FOLDER / file_name(name), "--name", name,
                 "--tags", ",".join(brush.tags), "--about", brush.about, "--author", AUTHOR, "--licence", LICENCE]
        for key, value in brush.settings.items():
            words += ["--set", f"{key}={written(value, Path(folder), key)}"]
        subprocess.run(words, check=True)


def main():
    parser = argparse.ArgumentParser(description="Makes the brush presets in samples/brushes.")
    parser.add_argument("--dabpaint", default=ROOT / "build" / "release" / "bin" / "dabpaint", metavar="PROGRAM")
    parser.add_argument("--sheet", metavar="SHEET.jpg")
    parser.add_argument("names", nargs="*", metavar="NAME")
    options = parser.parse_args()
    unknown = [name for name in options.names if name not in BRUSHES]
    if unknown:
        sys.exit(f"no brush is called {', '.join(unknown)}")
    FOLDER.mkdir(parents=True, exist_ok=True)
    try:
        for name in options.names or BRUSHES:
            make(options.dabpaint, name)
        if options.sheet:
            files = [FOLDER / file_name(name) for name in BRUSHES]
            subprocess.run([options.dabpaint, "preset", "sheet", *files, "-o", options.sheet], check=True)
    except (OSError, subprocess.CalledProcessError) as fault:
        sys.exit(str(fault))


if __name__ == "__main__":
    main()
