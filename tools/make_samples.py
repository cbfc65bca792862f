#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes the sample recordings of samples/: a painting, a signature, a sketch and some shapes.

Needs nothing but Python 3; the same bytes come out every time.

    tools/make_samples.py [folder]     the default is samples beside this folder
"""

import json
import math
import sys
from pathlib import Path

sys.dont_write_bytecode = True  # no __pycache__ in the source tree

from garden_painting import painting  # noqa: E402
from pen_hand import Hand, ease  # noqa: E402

# Handwriting as other programs record it

LETTERS = (  # "Mira", then a flourish: points in units of one tenth of the letter height
    [(0, 10), (1.2, 4), (2.0, 0), (3.0, 4), (4.4, 8.2), (5.8, 3.6), (6.8, 0), (7.4, 5), (8.2, 10.2), (9.4, 9.6)],
    [(10.6, 5.2), (10.9, 7.6), (11.2, 9.8), (12.4, 9.2), (13.2, 6.4), (13.5, 5.0), (14.6, 5.8), (14.5, 8.2),
     (15.3, 10), (16.6, 9.0), (18.0, 6.2), (19.2, 5.0), (17.8, 5.0), (16.7, 7.6), (17.6, 9.9), (19.2, 8.4),
     (19.8, 5.4), (19.6, 8.4), (20.4, 10.1), (22.4, 8.6)],
    [(10.7, 2.4), (11.0, 2.8)],
    [(-0.6, 13.4), (6.0, 12.2), (14.0, 12.0), (23.0, 11.2), (25.0, 12.4), (21.0, 13.6), (26.6, 13.0)],
)


def as_ink_numbers(samples):
    """Values of the first two samples as they are, then velocities' changes: InkML's "''" form."""
    rows = [tuple(round(value) for value in sample) for sample in samples]
    parts = [" ".join(str(value) for value in rows[0])]
    steps = [tuple(b - a for a, b in zip(first, second)) for first, second in zip(rows, rows[1:])]
    for index, step in enumerate(steps):
        if index == 0:
            parts.append(" ".join(f"'{value}" for value in step))
            continue
        turn = [value - before for value, before in zip(step, steps[index - 1])]
        parts.append(" ".join((f'"{value}' if index == 1 else str(value)) for value in turn))
    return ", ".join(parts)


def signature():
    hand = Hand(77)
    traces = []
    for letter in LETTERS:
        points = [(600 + 260 * x, 700 + 260 * y) for x, y in letter]
        samples = hand.trace(points, pace=105, tremor=3.5, pressure=(0.2, 0.75, 0.15), rise=0.15, fall=0.25)
        traces.append([(x, y, 1023 * force) for x, y, force in samples])
    rows = []
    for index, samples in enumerate(traces):
        if index == 0:  # plain values, as programs write a short first stroke
            body = ", ".join(" ".join(str(round(value)) for value in sample) for sample in samples)
        else:
            body = as_ink_numbers(samples)
        rows.append(f'  <trace xml:id="stroke{index + 1}" contextRef="#pen" brushRef="#ink">{body}</trace>\n')
    return f"""<?xml version="1.0" encoding="UTF-8"?>
<ink xmlns="http://www.w3.org/2003/InkML">
  <definitions>
    <traceFormat xml:id="position-and-force">
      <channel name="X" type="integer" min="0" max="8200" units="himetric"/>
      <channel name="Y" type="integer" min="0" max="5400" units="himetric"/>
      <channel name="F" type="integer" min="0" max="1023" units="dev"/>
    </traceFormat>
    <context xml:id="pen" traceFormatRef="#position-and-force"/>
    <brush xml:id="ink">
      <brushProperty name="width" value="70" units="himetric"/>
      <brushProperty name="color" value="#1c2a4a"/>
    </brush>
  </definitions>
{"".join(rows)}</ink>
"""


SKETCH = (  # a pear and a leaf on a table
    [(310, 170), (262, 232), (240, 318), (190, 392), (186, 486), (254, 548), (352, 550), (424, 490), (424, 396),
     (376, 318), (356, 232), (312, 170)],
    [(312, 172), (318, 138), (340, 102), (356, 96)],
    [(322, 130), (372, 92), (446, 88), (492, 118), (438, 146), (374, 146), (324, 132)],
    [(328, 130), (392, 118), (476, 118)],
    [(232, 400), (222, 444), (238, 490)],
    [(388, 400), (402, 440), (392, 490), (360, 520)],
    [(368, 380), (384, 430), (370, 490), (338, 526)],
    [(350, 366), (364, 430), (346, 494), (312, 530)],
    [(120, 540), (182, 536)],
    [(430, 534), (560, 528), (688, 534)],
    [(300, 566), (400, 572), (500, 562), (566, 566)],
    [(320, 582), (410, 586), (480, 578)],
)


def sketch():
    """Rows "seconds x y pressure" from a tablet at 125 Hz; while the pen hovers, pressure is 0."""
    hand = Hand(5150)
    rows, tick = [], 0
    last = None

    def add(x, y, force):
        nonlocal tick
        # A tablet skips a report now and then.
        tick += 1 if hand.unit() < 0.94 else 2
        rows.append(f"{tick * 0.008:.3f} {x:.2f} {y:.2f} {force:.4f}\n")

    for points in SKETCH:
        if last:
            reach = math.dist(last, points[0])
            steps = 34 + int(reach / 6)
            for step in range(1, steps):
                share = ease(step / steps)
                lift = 12 * math.sin(math.pi * share)
                add(last[0] + (points[0][0] - last[0]) * share, last[1] + (points[0][1] - last[1]) * share - lift, 0.0)
        for x, y, force in hand.trace(points, pace=2.15, tremor=0.6, pressure=(0.1, 0.62, 0.12), rise=0.12, fall=0.2):
            add(x, y, force)
        last = points[-1]
    for _ in range(12):
        add(hand.around(last[0], 0.6), hand.around(last[1], 0.6), 0.0)
    return "".join(rows)


# Shapes as a hand draws them, and two strokes that are none. Corners, in the order drawn.
SHAPES = (
    ("#20506e", [(60, 92), (330, 84)]),
    ("#20506e", [(392, 60), (422, 122), (508, 34)]),
    ("#20506e", [(640, 52), (566, 56), (562, 136), (644, 140)]),
    ("#a03c28", [(96, 226), (302, 218), (310, 356), (92, 364), (94, 230)]),
    ("#a03c28", [(434, 216), (528, 360), (352, 356), (430, 222)]),
    ("#a03c28", [(632, 226), (800, 220), (740, 352), (566, 358), (630, 230)]),
    ("#2f6b3a", [(150 + 78 * math.cos(0.2 * i - 1.4), 486 + 74 * math.sin(0.2 * i - 1.4)) for i in range(33)]),
    ("#2f6b3a", [(394 + 108 * math.cos(0.2 * i) - 14 * math.sin(0.2 * i), 488 + 46 * math.sin(0.2 * i))
                 for i in range(32)]),
    ("#2f6b3a", [(610 + 88 * math.cos(0.15 * i + 2.9), 530 + 86 * math.sin(0.15 * i + 2.9)) for i in range(26)]),
    ("#6a4a8c", [(716, 132), (872, 46), (824, 48), (870, 44), (854, 92)]),
    ("#7a7a7a", [(760, 440), (792, 410), (824, 440), (856, 474), (888, 442), (920, 408), (948, 436)]),
    ("#7a7a7a", [(840 + (6 + 4.2 * i) * math.cos(0.5 * i), 576 + (6 + 2.6 * i) * math.sin(0.5 * i)) for i in range(25)]),
)


def shapes():
    hand = Hand(31)
    strokes = []
    for colour, corners in SHAPES:
        points = corners[:1]
        straight = len(corners) < 7  # the others are curves already
        for corner in corners[1:]:
            pieces = max(2, int(math.dist(points[-1], corner) / 14)) if straight else 1
            x, y = points[-1]
            bow = hand.around(0, 3) if straight else 0
            for piece in range(1, pieces + 1):
                share = piece / pieces
                lean = bow * math.sin(math.pi * share)
                points.append((x + (corner[0] - x) * share + lean, y + (corner[1] - y) * share + lean))
        samples = hand.trace(points, pace=7, tremor=1.0, pressure=(0.35, 0.8, 0.4), rise=0.06, fall=0.1)
        strokes.append({"set": {"radius": 9, "renderColor": colour}, "samples": samples})
    head = {"canvas": {"width": 980, "height": 680, "background": "#fbf8f0ff"}}
    lines = ",\n".join(json.dumps(stroke) for stroke in strokes)
    return json.dumps(head)[:-1] + ',\n"strokes":[\n' + lines + "\n]}\n"


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent / "samples"
    folder.mkdir(parents=True, exist_ok=True)
    for name, text in (("garden.json", painting()), ("signature.inkml", signature()), ("sketch.dat", sketch()),
                       ("shapes.json", shapes())):
        (folder / name).write_text(text, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
