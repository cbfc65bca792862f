# SPDX-License-Identifier: MIT
"""The painting samples/garden.json: a lake garden in the morning mist. Used by make_samples.py."""

import json
import math

from pen_hand import Hand, curve_through, ease, mix

WIDTH, HEIGHT = 1200, 800
WATERLINE = 508
PAPER = "#f7f1e5ff"

# Brushes: what is not named has the value of PLAIN

PLAIN = {
    "textureType": 1, "textureControlValue": 1.0, "hardness": 0.0, "radius": 32.0, "flow": 1.0, "opacity": 1.0,
    "blendType": 1, "renderColor": "#000000", "backRenderColor": "#ffffff", "colorTingle": 0.0,
    "hueTingle": 0.0, "brightnessTingle": 0.0, "distribution": 0.0, "distributionCount": 1.0,
    "disTwoAxes": False, "radiusTingle": 0.0, "radiusControl": [0.0, 0.0, 0.0], "flowControl": [0.0, 0.0, 0.0],
    "flowTingle": 0.0, "minFlow": 0.05, "maxFlow": 1.0, "roundness": 1.0, "radian": 0.0, "radianTingle": 0.0,
    "moveRadianEnable": False, "minRadius": 1.0, "maxRadius": 1.0, "startRadius": 0.0, "endRadius": 0.0,
    "strokeControlValue": 0.0, "pointsDistance": 0.15,
}
WASH = {"radius": 180.0, "flow": 0.4, "opacity": 0.9}
DRY = {"textureType": 0, "radius": 60.0, "flow": 0.7, "radianTingle": 1.0, "pointsDistance": 0.12,
       "flowControl": [0.7, 0.0, 0.0]}
INK = {"hardness": 0.85, "radius": 14.0, "minRadius": 0.04, "radiusControl": [1.0, 0.0, 0.0],
       "startRadius": 0.1, "strokeControlValue": 22.0, "endRadius": 0.03, "pointsDistance": 0.1}
BODY = {"hardness": 0.75, "radius": 20.0, "pointsDistance": 0.1}
SCATTER = {"hardness": 0.6, "radius": 9.0, "minRadius": 0.25, "distribution": 2.5, "disTwoAxes": True,
           "distributionCount": 2.0, "radiusTingle": 0.8, "flowTingle": 0.5, "pointsDistance": 1.2}


class Painting:
    def __init__(self):
        self.strokes = []
        self.current = {}

    def stroke(self, samples, kind, **changes):
        """Adds a stroke with a brush of that kind; only what differs from the stroke before is written."""
        unknown = set(changes) - set(PLAIN)
        if unknown:
            raise ValueError(f"no such brush property: {sorted(unknown)}")
        brush = {**PLAIN, **kind, **changes}
        news = {name: value for name, value in brush.items() if self.current.get(name) != value}
        self.current = brush
        self.strokes.append({"set": news, "samples": samples})

    def json(self):
        head = json.dumps({"width": WIDTH, "height": HEIGHT, "background": PAPER})
        rows = (json.dumps(stroke, separators=(",", ":")) for stroke in self.strokes)
        return '{"canvas":' + head + ',\n"strokes":[\n' + ",\n".join(rows) + "\n]}\n"


# The painting, from far to near

SKY = [(0.0, "#8fb0c4"), (0.35, "#b9cbd0"), (0.62, "#ecd9c2"), (0.82, "#f5cda5"), (1.0, "#f3dcc4")]
LAKE = [(0.0, "#f1d9bf"), (0.22, "#d9d0c4"), (0.55, "#9fb9c0"), (1.0, "#5f8794")]
MIST = "#efe3d3"
SUN = (742.0, 286.0)


def shade(ramp, share):
    for (low, first), (high, second) in zip(ramp, ramp[1:]):
        if share <= high:
            return mix(first, second, (share - low) / (high - low))
    return ramp[-1][1]


def paint_ground(art, hand):
    """Sky and lake in broad dry washes whose ragged ends leave a margin of bare paper."""
    for top, bottom, ramp, rows in ((78, WATERLINE - 30, SKY, 11), (WATERLINE + 10, HEIGHT - 84, LAKE, 8)):
        for row in range(rows):
            share = row / (rows - 1)
            y = top + (bottom - top) * share
            left, right = hand.around(84, 12), hand.around(WIDTH - 84, 12)
            points = [(x, hand.around(y, 5)) for x in (left, 360, 620, 880, right)]
            if row % 2:
                points.reverse()
            art.stroke(hand.trace(points, pace=24, tremor=1.5, pressure=(0.75, 0.9, 0.7)), DRY, radius=124.0,
                       flow=0.62, renderColor=shade(ramp, share), backRenderColor=MIST, colorTingle=0.10)
        for row in range(rows):  # softened while wet
            share = (row + 0.5) / rows
            y = top + (bottom - top) * share
            points = [(x, hand.around(y, 9)) for x in (165, 400, 640, 880, 1035)]
            art.stroke(hand.trace(points, pace=26, tremor=2), WASH, radius=150.0, opacity=0.5,
                       renderColor=shade(ramp, share))


def paint_clouds(art, hand):
    for x, y, length, colour in ((250, 118, 330, "#f6eee4"), (560, 168, 300, "#f8e6d4"), (960, 128, 260, "#f5ebe2"),
                                 (330, 232, 260, "#f9e2c8"), (1000, 262, 190, "#fae3c9"), (620, 300, 420, "#fbe6cd")):
        for strand in range(3):
            y0 = y + 13 * strand + hand.around(0, 5)
            x0 = x + hand.around(0, 46)
            points = [(x0 + length * (part - 0.5), y0 + hand.around(0, 6)) for part in (0, 0.3, 0.65, 1)]
            art.stroke(hand.trace(points, pace=13, pressure=(0.2, 0.85, 0.1), rise=0.4, fall=0.5), WASH,
                       radius=54.0 - 9.0 * strand, minRadius=0.15, radiusControl=[1.0, 0.0, 0.0], opacity=0.42,
                       renderColor=colour)


def paint_sun(art, hand):
    x, y = SUN
    for radius, opacity, colour in ((380, 0.30, "#fbd7a6"), (230, 0.40, "#fcd096"), (140, 0.45, "#fdcf90")):
        art.stroke(hand.dot(x, y, radius * 0.10), WASH, radius=float(radius), opacity=opacity, renderColor=colour,
                   flow=0.35)
    art.stroke(hand.dot(x, y, 2.0), BODY, radius=76.0, hardness=0.93, renderColor="#e55f3c", pointsDistance=0.05)
    for strand in range(4):  # the wet lower half
        half = 27 - 2.5 * strand
        art.stroke(hand.trace([(x - half, y + 12 + 6 * strand), (x, y + 14 + 6 * strand), (x + half, y + 12 + 6 * strand)],
                              pace=6), WASH, radius=20.0, opacity=0.22 + 0.07 * strand, renderColor="#f7b27a")


def ridge(hand, base, height, peaks, scale):
    """A skyline: a function of x. Peaks are (x, height, half width); the rest is smaller relief."""
    broad, fine = hand.wander(scale), hand.wander(scale / 5.5)

    def at(x):
        rise = max([h * max(0.0, 1.0 - abs(x - px) / width) ** 1.25 for px, h, width in peaks] + [0.0])
        return base - rise - height * (0.55 + 0.45 * broad(x)) - height * 0.16 * fine(x)

    return at


def paint_range(art, hand, skyline, colour, fade, foot, span=(60, 1140), size=13.0):
    """A range of hills: a crisp skyline, then bands that flatten and pale towards the mist at its foot."""
    left, right = span
    xs = [left + hand.around(0, 7)]
    while xs[-1] < right:
        xs.append(min(xs[-1] + 9.0, right))
    crest = [(x, skyline(x) + size * 0.5) for x in xs]
    art.stroke(hand.trace(crest, pace=10, tremor=0.5, pressure=(0.8, 0.9, 0.8)), BODY, radius=size, hardness=0.85,
               renderColor=colour)
    shoulder = [(x, y + 5.0) for x, y in crest[::2]]
    art.stroke(hand.trace(shoulder, pace=18, tremor=0.4, pressure=(0.8, 0.9, 0.8)), BODY, radius=size * 1.9,
               hardness=0.7, renderColor=colour)
    brush = 34.0
    tallest = max(foot - y for _, y in crest)
    bands = max(int(tallest / (brush * 0.30)), 1)
    for band in range(bands):
        share = (band + 0.4) / bands
        points = []
        for x, y in crest[::3]:
            # Steep slopes need the brush further down to keep it below the crest.
            slope = abs(skyline(x + 8) - skyline(x - 8)) / 16.0
            top = y + (brush - size) * 0.5 * math.sqrt(1.0 + slope * slope) - 2.0
            points.append((x, max(top, top + (foot - top) * share) + hand.around(0, 2.5)))
        if band % 2:
            points.reverse()
        art.stroke(hand.trace(points, pace=22, tremor=0.6, pressure=(0.8, 0.9, 0.8)), BODY, radius=brush, hardness=0.4,
                   flow=0.85, renderColor=mix(colour, fade, 0.95 * share**1.25), pointsDistance=0.14)


def paint_slopes(art, hand, skyline, tops, dark, light):
    """Dry strokes down the flanks: shade away from the sun, light towards it."""
    for top, reach in tops:
        for _ in range(4):
            for away in (-1, 1):
                lit = (SUN[0] - top) * away > 0
                x = min(max(top + away * hand.between(0.05, 0.5) * reach, 90), WIDTH - 90)
                y = skyline(x) + hand.between(7, 20)
                length = hand.between(0.25, 0.55) * reach
                x2 = min(max(x + away * length * 0.8, 78), WIDTH - 78)
                y2 = max(skyline(x2) + 16, y + length * hand.between(0.25, 0.5))
                points = [(x, y), ((x + x2) / 2 + hand.around(0, 5), (y + y2) / 2 + hand.around(0, 4)), (x2, y2)]
                art.stroke(hand.trace(points, pace=9, tremor=1.4, pressure=(0.45, 0.65, 0.05), fall=0.7), DRY,
                           radius=22.0, minRadius=0.2, radiusControl=[1.0, 0.0, 0.0], flow=0.5,
                           opacity=0.34 if lit else 0.42, renderColor=light if lit else dark)


def paint_mist(art, hand, y, strength, span=(110, 1090), colour=MIST):
    for _ in range(3):
        left = hand.between(span[0], span[0] + 230)
        right = hand.between(span[1] - 300, span[1])
        points = [(left + (right - left) * part, hand.around(y, 9)) for part in (0, 0.25, 0.5, 0.75, 1)]
        art.stroke(hand.trace(points, pace=22, pressure=(0.2, 0.9, 0.2), rise=0.3, fall=0.3), WASH, radius=62.0,
                   minRadius=0.2, radiusControl=[0.8, 0.0, 0.0], opacity=strength, renderColor=colour)


def paint_hills(art, hand):
    far = ridge(hand, 372, 30, ((300, 120, 210), (470, 66, 150), (905, 44, 240)), 300)
    paint_range(art, hand, far, "#a0b4c2", "#eedccb", 424)
    paint_slopes(art, hand, far, ((300, 190), (470, 120), (905, 170)), "#7f98ab", "#e9cdb8")
    paint_mist(art, hand, 404, 0.5)
    middle = ridge(hand, 430, 26, ((150, 96, 190), (610, 64, 200), (1070, 128, 230)), 240)
    paint_range(art, hand, middle, "#7a98a6", "#e9dccd", 474)
    paint_slopes(art, hand, middle, ((150, 160), (610, 140), (1070, 180)), "#577a8a", "#cfc3b8")
    paint_mist(art, hand, 452, 0.5)
    near = ridge(hand, 478, 20, ((80, 84, 240), (395, 22, 130), (1010, 78, 250)), 210)
    paint_range(art, hand, near, "#557680", "#c9cdc6", 506)
    paint_slopes(art, hand, near, ((80, 150), (1010, 180)), "#3f626d", "#a8b3ad")
    for row in range(10):  # the range in the water, broken by ripples
        y = WATERLINE + 5 + 7 * row
        run = []
        for x in range(60, 1145, 12):
            deep = WATERLINE + 0.8 * (WATERLINE - near(x)) > y + 6 * math.sin(x * 0.05 + row)
            if deep:
                run.append((x, y + hand.around(0, 1.5)))
            if run and (not deep or x > 1130):
                if len(run) > 3:
                    art.stroke(hand.trace(run[::4] + [run[-1]] if len(run) % 4 != 1 else run[::4], pace=16, tremor=1.0,
                                          pressure=(0.2, 0.8, 0.2)), WASH, radius=16.0, minRadius=0.3,
                               radiusControl=[1.0, 0.0, 0.0], opacity=0.40 - 0.022 * row, renderColor="#6d93a0",
                               blendType=8)
                run = []
    paint_mist(art, hand, WATERLINE - 8, 0.42)


def pine(art, hand, x, foot, height, colour):
    """A pine: the trunk, then its boughs in one zigzag from the tip down."""
    art.stroke(hand.trace([(x, foot - height * 0.96), (x + hand.around(0, 1), foot + 2)], pace=6, tremor=0.3,
                          pressure=(0.3, 0.7, 0.8)), INK, radius=max(height * 0.09, 3.0), renderColor=colour)
    points, turns = [(x, foot - height * 0.97)], max(8, int(height / 2.7))
    for turn in range(1, turns + 1):
        share = turn / turns
        side = 1 if turn % 2 else -1
        tier = 0.62 + 0.38 * (share * 5.0 % 1.0)
        reach = height * 0.22 * share**0.8 * tier * hand.between(0.8, 1.15)
        points.append((x + side * reach, foot - height * (1.0 - 0.92 * share) + reach * 0.25))
    art.stroke(hand.trace(points, pace=5, tremor=0.3, pressure=(0.3, 0.66, 0.66), rise=0.5), INK,
               radius=height * 0.085 + 2.0, minRadius=0.4, renderColor=colour, startRadius=0.3,
               strokeControlValue=height * 0.4, endRadius=0.3)


def paint_headlands(art, hand):
    """The pine shores left and right, each over its reflection."""
    left = ridge(hand, 520, 8, ((60, 62, 330),), 150)
    right = ridge(hand, 520, 7, ((1140, 52, 250),), 130)
    for skyline, outer, inner in ((left, 60, 400), (right, 1140, 860)):
        toward = 1 if inner > outer else -1
        shore = outer
        while (inner - shore) * toward > 0 and skyline(shore) < WATERLINE - 3:
            shore += 4 * toward
        for depth in range(9):
            y = WATERLINE + 8 + 8 * depth
            end = outer + (shore - outer) * (1.0 - 0.085 * depth) + hand.around(0, 14)
            art.stroke(hand.trace([(outer, y), ((outer + end) / 2, y + 2), (end, y)], pace=14, tremor=1.6,
                                  pressure=(0.9, 0.9, 0.1)), WASH, radius=17.0, minRadius=0.2,
                       radiusControl=[1.0, 0.0, 0.0], opacity=0.60 - 0.055 * depth, renderColor="#4d7078", blendType=8)
        for band in range(9):  # from the crest down to a level shore
            share = band / 8
            points = []
            for step in range(13):
                x = outer + (shore - outer) * step / 12
                top = min(skyline(x), WATERLINE - 2) + 5
                points.append((x, top + (WATERLINE + 1 - top) * share + hand.around(0, 1)))
            art.stroke(hand.trace(points, pace=11, tremor=0.8, pressure=(0.9, 0.85, 0.2), fall=0.15), BODY, radius=11.0,
                       minRadius=0.3, radiusControl=[1.0, 0.0, 0.0], renderColor=mix("#37565b", "#4a6c6c", share))
        for reach, size in ((16, 6.0), (34, 3.5)):  # the shore runs out into the water
            points = [(shore - 40 * toward, WATERLINE - 1), (shore, WATERLINE + 1), (shore + reach * toward, WATERLINE + 3)]
            art.stroke(hand.trace(points, pace=7, tremor=0.3, pressure=(0.9, 0.9, 0.2), fall=0.5), INK, radius=size,
                       renderColor="#4a6c6c")
        for _ in range(8):  # scrub
            x = outer + (shore - outer) * hand.between(0.05, 0.85)
            y = skyline(x) + hand.between(4, 22)
            if y < WATERLINE - 4:
                art.stroke(hand.trace([(x - 15, y + 2), (x, y - 2), (x + 15, y + 3)], pace=6, tremor=1), DRY,
                           radius=12.0, opacity=0.55, renderColor=mix("#5f8074", "#8b9a72", hand.unit()))
    for x, size in ((78, 66), (100, 88), (120, 60), (148, 76), (166, 96), (190, 64), (216, 50), (238, 60), (266, 40),
                    (290, 30)):
        pine(art, hand, x, left(x) + 7, size * hand.between(0.92, 1.08), mix("#223f45", "#3a5c60", hand.unit()))
    for x, size in ((978, 28), (1000, 38), (1024, 48), (1044, 66), (1066, 52), (1088, 74), (1112, 88), (1128, 60)):
        pine(art, hand, x, right(x) + 6, size * hand.between(0.92, 1.08), mix("#2b4a50", "#46676b", hand.unit()))


def paint_water(art, hand):
    for _ in range(40):  # dry ripples
        y = WATERLINE + 24 + 236 * hand.unit() ** 1.2
        near = (y - WATERLINE) / 260
        x, length = hand.between(150, 1050), (50 + 190 * near) * hand.between(0.6, 1.3)
        left, right = max(x - length / 2, 66), min(x + length / 2, 1134)
        points = [(left, y), ((left + right) / 2, y + hand.around(0, 2 + 3 * near)), (right, y)]
        art.stroke(hand.trace(points, pace=10, tremor=0.8, pressure=(0.1, 0.75, 0.05), rise=0.4, fall=0.5), DRY,
                   radius=5.0 + 13.0 * near, minRadius=0.1, radiusControl=[1.0, 0.0, 0.0], opacity=0.55,
                   renderColor=hand.unit() < 0.45 and "#f4e6d4" or mix("#86a5ae", "#466f7d", near))
    for index in range(34):  # the sun's path
        share = (index + hand.unit()) / 34
        y = WATERLINE + 14 + 222 * share
        half = (14 + 36 * share) * hand.between(0.5, 1.25)
        x = SUN[0] + hand.around(0, 8 + 26 * share)
        points = [(x - half, y + hand.around(0, 1)), (x, y + hand.around(0, 2)), (x + half, y)]
        art.stroke(hand.trace(points, pace=5, tremor=0.5, pressure=(0.1, 0.85, 0.05), rise=0.4, fall=0.5), INK,
                   radius=6.0 + 7.0 * share, hardness=0.5, opacity=0.85 - 0.25 * share,
                   renderColor=mix("#f08a55", "#fbe0b4", hand.unit()), endRadius=0.02)


def paint_boat(art, hand):
    x, y, dark = 520.0, 598.0, "#22353a"
    for row in range(5):
        half = 52 - 8 * row
        art.stroke(hand.trace([(x - half, y + 13 + 6 * row), (x + half, y + 13 + 6 * row)], pace=7, tremor=1.2), WASH,
                   radius=9.0, opacity=0.42 - 0.07 * row, renderColor="#2f4f58", blendType=8)
    hull = [(x - 72, y - 9), (x - 40, y + 3), (x, y + 7), (x + 38, y + 3), (x + 66, y - 8)]
    art.stroke(hand.trace(hull, pace=6, tremor=0.3, pressure=(0.1, 0.95, 0.1), rise=0.4, fall=0.4), INK, radius=15.0,
               renderColor=dark)
    art.stroke(hand.trace([(x - 26, y - 4), (x - 20, y - 22), (x + 2, y - 27), (x + 22, y - 20), (x + 28, y - 3)],
                          pace=5, tremor=0.3, pressure=(0.5, 0.75, 0.5)), INK, radius=8.0, renderColor="#5a4a3c")
    for row in range(3):  # the mat roof
        half = 19 + 2 * row
        art.stroke(hand.trace([(x + 1 - half, y - 17 + 6 * row), (x + 1, y - 20 + 6 * row), (x + 1 + half, y - 17 + 6 * row)],
                              pace=5), BODY, radius=9.0, hardness=0.7, renderColor=mix("#8a7152", "#6a563f", row / 2))
    art.stroke(hand.trace([(x + 46, y + 1), (x + 47, y - 16), (x + 45, y - 30)], pace=4, tremor=0.2,
                          pressure=(0.9, 0.9, 0.5)), INK, radius=11.0, renderColor=dark)
    art.stroke(hand.trace([(x + 34, y - 30), (x + 45, y - 37), (x + 57, y - 29)], pace=3, tremor=0.1,
                          pressure=(0.4, 0.9, 0.3)), INK, radius=8.0, renderColor="#8a6a42")
    art.stroke(hand.trace([(x + 30, y - 52), (x + 56, y - 8), (x + 80, y + 36)], pace=7, tremor=0.2,
                          pressure=(0.4, 0.5, 0.3)), INK, radius=4.0, renderColor=dark)


def paint_birds(art, hand):
    for x, y, size in ((610, 128, 13), (642, 112, 11), (668, 134, 10), (704, 116, 8), (590, 152, 8)):
        wings = [(x - size, y - size * 0.35), (x - size * 0.45, y - size * 0.5), (x, y),
                 (x + size * 0.5, y - size * 0.55), (x + size, y - size * 0.25)]
        art.stroke(hand.trace(wings, pace=3, tremor=0.2, pressure=(0.1, 0.7, 0.1), rise=0.5, fall=0.4), INK, radius=4.5,
                   renderColor="#33474c")


def paint_margin(art, hand):
    """The bare paper around the picture, brushed back in so that every edge ends ragged."""
    for pad, radius, flow in ((14.0, 70.0, 0.9), (36.0, 58.0, 0.30)):
        right, bottom = WIDTH - pad, HEIGHT - pad
        for (ax, ay), (bx, by) in (((pad, pad), (right, pad)), ((right, bottom), (pad, bottom)),
                                   ((pad, bottom), (pad, pad)), ((right, pad), (right, bottom))):
            bent = [(ax + (bx - ax) * part + hand.around(0, 9), ay + (by - ay) * part + hand.around(0, 9))
                    for part in (0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1)]
            art.stroke(hand.trace(bent, pace=18, tremor=3.5, pressure=(0.9, 0.95, 0.9)), DRY, radius=radius, flow=flow,
                       flowTingle=0.6, renderColor=PAPER[:7])


def paint_bank(art, hand):
    """The near bank: dry earth, a glaze over it, reeds and grasses."""
    for row, (y, colour) in enumerate(((726, "#727d5e"), (742, "#59694f"), (756, "#43563f"))):
        points = [(50, y - 30 + 8 * row), (220, y - 8), (420, y + 12), (640, y + 24)]
        art.stroke(hand.trace(points, pace=15, tremor=2, pressure=(0.9, 0.8, 0.2), fall=0.5), DRY, radius=64.0,
                   minRadius=0.2, radiusControl=[0.7, 0.0, 0.0], renderColor=colour, backRenderColor="#b89a55",
                   colorTingle=0.35, opacity=0.92)
        points = [(1150, y - 62 + 10 * row), (1000, y - 24), (850, y + 4), (640, y + 24)]
        art.stroke(hand.trace(points, pace=15, tremor=2, pressure=(0.9, 0.85, 0.2), fall=0.5), DRY, radius=72.0,
                   minRadius=0.2, radiusControl=[0.7, 0.0, 0.0], renderColor=colour, backRenderColor="#b89a55",
                   colorTingle=0.35, opacity=0.92)
    for points in ([(90, 752), (260, 764), (430, 768)], [(1110, 742), (960, 762), (780, 768)]):
        art.stroke(hand.trace(points, pace=16, tremor=2), WASH, radius=70.0, opacity=0.5, renderColor="#4d6a62",
                   blendType=8)


def blade(art, hand, x, y, height, lean, colour, size):
    """One grass blade, bent by its own weight."""
    droop = abs(lean) * 0.28
    points = [(x, y), (x + lean * 0.16, y - height * 0.42), (x + lean * 0.52, y - height * 0.80),
              (x + lean, y - height + droop)]
    art.stroke(hand.trace(points, pace=9, tremor=0.4, pressure=(0.55, 0.8, 0.03), rise=0.3, fall=0.75), INK, radius=size,
               renderColor=colour, startRadius=0.35, strokeControlValue=18.0, endRadius=0.01,
               pointsDistance=0.16)


def paint_grasses(art, hand):
    greens = ("#2c4a3f", "#3d5f45", "#55744a", "#7b8a4d", "#a8994f", "#1f3836")
    tufts = [(hand.between(730, 1120), 1.0) for _ in range(64)] + [(hand.between(80, 400), 0.62) for _ in range(40)]
    for x, scale in sorted(tufts, key=lambda tuft: tuft[1] * hand.between(0.8, 1.2)):
        edge = min(abs(x - 1120) if x > 600 else abs(x - 80), 330) / 330
        height = scale * hand.between(80, 230) * (1.12 - 0.62 * edge)
        lean = hand.around(-34 if x > 600 else 26, 62) * scale
        lean = min(max(lean, 62 - x), 1138 - x)
        y = 750 + hand.around(0, 8) - (22 * (1.0 - edge) if x > 600 else 8 * (1.0 - edge))
        blade(art, hand, x, y, height, lean, greens[int(hand.unit() * len(greens))], scale * hand.between(6, 12))
    for x, height, lean in ((1086, 300, -54), (1046, 262, -34), (1010, 236, -62), (1112, 246, -20), (962, 188, -40)):
        stem = [(x, 738), (x + lean * 0.2, 738 - height * 0.5), (x + lean, 738 - height)]
        art.stroke(hand.trace(stem, pace=11, tremor=0.5, pressure=(0.6, 0.6, 0.4)), INK, radius=5.0, minRadius=0.3,
                   renderColor="#5c5a3a")
        tx, ty = stem[-1]
        for plume in range(7):  # the reed's feathered head
            start = (tx - lean * 0.016 * plume * 2, ty + 7 * plume - 12)
            side = -1 if plume % 2 else 1
            end = (start[0] + side * (7 + 2.2 * plume) - 8, start[1] + 13 + 2.5 * plume)
            art.stroke(hand.trace([start, ((start[0] + end[0]) / 2 + side * 3, start[1] + 5), end], pace=4, tremor=0.4,
                                  pressure=(0.7, 0.7, 0.05), fall=0.8), DRY, radius=10.0, minRadius=0.1,
                       radiusControl=[1.0, 0.0, 0.0], renderColor=mix("#8c6b3f", "#c9a667", hand.unit()))
    for points in ([(86, 736), (180, 743), (300, 748), (420, 750)], [(1114, 720), (1040, 731), (930, 742), (760, 750)]):
        for row in range(2):  # earth over the roots
            art.stroke(hand.trace([(x, y + hand.around(0, 4) + 7 * row) for x, y in points], pace=14, tremor=3), DRY,
                       radius=30.0, flow=0.5, flowTingle=0.8, renderColor=("#4d5f45", "#3f523d")[row], opacity=0.9)


BRANCHES = (  # points, brush diameter
    ([(-6, 66), (58, 92), (96, 118), (128, 122), (196, 118), (262, 152), (330, 158), (392, 196), (452, 204), (512, 236)], 27.0),
    ([(196, 118), (238, 92), (286, 88), (330, 66), (378, 62)], 14.0),
    ([(262, 152), (292, 188), (300, 226), (334, 260), (342, 296)], 13.0),
    ([(128, 122), (150, 164), (146, 204), (168, 246)], 13.0),
    ([(392, 196), (424, 178), (470, 172), (506, 150)], 9.0),
    ([(330, 158), (372, 146), (404, 118)], 8.0),
    ([(452, 204), (470, 236), (500, 262)], 7.0),
    ([(300, 226), (272, 252), (262, 286)], 7.0),
    ([(146, 204), (116, 232), (110, 264)], 7.0),
)


def paint_branch(art, hand):
    for points, size in BRANCHES:
        bent = []
        for (ax, ay), (bx, by) in zip(points, points[1:]):  # knees between the joints
            bent += [(ax, ay), ((ax + bx) / 2 + hand.around(0, 5), (ay + by) / 2 + hand.around(0, 5))]
        bent.append(points[-1])
        art.stroke(hand.trace(bent, pace=8, tremor=1.3, pressure=(0.95, 0.8, 0.12), rise=0.1, fall=0.75), INK,
                   radius=size * 0.86, hardness=0.75, renderColor="#2c2526", startRadius=0.5, strokeControlValue=8.0)
        art.stroke(hand.trace(bent, pace=9, tremor=2.6, pressure=(0.95, 0.8, 0.1), fall=0.75), DRY,
                   radius=size * 1.18, minRadius=0.08, radiusControl=[1.0, 0.0, 0.0], renderColor="#241e20", flow=0.5,
                   pointsDistance=0.2)
        if size > 8.0:  # bark, on the side of the light
            art.stroke(hand.trace([(x + 1, y - size * 0.14) for x, y in bent], pace=9, tremor=2.0,
                                  pressure=(0.8, 0.6, 0.05), fall=0.7), DRY, radius=size * 0.55, minRadius=0.1,
                       radiusControl=[1.0, 0.0, 0.0], renderColor="#9a8674", opacity=0.6, pointsDistance=0.45,
                       flow=0.4, flowTingle=0.9)


def paint_blossom(art, hand, x, y, size):
    turn = hand.between(0, 6.283)
    squash = hand.between(0.68, 1.0)
    base = mix("#ee9fae", "#fdeaea", hand.unit())
    for petal in range(5):
        angle = turn + petal * 1.2566 + hand.around(0, 0.12)
        dx, dy = math.cos(angle) * size, math.sin(angle) * size * squash
        points = [(x + dx * 0.3, y + dy * 0.3), (x + dx * 0.6, y + dy * 0.6), (x + dx * 0.7, y + dy * 0.7)]
        art.stroke(hand.trace(points, pace=2.4, tremor=0.2, pressure=(0.5, 0.95, 0.9), rise=0.7, fall=0.1), BODY,
                   hardness=0.6, radius=size * 1.02, minRadius=0.4, radiusControl=[1.0, 0.0, 0.0], opacity=0.92,
                   renderColor=mix(base, "#fff8f6", hand.between(0.0, 0.5)))
    art.stroke(hand.dot(x, y, size * 0.1), WASH, radius=size * 0.95, opacity=0.7, renderColor="#d65c79", blendType=8)
    stamens = []
    for ray in range(7):  # out and back in one star-shaped stroke
        angle, reach = turn + ray * 0.9, size * hand.between(0.32, 0.55)
        stamens += [(x, y), (x + math.cos(angle) * reach, y + math.sin(angle) * reach * squash)]
    art.stroke(hand.trace(stamens, pace=2.5, tremor=0.1), INK, radius=2.0, minRadius=0.5, opacity=0.8,
               renderColor="#a92f49")


def paint_flowers(art, hand):
    sites = [curve_through(points) for points, _ in BRANCHES]
    for line in sites:
        for share in [1.0] + [hand.between(0.35, 0.95) for _ in range(len(line) // 32)]:
            x, y = line[int(share * (len(line) - 1))]
            for _ in range(1 + int(hand.unit() * 2.2)):
                paint_blossom(art, hand, x + hand.around(0, 13), y + hand.around(0, 11), hand.between(11, 18))
        for _ in range(2):
            x, y = line[int(hand.between(0.4, 0.9) * (len(line) - 1))]
            art.stroke(hand.dot(x + hand.around(0, 5), y + hand.around(0, 6), 1.5), BODY, radius=hand.between(7, 11),
                       renderColor=mix("#c64a67", "#e58597", hand.unit()))
    for points in ([(150, 280), (240, 330), (330, 350), (450, 330)], [(430, 250), (530, 330), (610, 440)],
                   [(180, 570), (290, 620), (410, 660)]):  # petals on the wind and on the water
        art.stroke(hand.trace(points, pace=14, tremor=3), SCATTER, renderColor="#f1a9b7", backRenderColor="#fff3ee",
                   colorTingle=0.9, radius=11.0, distribution=3.2, pointsDistance=3.4, roundness=0.55,
                   radianTingle=1.0, distributionCount=1.0, radiusTingle=0.4)


def paint_finish(art, hand):
    """Pollen in the light, a glaze that draws the corners together, and the painter's seal."""
    art.stroke(hand.trace([(690, 640), (840, 600), (960, 640), (1060, 590)], pace=18), SCATTER, renderColor="#fff0cf",
               backRenderColor="#f6c884", colorTingle=0.8, radius=6.5, distribution=9.0, distributionCount=1.0,
               pointsDistance=6.0, opacity=0.85)
    for points in ([(150, 700), (330, 728), (520, 726)], [(1050, 676), (920, 716), (760, 728)],
                   [(150, 160), (260, 128), (420, 118)]):
        art.stroke(hand.trace(points, pace=22, tremor=2), WASH, radius=190.0, opacity=0.20, renderColor="#6f8f96",
                   blendType=8)
    x, y = 1112.0, 96.0
    art.stroke(hand.dot(x, y, 0.9), {}, textureType=3, hardness=0.85, radius=34.0, renderColor="#b3302a",
               pointsDistance=0.04, opacity=0.94)
    for points in ([(-9, -9), (9, -9)], [(-9, -1), (9, -2)], [(0, -9), (0, 10)], [(-10, 9), (10, 8)], [(-8, 4), (-4, 2)],
                   [(4, 3), (8, 5)]):
        art.stroke(hand.trace([(x + 1 + px, y + 0.5 + py) for px, py in points], pace=4, tremor=0.2,
                              pressure=(0.8, 0.8, 0.7)), INK, radius=3.2, minRadius=0.5, renderColor="#f7e9dc",
                   startRadius=0.8)


def painting():
    art, hand = Painting(), Hand(20240)
    for step in (paint_ground, paint_clouds, paint_sun, paint_hills, paint_headlands, paint_water, paint_boat,
                 paint_birds, paint_bank, paint_margin, paint_grasses, paint_branch, paint_flowers, paint_finish):
        step(art, hand)
    return art.json()
