# SPDX-License-Identifier: MIT
"""Shapes of random proportions, turned anyhow and drawn by a hand of random sloppiness.

Every kind that the recogniser names, and strokes that are none of them.
"""

import numpy as np

from .hand import Hand, Meant, along, arc_length, draw, generator, middle_start

TAU = 2.0 * np.pi


def polar(angle, length=1.0):
    return np.array([np.cos(angle), np.sin(angle)]) * length


def legs_through(corners, closed=False):
    corners = np.asarray(corners, float)
    if closed:
        corners = np.concatenate((corners, corners[:1]))
    return [corners[i:i + 2] for i in range(len(corners) - 1)]


def walk(turns, lengths):
    """Corners of a line whose legs have these lengths and which turns by these angles (degrees)."""
    heading, at = 0.0, np.zeros(2)
    out = [at]
    for i, length in enumerate(lengths):
        if i:
            heading += np.radians(turns[i - 1])
        at = at + polar(heading, length)
        out.append(at)
    return np.array(out)


def ellipse_arc(a, b, start, sweep, count=160):
    t = start + np.linspace(0.0, sweep, count)
    return np.column_stack((a * np.cos(t), b * np.sin(t)))


def spline(points, count=24):
    """A smooth curve through points (centripetal Catmull-Rom)."""
    p = np.asarray(points, float)
    p = np.concatenate(([2 * p[0] - p[1]], p, [2 * p[-1] - p[-2]]))
    out = []
    for i in range(1, len(p) - 2):
        q = p[i - 1:i + 3]
        t = np.concatenate(([0.0], np.cumsum(np.maximum(np.hypot(*np.diff(q, axis=0).T), 1e-9)**0.5)))
        u = np.linspace(t[1], t[2], count, endpoint=i == len(p) - 3)[:, None]
        a = [(t[k + 1] - u) / (t[k + 1] - t[k]) * q[k] + (u - t[k]) / (t[k + 1] - t[k]) * q[k + 1] for k in range(3)]
        b = [(t[k + 2] - u) / (t[k + 2] - t[k]) * a[k] + (u - t[k]) / (t[k + 2] - t[k]) * a[k + 1] for k in range(2)]
        out.append((t[2] - u) / (t[2] - t[1]) * b[0] + (u - t[1]) / (t[2] - t[1]) * b[1])
    return np.concatenate(out)


def crosses(corners):
    """Whether a line through corners crosses itself."""
    def side(a, b, c):
        return (b[0] - a[0]) * (c[1] - a[1]) - (b[1] - a[1]) * (c[0] - a[0])
    n = len(corners) - 1
    for i in range(n):
        for j in range(i + 2, n):
            a, b, c, d = corners[i], corners[i + 1], corners[j], corners[j + 1]
            if side(a, b, c) * side(a, b, d) < 0 and side(c, d, a) * side(c, d, b) < 0:
                return True
    return False


# Shapes of the kinds: each returns a Meant of any size.

def line(rng, style):
    return Meant(style, "line", legs_through([(0, 0), (1, 0)]))


def fold(style, corners):
    return Meant(style, "foldline", legs_through(corners), folds=len(corners) - 1)


def fold_v(rng, style):
    return fold(style, walk([rng.uniform(78, 155)], [1, rng.uniform(0.5, 1.3)]))


def fold_l(rng, style):
    return fold(style, walk([90 + rng.normal(0, 2)], [1, rng.uniform(0.4, 1.3)]))


def fold_zn(rng, style):
    turn = rng.uniform(132, 156)
    arm = 1 / (-np.cos(np.radians(turn))) if style == "z" else rng.uniform(1.0, 1.25)
    return fold(style, walk([turn, -turn + rng.normal(0, 2)], [1, arm, rng.uniform(0.85, 1.1)]))


def fold_bracket(rng, style):
    arm = rng.uniform(0.3, 0.8)
    return fold(style, walk([90 + rng.normal(0, 1), 90 + rng.normal(0, 1)], [arm, 1, arm * rng.uniform(0.75, 1.3)]))


def fold_zigzag(rng, style):
    n = int(rng.integers(3, 6))
    turn = rng.uniform(95, 146)
    turns = [turn * (-1)**i + rng.normal(0, 2) for i in range(n - 1)]
    return fold(style, walk(turns, rng.normal(1, 0.08, n).clip(0.75, 1.25)))


def fold_stairs(rng, style):
    n = int(rng.integers(3, 6))
    return fold(style, walk([90 * (-1)**i for i in range(n - 1)], rng.uniform(0.6, 1.2, n)))


def fold_free(rng, style):
    while True:
        n = int(rng.integers(2, 6))
        turns = rng.uniform(50, 135, n - 1) * rng.choice([-1, 1], n - 1)
        lengths = rng.uniform(0.5, 1.1, n)
        corners = walk(turns, lengths)
        ends = np.hypot(*(corners[-1] - corners[0]))
        near = min(np.hypot(*(corners[i] - corners[j])) for i in range(n + 1) for j in range(i + 2, n + 1))
        if n == 2 or (ends > 0.55 and near > 0.3 and not crosses(corners)):
            return fold(style, corners)


def triangle(rng, style):
    while True:
        corners = rng.uniform(0, 1, (3, 2))
        sides = np.hypot(*(np.roll(corners, -1, axis=0) - corners).T)
        a, b, c = np.sort(sides)
        small = np.degrees(np.arccos(np.clip((b * b + c * c - a * a) / (2 * b * c), -1, 1)))
        large = np.degrees(np.arccos(np.clip((a * a + b * b - c * c) / (2 * a * b), -1, 1)))
        if small > 24 and large < 122:
            return Meant(style, "triangle", legs_through(corners, True), closed=True)


def rectangle(rng, style):
    ratio = 1.0 if style == "square" else rng.uniform(0.26, 0.92)
    return Meant(style, "rectangle", legs_through([(0, 0), (1, 0), (1, ratio), (0, ratio)], True), closed=True)


def parallelogram(rng, style):
    angle = np.radians(rng.uniform(42, 68))
    ratio = 1.0 if style == "rhombus" else rng.uniform(0.45, 1.0)
    up = polar(angle, ratio)
    return Meant(style, "parallelogram", legs_through([(0, 0), (1, 0), up + (1, 0), up], True), closed=True)


def ellipse(rng, style):
    ratio = 1.0 if style == "circle" else rng.uniform(0.3, 1.0)
    return Meant(style, "ellipse", [ellipse_arc(1, ratio, rng.uniform(0, TAU), TAU)], closed=True)


def arc(rng, style):
    sweep = np.radians(rng.uniform(70, 285))
    ratio = 1.0 if style == "arc" else rng.uniform(0.5, 0.95)
    return Meant(style, "arc", [ellipse_arc(1, ratio, rng.uniform(0, TAU), sweep)])


def arrow(rng, style):
    tip = np.array([1.0, 0.0])
    length = rng.uniform(0.17, 0.42)
    side = rng.choice([-1, 1])
    spread = np.radians(rng.uniform(24, 52, 2).mean() + rng.normal(0, 4, 2).clip(-8, 8))
    first = tip - polar(side * spread[0], length)
    second = tip - polar(-side * spread[1], length * rng.uniform(0.75, 1.25))
    return Meant(style, "arrow", legs_through([(0, 0), tip, first, tip, second]))


# What is none of the kinds.

def none(style, curve, closed=False, note=""):
    legs = curve if isinstance(curve, list) else [curve]
    return Meant(style, "none", legs, closed=closed, ideal=False, note=note)


def scribble(rng, style):
    swings = int(rng.integers(6, 16))
    width = rng.uniform(0.15, 2.2)  # of the swing
    x = np.linspace(0, width, swings + 1) + rng.normal(0, 0.25 * width / swings, swings + 1)
    y = np.where(np.arange(swings + 1) % 2, 1.0, 0.0) + rng.normal(0, rng.uniform(0.02, 0.15), swings + 1)
    sharp = rng.uniform(0.3, 1.0)
    t = np.linspace(0, swings, swings * 30 + 1)
    k = np.minimum(t.astype(int), swings - 1)
    f = t - k
    f = (1 - sharp) * f + sharp * 0.5 * (1 - np.cos(np.pi * f))
    return none(style, np.column_stack((np.interp(t, np.arange(swings + 1), x), y[k] + (y[k + 1] - y[k]) * f)))


def spiral(rng, style):
    turns = rng.uniform(1.8, 6)
    t = np.linspace(0, 1, int(60 * turns))
    r = rng.uniform(0.02, 0.2) + t**rng.uniform(0.8, 1.3)
    if rng.random() < 0.3:
        r = r[::-1]
    a = TAU * turns * t * rng.choice([-1, 1])
    return none(style, np.column_stack((r * np.cos(a), rng.uniform(0.6, 1) * r * np.sin(a))))


def figure_eight(rng, style):
    t = rng.uniform(0, TAU) + np.linspace(0, TAU * rng.uniform(0.96, 1.04), 160)
    if rng.random() < 0.5:
        x, y = np.cos(t), np.sin(2 * t) * rng.uniform(0.28, 0.6)
    else:
        d = 1 + np.sin(t)**2
        x, y = np.cos(t) / d, np.sin(t) * np.cos(t) / d * rng.uniform(0.8, 1.7)
    lopsided = 1 + rng.uniform(-0.25, 0.25) * np.sign(x) * np.minimum(np.abs(x), 0.3) / 0.3
    return none(style, np.column_stack((x * lopsided, y * lopsided)))


def cursive(rng, style):
    loops = int(rng.integers(3, 9))
    t = np.linspace(0, TAU * (loops + rng.uniform(-0.3, 0.3)), 50 * loops)
    advance = rng.uniform(0.25, 0.8) / TAU * 2
    slow = 1 + 0.15 * np.sin(t * rng.uniform(0.1, 0.5) + rng.uniform(0, TAU))
    x = advance * t + np.sin(t) * rng.uniform(0.5, 1) * slow
    return none(style, np.column_stack((x, -np.cos(t) * slow + rng.uniform(-0.5, 0.5) * x * 0.5)))


def turning(curve):
    """How far a curve turns left and right, degrees."""
    way = np.diff(curve, axis=0)
    a = np.diff(np.unwrap(np.arctan2(way[:, 1], way[:, 0])))
    return np.degrees(a[a > 0].sum()), np.degrees(-a[a < 0].sum())


def sharpest(curve, share=0.06):
    """How far a curve turns at most within that share of its length, degrees."""
    p = along(curve, 120)
    way = np.diff(p, axis=0)
    a = np.unwrap(np.arctan2(way[:, 1], way[:, 0]))
    k = max(int(120 * share), 1)
    return np.degrees(np.abs(a[k:] - a[:-k]).max())


def smooth(rng, style):
    while True:
        if rng.random() < 0.5:  # a heading that swings to and fro
            t = np.linspace(0, 1, 160)
            swing, turns = rng.uniform(0.8, 2.1), rng.uniform(0.9, 2.4)
            heading = swing * np.sin(TAU * turns * t + rng.uniform(0, TAU)) + rng.uniform(-0.8, 0.8) * t
            curve = np.cumsum(np.column_stack((np.cos(heading), np.sin(heading))), axis=0)
            if min(turning(curve)) > 60:
                return none(style, curve)
            continue
        n = int(rng.integers(4, 7))
        if rng.random() < 0.5:
            p = np.column_stack((np.arange(n), rng.normal(0, 0.9, n)))
        else:
            p = np.cumsum(rng.normal(0, 1, (n, 2)) + (0.9, 0), axis=0)
        curve = spline(p, 30)
        left, right = turning(curve)
        if min(left, right) > 60 and left + right < 700 and sharpest(curve) < 48:
            return none(style, curve)


def near(style, legs):
    return none(style, legs, closed=True, note="near")


def regular(rng, style):
    n = {"pentagon": 5, "hexagon": 6}[style]
    a = TAU * np.arange(n) / n + rng.normal(0, 0.04, n)
    r = 1 + rng.normal(0, 0.05, n)
    corners = np.column_stack((np.cos(a) * r, np.sin(a) * r * rng.uniform(0.8, 1)))
    return near(style, legs_through(corners, True))


def trapezoid(rng, style):
    top = rng.uniform(0.32, 0.68)
    left = rng.uniform(0, 1 - top) if rng.random() < 0.5 else (1 - top) / 2
    high = rng.uniform(0.45, 0.95)
    return near(style, legs_through([(0, 0), (1, 0), (left + top, high), (left, high)], True))


def half_disc(rng, style):
    bow = ellipse_arc(1, rng.uniform(0.75, 1.25), 0, np.pi)
    return near(style, [bow, bow[[-1, 0]]])


def heart(rng, style):
    notch, wide, low = rng.uniform(0.5, 0.95), rng.uniform(0.85, 1.2), rng.uniform(1.7, 2.2)
    right = spline([(0, notch - 0.35), (0.18 * wide, 0.05), (0.55 * wide, -0.2), (0.95 * wide, 0.05),
                    (0.98 * wide, 0.55), (0.6 * wide, 1.15), (0, low)])
    return near(style, [right, (right * (-1, 1))[::-1]])


def teardrop(rng, style):
    t = np.linspace(0, TAU, 160)
    m = rng.uniform(0.8, 1.7)
    return near(style, [np.column_stack((-np.cos(t), np.sin(t) * np.sin(t / 2)**m * rng.uniform(0.45, 0.8)))])


# gesture: how it is made, its kind, its share of the kind
STYLES = {
    "line": (line, "line", 1),
    "v": (fold_v, "foldline", 4), "l": (fold_l, "foldline", 3), "z": (fold_zn, "foldline", 3),
    "n": (fold_zn, "foldline", 4), "bracket": (fold_bracket, "foldline", 3), "zigzag": (fold_zigzag, "foldline", 4),
    "stairs": (fold_stairs, "foldline", 4), "free": (fold_free, "foldline", 5),
    "triangle": (triangle, "triangle", 1),
    "rectangle": (rectangle, "rectangle", 3), "square": (rectangle, "rectangle", 1),
    "parallelogram": (parallelogram, "parallelogram", 6), "rhombus": (parallelogram, "parallelogram", 1),
    "ellipse": (ellipse, "ellipse", 3), "circle": (ellipse, "ellipse", 1),
    "arc": (arc, "arc", 3), "elliptic-arc": (arc, "arc", 2),
    "arrow": (arrow, "arrow", 1),
    "scribble": (scribble, "scribble", 1), "spiral": (spiral, "spiral", 1),
    "figure-eight": (figure_eight, "figure-eight", 1), "cursive": (cursive, "cursive", 1),
    "smooth": (smooth, "smooth", 1),
    "pentagon": (regular, "pentagon", 1), "hexagon": (regular, "hexagon", 1),
    "trapezoid": (trapezoid, "trapezoid", 1), "half-disc": (half_disc, "half-disc", 1), "heart": (heart, "heart", 1),
    "teardrop": (teardrop, "teardrop", 1),
}
KINDS = {}
for _name, (_make, _kind, _share) in STYLES.items():
    KINDS.setdefault(_kind, []).append((_name, _make, _share))

CURLED = {"scribble", "spiral", "figure-eight", "cursive", "smooth", "heart"}
UPRIGHT = {"bracket", "l", "z", "n", "stairs", "rectangle", "square", "line"}  # more often than the others
DETAILED = {"arrow", "scribble", "cursive", "spiral", "hexagon", "pentagon", "zigzag", "stairs", "heart", "free"}


def any_hand(rng, size, slop, settings):
    """A hand of that sloppiness: 0 is a draughtsman's, 1 a hasty one."""
    def up_to(most):
        return most * slop * rng.uniform(0.35, 1.2)

    speed = settings["speed"][0] * (settings["speed"][1] / settings["speed"][0])**rng.random()
    rate = settings["rate"][0] * (settings["rate"][1] / settings["rate"][0])**rng.random()
    return Hand(
        shift=up_to(0.02), bow=up_to(0.036), sway=up_to(0.01), rounding=0.01 + up_to(0.11), rounding_spread=0.35,
        overshoot=up_to(0.035), overshoot_odds=0.35 if rng.random() < 0.5 else 0.0,
        overlap=rng.uniform(-0.06, 0.06) * min(0.25 + slop, 1.0), drift=up_to(0.012),
        wobble=up_to(0.01), wobble_turns=rng.uniform(1.2, 4.0),
        tremor=(0.05 + slop * rng.uniform(0.0, 0.6)) * (size / 200.0)**0.35, tremor_hz=rng.uniform(8.0, 11.0),
        hook_start=rng.uniform(0.012, 0.04) if rng.random() < 0.12 else 0.0,
        hook_end=rng.uniform(0.012, 0.04) if rng.random() < 0.12 else 0.0,
        speed=speed, least_ms=rng.uniform(120.0, 200.0), stops=1.0 - 0.5 * rng.random()**2, slowest=0.2,
        dt=1000.0 / rate, jitter=rng.uniform(0.02, 0.12), whole=rng.random() < 0.4)


def strokes(kind, count, seed, settings):
    """Strokes of a kind: the shape that is meant, in its place, who draws it, how fast, and times and points."""
    rng = generator(seed, "program", kind)  # of its own: a kind's strokes are the same whichever others are made
    for _ in range(count):
        yield stroke(kind, rng, settings)


def stroke(kind, rng, settings):
    styles = KINDS[kind]
    shares = np.array([share for _, _, share in styles], float)
    name, make, _ = styles[rng.choice(len(styles), p=shares / shares.sum())]
    meant = make(rng, name)
    low, high = settings["size"]
    if name in DETAILED:
        low = max(low, min(45.0, high))
    size = low * (high / low)**rng.random()
    slop = rng.uniform(*settings["slop"])
    hand = any_hand(rng, size, slop, settings)
    if meant.closed and len(meant.legs) > 1:
        hand.rounding_most = 0.27 if len(meant.legs) < 5 else 0.15  # any rounder and a pentagon would be a circle
    if kind in ("ellipse", "arc"):
        hand.wobble *= 1.7  # what corners and bows are to the others
    place(meant, size, slop, rng)
    # No hand is so fast that its device sees only a few points of a shape.
    hand.least_ms = max(hand.least_ms, hand.dt * rng.uniform(*((9, 14) if kind == "line" else (18, 30))))
    if kind in CURLED:
        length = sum(arc_length(leg)[-1] for leg in meant.legs)
        hand.least_ms = max(hand.least_ms, hand.dt * 7 * length / size)
    if meant.closed and len(meant.legs) > 1 and rng.random() < 0.1:
        meant.legs = middle_start(meant.legs, rng.uniform(0.2, 0.8))
    meant.note = (meant.note + " " if meant.note else "") + (
        f"size {size:.0f} slop {slop:.2f} rate {1000.0 / hand.dt:.0f} {'integer' if hand.whole else 'float'}")
    times, points = draw(meant, hand, size, rng)
    speed = "slow" if hand.speed < 300 else "medium" if hand.speed < 700 else "fast"
    return meant, "program", speed, times, points


def place(meant, size, slop, rng):
    """Mirrors, turns, scales and moves the shape; chooses the first corner and the direction."""
    if rng.random() < (0.6 if meant.gesture in UPRIGHT else 0.3):
        turn = rng.integers(4) * np.pi / 2 + np.radians(rng.normal(0, 2.5 * slop))
    else:
        turn = rng.uniform(0, TAU)
    if meant.closed and len(meant.legs) > 1:
        k = int(rng.integers(len(meant.legs)))
        meant.legs = meant.legs[k:] + meant.legs[:k]
    if meant.label != "arrow" and rng.random() < 0.5:
        meant.legs = [leg[::-1] for leg in meant.legs[::-1]]
    c, s = np.cos(turn), np.sin(turn)
    grid = np.array([[c, -s], [s, c]]) * (1.0, rng.choice([-1.0, 1.0]))
    legs = [leg @ grid.T for leg in meant.legs]
    everything = np.concatenate(legs)
    low, high = everything.min(axis=0), everything.max(axis=0)
    scale = size / max((high - low).max(), 1e-9)
    at = rng.uniform(20, 400, 2)
    meant.legs = [(leg - low) * scale + at for leg in legs]
    if meant.ideal:
        meant.outline = np.concatenate([meant.legs[0]] + [leg[1:] for leg in meant.legs[1:]])
