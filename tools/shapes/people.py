# SPDX-License-Identifier: MIT
"""Signs as people draw them with mouse, pen and finger: the usual gestures of stroke recognition, shapes besides, and
much that is no shape. Upright as meant, give or take the writer's tilt; y down."""

import numpy as np

from . import outsiders, thrown
from .hand import Meant, along, arc_length, draw, generator, middle_start
from .program import TAU, ellipse_arc, legs_through, polar, turning, walk
from .writers import SPEEDS, Repetition, Writer

STROKES_A_WRITER = 6  # of each kind, two at each speed


def outline_of(legs):
    return np.concatenate([legs[0]] + [leg[1:] for leg in legs[1:]])


def fold(r, corners, accept="", label="foldline"):
    corners = np.asarray(corners, float)
    if label == "foldline" and r.chance("from the other end", 0.08):
        corners = corners[::-1]
    return Meant(r.kind, label, legs_through(corners), folds=len(corners) - 1, accept=accept)


# Shapes

def arrow(r):
    rng = r.rng
    tip = np.array([1.0, 0.0])
    side = r.one_of("side", -1, -1, 1)
    length = r.vary("length", 0.2, 0.5)
    spread = [np.radians(r.vary(name, 20, 52)) for name in ("first", "second")]
    longer = np.exp(r.vary("unequal", -0.35, 0.35))
    # Long barbs stand off, or they would be taken for the shaft.
    barbs = [min(part, 0.25 + angle * 0.4) for part, angle in zip((length * longer, length / longer), spread)]
    first = tip - polar(side * spread[0], barbs[0])
    second = tip - polar(-side * spread[1], barbs[1])
    # Nobody comes back to the very tip.
    miss = r.vary("miss", 0.0, 0.06, 0.3) * length * polar(rng.uniform(0, TAU), 2.0)
    legs = legs_through([(0, 0), tip, first, tip + miss, second])
    heading = np.radians(-30 + r.vary("heading", -22, 22) if r.chance("up", 0.65) else r.vary("any", -180, 180, 0.02))
    c, s = np.cos(heading), np.sin(heading)
    meant = Meant("arrow", "arrow", [leg @ np.array([[c, s], [-s, c]]) for leg in legs])
    meant.outline = np.array([(0, 0), tip, first, tip, second]) @ np.array([[c, s], [-s, c]])
    return meant


def circle(r):
    rng = r.rng
    start = np.radians(-90 + r.vary("start", -50, 50))
    if r.chance("elsewhere", 0.15):
        start += r.one_of("where", np.pi / 2, np.pi, -np.pi / 2)
    way = -1 if r.chance("anticlockwise", 0.7) else 1
    over = r.vary("over", -0.07, 0.08, 0.15)
    if r.chance("much", 0.12):
        over = r.vary("more", 0.08, 0.25)
    t = start + way * np.linspace(0, TAU * (1 + over), 220)
    ratio = np.exp(r.vary("ratio", -0.24, 0.24, 0.15))
    flat = r.vary("flat", 0.0, 0.045, 0.3)
    egg = r.vary("egg", 0.0, 0.06, 0.3)
    turn = r.vary("turned", 0, TAU, 0.1)
    corners = r.vary("corners", 0.0, 0.022, 0.3)
    radius = (1 + egg * np.cos(t - turn) + flat * np.cos(2 * (t - turn)) + corners * np.cos(
        rng.integers(3, 6) * t + rng.uniform(0, TAU)))
    # The end lands inside or outside of the start.
    radius *= 1 + r.vary("inward", -0.1, 0.06, 0.2) * np.clip((np.arange(220) / 219 - 0.3) / 0.7, 0, 1)**1.5
    p = np.column_stack((np.cos(t) * ratio, np.sin(t))) * radius[:, None]
    meant = Meant("circle", "ellipse", [p])
    return meant  # how round it was meant nobody knows: no outline to compare with


def turned_ellipse(r):
    start, ratio = r.vary("start", 0, TAU, 0.03), r.vary("ratio", 0.32, 0.8)
    over = r.vary("over", -0.05, 0.1, 0.15)
    egg = r.vary("egg", -0.05, 0.05, 0.2)
    t = start + r.one_of("way", -1, 1) * np.linspace(0, TAU * (1 + over), 220)
    a = r.vary("turn", 0, np.pi, 0.03)
    grid = np.array([[np.cos(a), np.sin(a)], [-np.sin(a), np.cos(a)]])
    p = np.column_stack((np.cos(t), ratio * np.sin(t) * (1 + egg * np.cos(t))))
    meant = Meant("ellipse", "ellipse", [p @ grid])
    meant.outline = ellipse_arc(1, ratio, start, TAU) @ grid
    return meant


def closed_polygon(r, label, corners, first=0):
    corners = np.roll(np.asarray(corners, float), -first, axis=0)
    if r.chance("other way", 0.4):
        corners = np.roll(corners[::-1], 1, axis=0)
    meant = Meant(r.kind, label, legs_through(corners, True), closed=True)
    meant.outline = outline_of(meant.legs)
    if r.chance("middle", 0.06):
        meant.legs = middle_start(meant.legs, r.vary("where", 0.25, 0.75))
    return meant


def rectangle(r):
    high = np.exp(r.vary("ratio", -0.6, 0.35))
    return closed_polygon(r, "rectangle", [(0, 0), (0, high), (1, high), (1, 0)],
                          r.one_of("first", 0, 0, 0, 0, 1, 2, 3))


def triangle(r):
    apex = r.vary("apex", 0.25, 0.75) if not r.chance("right-angled", 0.15) else r.one_of("side", 0.0, 1.0)
    return closed_polygon(r, "triangle", [(apex, 0), (0, r.vary("high", 0.55, 1.15)), (1, r.vary("level", 0.8, 0.9))],
                          r.one_of("first", 0, 0, 0, 1, 2))


def parallelogram(r):
    lean, high = r.vary("lean", 0.35, 0.7), r.vary("high", 0.5, 0.75)
    p = np.array([(lean * high * 1.4, 0), (0, high), (1, high), (1 + lean * high * 1.4, 0)])
    if r.chance("rhombus", 0.25):
        thin = r.vary("thin", 0.42, 0.66)
        p = np.array([(0.5, 0), (0.5 - thin / 2, 0.5), (0.5, 1), (0.5 + thin / 2, 0.5)])
    return closed_polygon(r, "parallelogram", p * (r.one_of("mirror", 1, -1), 1), r.one_of("first", 0, 0, 1, 2, 3))


def caret(r):
    wide, drop = r.vary("wide", 0.45, 1.0), r.vary("drop", 0.85, 1.12)
    tip = np.array([wide * r.vary("tip", 0.4, 0.6), 0])
    return fold(r, [(0, 1), tip, (wide, drop)])


def vee(r):
    return fold(r, np.array([p for leg in caret(r).legs for p in leg])[[0, 1, 3]] * (1, -1))


def check(r):
    short, fall = r.vary("short", 0.22, 0.55), np.radians(r.vary("fall", 42, 75))
    rise = np.radians(r.vary("rise", 42, 68))
    first, last = polar(np.pi + fall, short), polar(-rise, 1.0)
    legs = legs_through([first, (0, 0), last])
    meant = Meant(r.kind, "foldline", legs, folds=2)
    meant.outline = outline_of(legs)
    if r.chance("bowed", 0.65):  # the long leg swings out
        u = np.linspace(0, 1, 40)[:, None]
        side = np.array([last[1], -last[0]])
        legs[1] = u * last + side * r.vary("swing", 0.0, 0.13, 0.2) * np.sin(np.pi * u**0.7)
    if r.chance("curl", 0.4):  # the pen comes in level before it falls
        level = r.vary("level", 0.05, 0.2)
        start = first + (-level * short * 0.9, level * short * 0.4)
        t = np.linspace(0, 1, 30)[:, None]
        legs[0] = start * (1 - t)**2 + 2 * t * (1 - t) * (first * 0.97 + (0, -0.04 * short)) + t**2 * 0.0
    return meant


def bracket(r):
    arms = r.vary("arm", 0.2, 0.6) * np.exp(np.array([1, -1]) * r.vary("unequal", -0.25, 0.25))
    tilt = [np.tan(np.radians(r.vary(name, -11, 11))) for name in ("upper", "lower")]
    corners = np.array([(arms[0], tilt[0] * arms[0]), (0, 0), (0, 1), (arms[1], 1 + tilt[1] * arms[1])])
    return fold(r, corners if r.kind.startswith("left") else corners * (-1, 1))


def line(r):
    way = r.vary("any way", -np.pi, np.pi, 0.02)
    if r.chance("straight", 0.6):
        way = np.pi / 4 * r.one_of("way", 0, 0, 0, 4, 2, 2, -2, 1, -1, 3)
    return Meant(r.kind, "line", legs_through([(0, 0), polar(way + np.radians(r.vary("off", -6, 6)))]))


def fold_line(r):
    v = r.vary
    kind = r.kind
    if kind == "z":
        corners = [(0, v("a", -.05, .05)), (1, 0), (v("b", -.1, .1), v("high", 0.7, 1.2)),
                   (v("c", .85, 1.1), v("high", .7, 1.2))]
    elif kind == "n":
        corners = [(0, 1), (v("a", -.05, .1), 0), (v("wide", .5, .9), v("low", .9, 1.05)),
                   (v("wide", .5, .9), v("top", -.1, .1))]
    elif kind == "w":
        w = v("wide", 0.7, 1.3)
        corners = [(0, 0), (0.25 * w, v("a", .85, 1)), (0.5 * w, v("mid", 0.0, 0.4)),
                   (0.75 * w, v("b", .85, 1)), (w, v("c", -.1, .1))]
    elif kind == "m":
        w = v("wide", 0.7, 1.2)
        corners = [(0, 1), (v("in", 0.02, .22) * w, 0), (0.5 * w, v("mid", 0.45, 0.95)),
                   ((1 - v("in", 0.02, .22)) * w, 0), (w, 1)]
    elif kind == "L":
        corners = [(0, 0), (v("a", -.06, .06), 1), (v("foot", 0.4, 0.9), 1 + v("b", -.05, .05))]
    elif kind == "seven":
        corners = [(0, v("a", -.05, .05)), (v("wide", 0.5, 0.8), 0), (v("foot", 0.1, 0.3), 1)]
    elif kind == "stairs":
        n = r.one_of("legs", 3, 4, 5)
        tread, rise = v("tread", 0.7, 1.3), v("rise", 0.6, 1.2)
        corners = walk([90 * (-1)**i for i in range(n - 1)], [tread if i % 2 else rise for i in range(n)])
    elif kind == "lightning":
        corners = [(0.5, 0), (0.1, 0.55), (v("b", .5, .62), v("c", .38, .5)), (0.15, 1.05)]
    else:  # zigzag
        n = r.one_of("legs", 3, 4, 5)
        high = v("high", 0.5, 1.2)
        corners = [(0.5 * i, high if i % 2 else 0.0) for i in range(n + 1)]
    mirror = (r.one_of("mirror", 1, -1), r.one_of("upside", 1, -1)) if kind in ("stairs", "zigzag") else (1, 1)
    return fold(r, np.asarray(corners) * mirror)


def arc(r):
    sweep = np.radians(r.vary("sweep", 80, 270))
    middle = r.one_of("open", 0, np.pi / 2, np.pi, -np.pi / 2) + np.radians(r.vary("off", -25, 25))
    way = r.one_of("way", -1, 1)
    ratio = r.vary("ratio", 0.65, 1.0)
    t = middle + way * sweep * np.linspace(-0.5, 0.5, 120)
    p = np.column_stack((np.cos(t), ratio * np.sin(t)))
    meant = Meant(r.kind, "arc", [p])
    meant.outline = p.copy()
    return meant


# Straight legs that cross

EITHER = "foldline|none"


def cross_x(r):
    v = r.vary
    top, low = v("top", 0.0, 0.3), v("low", 0.85, 1.1)
    p = np.array([(0, top), (1, low), (v("side", 0.85, 1.1), v("high", -0.1, 0.1)),
                  (v("a", -0.05, 0.2), v("b", 0.85, 1.1))])
    return fold(r, p * (v("wide", 0.6, 1.05), 1), EITHER, "either")


def delete_mark(r):
    v = r.vary
    p = np.array([(v("c", 0.0, 0.3), v("a", -0.05, 0.2)), (1, v("b", 0.85, 1.1)), (0, v("d", 0.9, 1.1)),
                  (v("e", 0.75, 1.1), 0)])
    return fold(r, p * (v("wide", 0.65, 1.25), 1), EITHER, "either")


def star(r):
    a = np.radians(126 + 144 * np.arange(6) + r.vary("turn", -6, 6))
    p = np.column_stack((np.cos(a), np.sin(a)))
    p[1:-1] = r.shaken(p[1:-1], 0.06)
    p[5] = p[0] + [r.vary(n, -0.16, 0.16) for n in "xy"]
    if r.chance("first", 0.15):  # begins at the top
        p = p[[1, 2, 3, 4, 5, 0]]
        p[-1] = p[0] + [r.vary(n, -0.16, 0.16) for n in "xy"]
    if r.chance("mirror", 0.12):
        p = p * (-1, 1)
    return fold(r, p * (r.vary("wide", 0.85, 1.15), 1), EITHER, "either")


# kind: maker, how far it may be tilted and slanted (1 as letters)
SHAPES = {
    "arrow": (arrow, 1, 0), "circle": (circle, 1, 1), "rectangle": (rectangle, 1, 0.25), "triangle": (triangle, 1, 1),
    "caret": (caret, 1, 1), "v": (vee, 1, 1), "check": (check, 1, 1), "left_sq_bracket": (bracket, 1, 0.6),
    "right_sq_bracket": (bracket, 1, 0.6),
    "x": (cross_x, 1, 1), "delete_mark": (delete_mark, 1, 1), "star": (star, 1, 1),
    "line": (line, 1, 0), "z": (fold_line, 1, 1), "n": (fold_line, 1, 1), "w": (fold_line, 1, 1),
    "m": (fold_line, 1, 1),
    "L": (fold_line, 1, 1), "seven": (fold_line, 1, 1), "stairs": (fold_line, 1, 0.5), "lightning": (fold_line, 1, 1),
    "zigzag": (fold_line, 2, 1), "parallelogram": (parallelogram, 2, 0), "arc": (arc, 2, 0),
    "ellipse": (turned_ellipse, 1, 0),
}
KINDS = {**SHAPES, **{name: (maker, 1, 1) for name, maker in outsiders.KINDS.items()}}
_writers = {}


def stroke(kind, index, rng, seed, settings):
    """The stroke of that number of a kind. Returns the meant shape, the writer's name, the speed, times and points."""
    number = index // STROKES_A_WRITER
    if (seed, number) not in _writers:
        _writers[seed, number] = Writer(seed, number)
    writer = _writers[seed, number]
    speed = SPEEDS[index % 3]
    maker, tilt, slant = KINDS[kind]
    meant = maker(Repetition(writer, kind, rng))
    straight = all(len(leg) == 2 for leg in meant.legs)
    if meant.outline is None and meant.label != "none" and meant.label != "either" and straight:
        meant.outline = outline_of(meant.legs)
    size = writer.size * writer.habit(kind, "size", 0.75, 1.25) * np.exp(rng.normal(0.0, 0.07 * writer.repeat))
    _place(meant, writer, size, tilt, slant, rng)
    haste = writer.haste(settings["haste"], speed)
    hand = writer.hand(speed, size, rng, haste)
    if meant.label == "ellipse" and not meant.closed:
        hand.wobble *= 1.2
    if kind == "arrow":  # the way back from the first barb is often a loop rather than a corner
        hand.rounding *= writer.habit(kind, "round", 0.7, 3.5)
    if len(meant.legs) == 1 and meant.label != "line":
        hand.speed *= 1.5 if meant.label == "ellipse" or kind == "pigtail" else 1.2  # nowhere to stop
    if meant.label == "foldline":  # any rounder and it would be a bow
        hand.rounding_most, hand.bow_most = 0.24, 0.085
    elif meant.closed and straight:
        hand.rounding_most, hand.bow_most = 0.27 if len(meant.legs) < 5 else 0.15, 0.085
    if haste:
        hand.bow_most = 0.055 if meant.label == "line" else min(hand.bow_most * (1 + 0.4 * haste), 0.12)
    if meant.label == "none":
        hand.wobble *= 1.4
    # However fast, a hand is not seen at fewer places than these: on straight lines few, in bends more.
    length = sum(arc_length(leg)[-1] for leg in meant.legs)
    bent = sum(sum(turning(along(leg, 60 + len(leg) // 4))) for leg in meant.legs if len(leg) > 2)
    least = 9 if meant.label == "line" else max(18 - 5 * haste, 6 * length / size, 8 + bent / 15)
    hand.least_ms = max(hand.least_ms, hand.dt * least)
    if settings["hand"] == "thrown":
        times, points = thrown.draw(meant, hand, size, haste, rng)
    else:
        times, points = draw(meant, hand, size, rng)
    meant.note = (meant.note + " " if meant.note else "") + f"size {size:.0f} {writer.device}"
    return meant, writer.name, speed, times, points


def _place(meant, writer, size, tilt, slant, rng):
    a = np.radians(tilt * (writer.tilt + rng.normal(0.0, 2.0 * writer.repeat)))
    grid = np.array([[np.cos(a), -np.sin(a)], [np.sin(a), np.cos(a)]])
    wide = np.clip(writer.wide * np.exp(rng.normal(0.0, 0.03)), 0.8, 1.25) if slant else 1.0
    grid = grid @ np.array([[1.0, -slant * writer.slant], [0.0, 1.0]]) @ np.diag([wide, 1.0])
    everything = np.concatenate(meant.legs) @ grid.T
    low, high = everything.min(axis=0), everything.max(axis=0)
    scale = size / max((high - low).max(), 1e-9)
    at = rng.uniform(10, 300, 2)
    meant.legs = [(leg @ grid.T - low) * scale + at for leg in meant.legs]
    if meant.outline is not None:
        meant.outline = (meant.outline @ grid.T - low) * scale + at


def strokes(kind, count, seed, settings):
    rng = generator(seed, "people", kind)
    for index in range(count):
        yield stroke(kind, index, rng, seed, settings)
