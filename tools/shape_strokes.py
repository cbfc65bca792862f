#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes labelled strokes of shapes as hands draw them, to tune and measure the shape recogniser on.

Needs Python 3 and numpy; the same strokes come out every time for the same arguments.

    tools/shape_strokes.py -o FOLDER [--seed 1] [--count 200] [--family program|people] [--only KIND,...]

FOLDER gets strokes.csv (a row a sample), labels.csv (a row a stroke) and ideal.csv (the meant outlines where a shape
was meant; a closed one repeats its first point). `--count` is for each kind. Families:

    people     signs, shapes and doodles by virtual writers who keep their habits; six strokes of each kind a writer
    program    shapes of random proportions, turned anyhow, by hands of random sloppiness
"""

import argparse
import sys
from pathlib import Path

sys.dont_write_bytecode = True  # no __pycache__ in the source tree

import numpy as np  # noqa: E402

from shapes import people, program  # noqa: E402

FAMILIES = {"people": people, "program": program}


def span(text):
    low, _, high = text.partition("-")
    low, high = float(low), float(high or low)
    if not 0 <= low <= high < float("inf"):
        raise ValueError
    return low, high


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("-o", dest="folder", required=True, type=Path)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--count", type=int, default=200, help="strokes of each kind")
    parser.add_argument("--family", choices=FAMILIES, default="people")
    parser.add_argument("--only", default="", help="kinds, with commas between")
    parser.add_argument("--but", default="", help="kinds left out, with commas between")
    parser.add_argument("--size", type=span, default=(30, 700), metavar="LOW-HIGH",
                        help="pixels; this and the next for the family program")
    parser.add_argument("--slop", type=span, default=(0, 1.1), metavar="LOW-HIGH", help="1 is hasty")
    parser.add_argument("--rate", type=span, default=(50, 200), metavar="LOW-HIGH", help="samples a second")
    parser.add_argument("--speed", type=span, default=(190, 1150), metavar="LOW-HIGH", help="pixels a second")
    parser.add_argument("--haste", type=span, default=(0, 0), metavar="LOW-HIGH",
                        help="how hurried the fast strokes are, 1 is visibly; this and the next for the family people")
    parser.add_argument("--hand", choices=("led", "thrown"), default="led",
                        help="led along the line that is meant, or thrown from corner to corner")
    options = parser.parse_args()
    if min(options.count, options.seed) < 0:
        parser.error("--count and --seed are not negative")
    if 0 in (options.size[0], options.rate[0], options.speed[0]):
        parser.error("--size, --rate and --speed are above 0")
    return options


class Writer:
    def __init__(self, folder):
        folder.mkdir(parents=True, exist_ok=True)
        self.strokes = open(folder / "strokes.csv", "w", encoding="ascii")
        self.labels = open(folder / "labels.csv", "w", encoding="ascii")
        self.ideal = open(folder / "ideal.csv", "w", encoding="ascii")
        self.strokes.write("sample_id,label,subject,speed,t_ms,x,y\n")
        self.labels.write("sample_id,gesture,label,accept,legs,subject,speed,points,note\n")
        self.ideal.write("sample_id,closed,x,y\n")

    def add(self, name, subject, meant, speed, times, points):
        head = f"{name},{meant.label},{subject},{speed},"
        form = head + ("%d,%d,%d\n" if (points == np.rint(points)).all() else "%d,%.2f,%.2f\n")
        self.strokes.write("".join([form % row for row in zip(times.tolist(), *points.T.tolist())]))
        self.labels.write(f"{name},{meant.gesture},{meant.label},{meant.accept or meant.label},{meant.folds or ''},"
                          f"{subject},{speed},{len(points)},{meant.note}\n")
        if meant.outline is not None:
            form = f"{name},{int(meant.closed)},%.1f,%.1f\n"
            self.ideal.write("".join([form % tuple(row) for row in meant.outline.tolist()]))

    def close(self):
        for file in (self.strokes, self.labels, self.ideal):
            file.close()


def main():
    options = arguments()
    family = FAMILIES[options.family]
    kinds = [kind for kind in options.only.split(",") if kind] or list(family.KINDS)
    left_out = [kind for kind in options.but.split(",") if kind]
    unknown = [kind for kind in kinds + left_out if kind not in family.KINDS]
    if unknown:
        sys.exit(f"shape_strokes: no such kind: {', '.join(unknown)}; there are {', '.join(family.KINDS)}")
    settings = {name: getattr(options, name) for name in ("size", "slop", "rate", "speed", "haste", "hand")}
    try:
        writer = Writer(options.folder)
    except OSError as error:
        sys.exit(f"shape_strokes: {error}")
    for kind in [kind for kind in kinds if kind not in left_out]:
        drawn = family.strokes(kind, options.count, options.seed, settings)
        for i, (meant, subject, speed, times, points) in enumerate(drawn):
            writer.add(f"{kind}-{options.seed}-{i:05d}", subject, meant, speed, times, points)
    writer.close()


if __name__ == "__main__":
    main()
