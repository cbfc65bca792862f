# SPDX-License-Identifier: MIT
"""What people draw in one stroke that is no shape of the recogniser's kinds: signs, handwriting, doodles, outlines of
other things. Each maker takes a Repetition; y down."""

import numpy as np

from .glyphs import DIGITS, LETTERS, SIGNS
from .hand import Meant
from .program import TAU, ellipse_arc, legs_through, sharpest, spline, turning


def nothing(r, legs, closed=False):
    return Meant(r.kind, "none", legs if isinstance(legs, list) else [legs], closed=closed, ideal=False)


def through(r, places, by=0.03):
    """Smooth curves through the places, shaken; a third number there makes a corner."""
    points = r.shaken([place[:2] for place in places], by)
    corners = [0] + [i for i, place in enumerate(places) if len(place) == 3] + [len(places) - 1]
    return [spline(points[a:b + 1]) for a, b in zip(corners, corners[1:])]


# Signs

def pigtail(r):
    v = r.vary
    wide, left, cross = v("loop", 0.14, 0.34), v("lean", -0.12, 0.12), v("cross", 0.5, 0.8)
    run_in, run_out = v("in", 0.35, 0.6), v("out", 0.35, 0.75)
    p = [(0.5 - run_in, v("start", 0.85, 1.0)), (0.5 - 0.4 * run_in, v("rise", 0.82, 0.95)), (0.5, cross),
         (0.5 + wide + left, 0.45 * cross), (0.5 + 0.55 * wide + left, 0.06), (0.5 - 0.35 * wide + left, 0.05),
         (0.5 - wide + left * 0.7, 0.42 * cross), (0.5 - 0.4 * wide, cross + 0.12),
         (0.5 + 0.45 * run_out, v("dip", 0.92, 1.04)),
         (0.5 + run_out, v("end", 0.75, 0.98))]
    curve = spline(r.shaken(p, 0.018))
    return nothing(r, curve * (r.one_of("mirror", *[1] * 9, -1), r.one_of("upside", *[1] * 14, -1)))


def question_mark(r):
    v = r.vary
    wide, bend = v("wide", 0.5, 0.9), v("bend", 0.53, 0.66)
    stem, foot = v("stem", 0.42, 0.6) * wide, v("foot", -0.03, 0.1)
    hook = [(v("start x", -0.02, 0.1), v("start y", 0.2, 0.36)), (0.12 * wide, v("shoulder", 0.06, 0.16)),
            (0.5 * wide, 0.0),
            (0.9 * wide, 0.1), (wide, v("belly", 0.24, 0.36)), (0.82 * wide, 0.44)]
    if r.chance("curled", 0.2):
        hook.insert(0, (hook[0][0] + 0.12, hook[0][1] + 0.06))
    end = (stem + foot, v("end", 0.95, 1.15))
    how = r.one_of("how", "sharp", "sharp", "round", "round", "s")
    if how == "sharp":
        # Back to the stem and straight down: a corner, the stem begins left of the belly.
        back = (stem, bend)
        return nothing(r, [spline(r.shaken(hook + [back], 0.02)), np.array([back, end])])
    if how == "round":
        return nothing(r, spline(r.shaken(hook + [(stem + 0.1 * wide, bend), (stem, bend + 0.12), end], 0.018)))
    return nothing(r, spline(r.shaken(hook + [(stem + 0.04, bend + 0.02), (stem - 0.13 * wide, bend + 0.18),
                                              (stem - 0.04 * wide, bend + 0.32), (stem + 0.1 * wide, end[1])], 0.018)))


def brace(r):
    """Opening; the closing one is its mirror image. x runs to the open side, the nose points away from it."""
    v = r.vary
    arm, nose, mid = v("arm", 0.18, 0.45), v("nose", 0.1, 0.32), v("middle", 0.42, 0.56)
    top, low = v("top", -0.02, 0.08), 1 + v("low", -0.06, 0.04)
    how = r.one_of("how", "printed", "printed", "pointed", "pointed", "three", "wave", "looped", "shallow")
    if how == "shallow":
        nose, arm = v("small nose", 0.1, 0.16), max(arm, 0.26)
        p = [(arm, top), (0.06, 0.03), (0.0, 0.12), (0.0, mid - 0.14), (-nose, mid, 1), (0.0, mid + 0.14), (0.0, 0.88),
             (0.06, 0.97), (arm, low)]
        legs = through(r, p, 0.012)
    elif how == "printed":
        p = [(arm, top), (0.35 * arm, 0.02), (0.02, 0.12), (0.02, mid - 0.17), (-0.25 * nose, mid - 0.05),
             (-nose, mid, 1),
             (-0.25 * nose, mid + 0.05), (0.02, mid + 0.17), (0.02, 0.88), (0.35 * arm, 0.98), (arm, low)]
        legs = through(r, p, 0.015)
    elif how == "pointed":  # two bows that meet in a point
        p = [(arm, top), (0.1 * arm, 0.06), (0.12, 0.22), (0.14, mid - 0.12), (-nose, mid, 1), (0.14, mid + 0.12),
             (0.12, 0.8), (0.1 * arm, 0.94), (arm, low)]
        legs = through(r, p, 0.02)
    elif how == "three":  # a 3 the other way round
        deep = 0.75 * arm + 0.12
        p = [(deep, 0.06), (0.25 * deep, 0.0), (-0.1, 0.14), (0.0, 0.33), (deep * v("cusp", 0.4, 0.9), mid, 1),
             (0.0, 0.6), (-0.14, 0.8), (0.2 * deep, 1.0), (deep, 0.93)]
        legs = through(r, p, 0.02)
    elif how == "wave":  # bellies out before the nose: top, left, right, nose, right, left, end
        b = v("belly", 0.18, 0.38)
        p = [(b, 0.0), (0.02, 0.07), (0.0, 0.2), (b, 0.33), (b * 0.9, 0.42), (-v("point", 0.02, 0.18), mid + 0.03),
             (b * 0.8, 0.58), (b * 0.6, 0.68), (0.05, 0.84), (0.03, 0.96), (b * 0.9, 1.0)]
        legs = through(r, p, 0.02)
    else:  # goes out along the nose and back
        p = [(arm, top), (0.3 * arm, 0.02), (0.05, 0.15), (0.16, 0.3), (0.2, mid - 0.06), (0.02, mid),
             (-nose, mid + 0.01, 1),
             (0.05, mid + 0.03), (0.2, mid + 0.1), (0.08, 0.78), (0.04, 0.9), (0.3 * arm, 0.99), (arm, low)]
        legs = through(r, p, 0.018)
    wide = v("wide", 0.8, 1.4)
    mirror = -1 if r.kind.startswith("right") else 1
    return nothing(r, [leg * (mirror * wide, 1) for leg in legs])


def glyph(table):
    """One of a table; a writer has a few that they like."""
    def make(r):
        names = sorted(table)
        name = names[int(r.rng.integers(len(names)))]
        legs = through(r, table[name], 0.028)
        lean = r.vary("lean", -0.15, 0.4)
        meant = nothing(r, [leg @ np.array([[r.vary("wide", 0.8, 1.4), 0], [-lean, 1]]) for leg in legs])
        meant.note = name
        return meant
    return make


# Waves and doodles

def spiral(r):
    turns, out = r.vary("turns", 1.8, 4.5), r.vary("power", 0.8, 1.2)
    t = np.linspace(0, 1, int(70 * turns))
    radius = r.vary("inner", 0.02, 0.18) + t**out
    if r.chance("inwards", 0.35):
        radius = radius[::-1]
    a = r.vary("start", 0, TAU) + r.one_of("way", -1, 1) * TAU * turns * t
    return nothing(r, np.column_stack((radius * np.cos(a) * r.vary("wide", 0.8, 1.2), radius * np.sin(a))))


def wave(r):
    periods, high = r.vary("periods", 1.5, 4), r.vary("high", 0.11, 0.27)
    t = np.linspace(0, 1, 200)
    grow = 1 + r.vary("grow", -0.4, 0.4) * (t - 0.5)
    a = TAU * periods * t + r.vary("phase", 0, TAU)
    a = a + r.vary("skew", -0.5, 0.5) * np.sin(a)
    return nothing(r, np.column_stack((t * periods * 0.9, high * grow * np.sin(a))))


def s_curve(r):
    top, low = np.radians(r.vary("top", 120, 230)), np.radians(r.vary("low", 120, 230))
    ratio = r.vary("ratio", 0.7, 1.4)
    n = 100
    bend = np.concatenate((np.full(n, -top / n), np.full(n, low / n * 1.0)))
    bend = np.convolve(np.pad(bend, 12, mode="edge"), np.full(25, 1 / 25), "valid")
    step = np.concatenate((np.ones(n), np.full(n, ratio)))
    heading = np.cumsum(bend)
    curve = np.cumsum(np.column_stack((np.cos(heading), np.sin(heading))) * step[:, None], axis=0)
    a = r.vary("turn", 0, TAU, 0.02)
    curve = curve @ np.array([[np.cos(a), np.sin(a)], [-np.sin(a), np.cos(a)]])
    return nothing(r, curve * (r.one_of("mirror", 1, -1), 1))


def hook(r):
    """A J, a cane: a stem that ends in a half circle or more."""
    wide, sweep = r.vary("wide", 0.15, 0.25), np.radians(r.vary("sweep", 165, 235))
    bend = ellipse_arc(wide, wide * r.vary("flat", 0.8, 1.3), 0, sweep, 60)
    stem = np.column_stack((np.full(30, 0.0), np.linspace(-r.vary("stem", 0.75, 1.15), -0.02, 30)))
    curve = np.concatenate((stem + bend[0], bend))
    if r.chance("reversed", 0.4):
        curve = curve[::-1]
    return nothing(r, curve * (r.one_of("mirror", 1, -1), r.one_of("upside", 1, -1)))


def scribble(r):
    swings = int(r.vary("swings", 7, 16))
    width = r.vary("wide", 0.15, 2.0)
    x = np.linspace(0, width, swings + 1) + r.rng.normal(0, 0.3 * width / swings, swings + 1)
    y = np.arange(swings + 1) % 2 + r.rng.normal(0, r.vary("rough", 0.03, 0.2), swings + 1)
    points = np.column_stack((x, y))
    if r.chance("sharp", 0.5):
        legs = legs_through(points)
    else:
        u = np.linspace(0, swings, swings * 30)
        k = np.minimum(u.astype(int), swings - 1)
        f = 0.5 * (1 - np.cos(np.pi * (u - k)))[:, None]
        mix = points[k] * (1 - f) + points[k + 1] * f
        legs = [np.column_stack((np.interp(u, np.arange(swings + 1), x), mix[:, 1]))]
    a = r.vary("turn", -1.6, 1.6)
    return nothing(r, [leg @ np.array([[np.cos(a), np.sin(a)], [-np.sin(a), np.cos(a)]]) for leg in legs])


def tangle(r):
    """A doodle that goes anywhere, with loops."""
    noise = r.rng.normal(0, 1, 260)
    bend = r.vary("bias", -0.06, 0.06) + 0.11 * np.convolve(noise, np.hanning(40) / 4.0, "valid")
    heading = np.cumsum(bend)
    step = 1 + 0.5 * np.sin(np.linspace(0, r.vary("breath", 4, 14), len(bend)))
    meant = nothing(r, np.cumsum(np.column_stack((np.cos(heading), np.sin(heading))) * step[:, None], axis=0))
    return meant if sum(turning(meant.legs[0])) > 600 else tangle(r)


def meander(r):
    """A line that bends to both sides, with no corner and no plan."""
    while True:
        t = np.linspace(0, 1, 180)
        heading = sum(r.rng.normal(0, a) * np.sin(TAU * f * t + r.rng.uniform(0, TAU))
                      for a, f in ((1.0, 0.7), (0.9, 1.4), (0.5, 2.2)))
        curve = np.cumsum(np.column_stack((np.cos(heading), np.sin(heading))), axis=0)
        if min(turning(curve)) > 75 and sharpest(curve) < 60:
            return nothing(r, curve)


def loops(r):
    n = int(r.vary("loops", 2, 6))
    t = np.linspace(0, TAU * n, 60 * n)
    advance = r.vary("advance", 0.06, 0.2)
    return nothing(r, np.column_stack((advance * t + np.sin(t) * r.vary("wide", 0.4, 0.8),
                                       -np.cos(t) * r.one_of("under", 1, -1) * (1 + 0.1 * np.sin(t / 3)))))


def infinity(r):
    sweep = r.one_of("way", -1, 1) * TAU * (1 + r.vary("over", -0.04, 0.08))
    t = r.vary("start", 0, TAU, 0.02) + np.linspace(0, sweep, 200)
    d = 1 + np.sin(t)**2
    x, y = np.cos(t) / d, np.sin(t) * np.cos(t) / d * r.vary("high", 0.9, 1.7)
    lop = 1 + r.vary("lopsided", -0.25, 0.25) * np.tanh(3 * x)
    p = np.column_stack((x * lop, y * lop))
    return nothing(r, p if r.chance("lying", 0.5) else p[:, ::-1])


# Outlines of other things

def heart(r):
    notch, wide, low = r.vary("notch", 0.0, 0.45), r.vary("wide", 0.75, 1.1), r.vary("low", 1.5, 2.1)
    half = spline([(0, notch), (0.25 * wide, -0.08), (0.6 * wide, -0.16), (0.95 * wide, 0.12), (0.96 * wide, 0.5),
                   (0.55 * wide, 0.65 * low), (0, low)])
    other = half[::-1] * (-r.vary("unlike", 0.85, 1.15), 1)
    return nothing(r, [half, other] if r.chance("top", 0.7) else [other, half], closed=True)


def drop(r):
    t = np.linspace(0, TAU, 160)
    m = r.vary("point", 0.9, 1.6)
    p = np.column_stack((np.sin(t) * np.sin(t / 2)**m * r.vary("wide", 0.5, 0.85), -np.cos(t)))
    p = p[::r.one_of("way", 1, -1)]
    return nothing(r, p * (1, r.one_of("upside", 1, 1, -1)), closed=True)


def polygon(r):
    v = r.vary
    if r.kind == "house":
        roof = v("roof", 0.25, 0.55)
        p = [(0, 1.3), (0, roof), (0.5, 0), (1, roof), (1, 1.3)]
    elif r.kind == "pentagon":
        a = -TAU / 4 + TAU / 5 * np.arange(5)
        p = np.column_stack((np.cos(a), np.sin(a)))
    elif r.kind == "hexagon":
        a = TAU / 6 * np.arange(6) + r.one_of("turn", 0, TAU / 12)
        p = np.column_stack((np.cos(a), np.sin(a)))
    elif r.kind == "trapezoid":
        top = v("top", 0.3, 0.65)
        left = v("left", 0.2, 0.8) * (1 - top)
        p = np.array([(left, 0), (0, 1), (1 * v("wide", 0.98, 1.02), 1), (left + top, 0)]) * (1, v("high", 0.45, 0.85))
        p = p * (1, r.one_of("upside", 1, 1, -1))
    elif r.kind == "kite":
        p = [(0.5, 0), (0, v("wing", 0.22, 0.33)), (0.5, v("long", 1.15, 1.5)), (1, v("wing", 0.22, 0.33))]
    elif r.kind == "arrowhead":  # a dart: four sides, one corner points inwards
        p = [(0.5, 0), (0, 1), (0.5, v("notch", 0.5, 0.72)), (1, 1)]
    elif r.kind == "hourglass":
        p = np.array([(0, 0), (1, 0), (v("a", 0, 0.1), 1.2), (1, 1.2)])
    elif r.kind == "l_room":
        c = v("cut", 0.38, 0.6)
        p = [(0, 0), (0, 1), (1, 1), (1, 1 - c), (c, 1 - c), (c, 0)]
    else:  # plus
        c = v("arm", 0.28, 0.4)
        p = [(c, 0), (1 - c, 0), (1 - c, c), (1, c), (1, 1 - c), (1 - c, 1 - c), (1 - c, 1), (c, 1), (c, 1 - c),
             (0, 1 - c),
             (0, c), (c, c)]
    p = r.shaken(p, 0.02)
    k = r.one_of("first", 0, 0, 0, 1, 2)
    meant = nothing(r, legs_through(np.roll(p, -k, axis=0), True), closed=True)
    if r.kind == "hourglass":  # straight legs that cross
        meant.label, meant.accept, meant.folds = "either", "foldline|none", 4
    return meant


def half_disc(r):
    bow = ellipse_arc(1, r.vary("high", 0.75, 1.2), np.pi * r.one_of("upside", 0, 1), np.pi)
    chord = bow[[-1, 0]]
    return nothing(r, [bow, chord] if r.chance("bow first", 0.5) else [chord, bow], closed=True)


def crescent(r):
    reach = r.vary("reach", 1.15, 1.6)
    outer = ellipse_arc(1, 1, -reach, 2 * reach - TAU, 90)
    tip_a, tip_b = outer[0], outer[-1]
    deep = r.vary("deep", 0.35, 0.75)
    u = np.linspace(0, 1, 50)[:, None]
    inner = tip_b * (1 - u) + tip_a * u + np.array([-1, 0]) * 4 * u * (1 - u) * deep * 1.3
    return nothing(r, [outer, inner], closed=True)


def cloud(r):
    n = int(r.vary("bumps", 5, 9))
    at = TAU * np.arange(n + 1) / n + np.concatenate(([0], r.rng.normal(0, 0.07, n - 1), [0]))
    ring = np.column_stack((np.cos(at), r.vary("high", 0.55, 0.8) * np.sin(at)))
    legs = []
    for a, b in zip(ring, ring[1:]):
        u = np.linspace(0, np.pi, 24)[:, None]
        out = np.array([(b - a)[1], -(b - a)[0]])
        legs.append((a + b) / 2 - np.cos(u) * (b - a) / 2 + np.sin(u) * out * r.vary("puff", 0.38, 0.6))
    return nothing(r, legs, closed=True)


def flag(r):
    v = r.vary
    wide, high = v("wide", 0.5, 0.9), v("high", 0.35, 0.5)
    p = [(0, 1.3), (0, 0), (wide, 0.02), (wide, high), (0.02, high)]
    if r.chance("pennant", 0.5):
        p = [(0, 1.3), (0, 0), (wide, high / 2), (0.02, high)]
    return nothing(r, legs_through(r.shaken(p, 0.02) * (r.one_of("mirror", 1, -1), 1)))


def curled_tick(r):
    """A tick whose long leg ends in a curl."""
    v = r.vary
    p = [(0, 0.55), (0.22, 1.0, 1), (0.5, 0.5), (0.85, 0.05), (1.05, v("a", -0.12, 0.0)), (1.2, 0.12), (1.08, 0.26),
         (0.92, v("b", 0.1, 0.22))]
    return nothing(r, through(r, p, 0.02))


def many_legs(r):
    """A zigzag of more legs than a fold line is expected to have."""
    n = int(r.vary("legs", 7, 12))
    p = np.column_stack((np.arange(n + 1) * r.vary("step", 0.15, 0.5), np.arange(n + 1) % 2))
    return nothing(r, legs_through(r.shaken(p, 0.06)))


KINDS = {
    "pigtail": pigtail, "question_mark": question_mark, "left_curly_brace": brace, "right_curly_brace": brace,
    "letter": glyph(LETTERS), "digit": glyph(DIGITS), "sign": glyph(SIGNS),
    "spiral": spiral, "wave": wave, "s_curve": s_curve, "hook": hook, "scribble": scribble, "tangle": tangle,
    "meander": meander, "loops": loops, "infinity": infinity, "many_legs": many_legs,
    "heart": heart, "drop": drop, "half_disc": half_disc, "crescent": crescent, "cloud": cloud, "flag": flag,
    "curled_tick": curled_tick,
    "house": polygon, "pentagon": polygon, "hexagon": polygon, "trapezoid": polygon, "kite": polygon,
    "arrowhead": polygon, "hourglass": polygon, "l_room": polygon, "plus": polygon,
}
