# SPDX-License-Identifier: MIT
"""Draws tips and papers of those brushes of make_brushes.py that have none of brush_papers.py and brush_tips.py.

Tips are pixels whose alpha is the shape; papers are opaque greys that repeat, white where paint gets through. Both come
as PNG bytes, the same every time.
"""

import math
import struct
import zlib

from make_tips import Random, smoothstep

LEVELS = 24  # of alpha or grey: enough for the eye, and small files


def seeded(seed):
    rng = Random(seed * 2654435761 % 2**32 or 1)
    for _ in range(8):
        rng.unit()  # small seeds start small
    return rng


def clamp(value, low=0.0, high=1.0):
    return min(max(value, low), high)


def png(width, height, pixel, channels=4):
    """An image of pixel(x, y): a tuple of `channels` numbers from 0 to 1."""
    rows = bytearray()
    for y in range(height):
        rows.append(0)
        for x in range(width):
            values = [round(clamp(value) * LEVELS) * 255 // LEVELS for value in pixel(x, y)]
            if channels == 4 and values[3] == 0:
                values = [0, 0, 0, 0]  # what is not there has no colour to store
            rows.extend(values)

    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    header = struct.pack(">IIBBBBB", width, height, 8, 6 if channels == 4 else 2, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(bytes(rows), 9))
            + chunk(b"IEND", b""))


def tip(side, alpha, color=lambda x, y: (0.0, 0.0, 0.0)):
    """A square tip; alpha and color take places from -1 to 1, x to the right and y down."""
    def place(i):
        return (2 * i + 1) / side - 1.0

    def pixel(i, j):
        x, y = place(i), place(j)
        a = alpha(x, y)
        return (*color(x, y), a) if a > 0 else (0.0, 0.0, 0.0, 0.0)
    return png(side, side, pixel)


class Noise:
    """Smooth noise from 0 to 1 that repeats after `period` cells."""

    def __init__(self, rng, period):
        self.period = period
        self.values = [rng.unit() for _ in range(period * period)]

    def at(self, x, y):
        column, row = math.floor(x), math.floor(y)
        across, down = smoothstep(0, 1, x - column), smoothstep(0, 1, y - row)

        def value(i, j):
            return self.values[j % self.period * self.period + i % self.period]
        upper = value(column, row) * (1 - across) + value(column + 1, row) * across
        lower = value(column, row + 1) * (1 - across) + value(column + 1, row + 1) * across
        return upper * (1 - down) + lower * down


# ---- Papers

def paper(side, cells, low, high, seed, stretch=1.0):
    """Grain of several sizes, `cells` across the tile each; where it lies below `low` no paint holds, above `high` all."""
    rng = seeded(seed)
    layers = [(count, Noise(rng, count), 1.0 / (1 + place * 0.6)) for place, count in enumerate(cells)]
    weight = sum(share for _, _, share in layers)

    def pixel(i, j):
        value = sum(share * noise.at(i * count / side, j * count * stretch / side)
                    for count, noise, share in layers) / weight
        return (smoothstep(low, high, value),) * 3
    return png(side, side, pixel, 3)


# ---- Tips

def speckled(side, seed, grain, low, high, edge=0.25, wobble=0.1):
    """A ragged disc broken by grain, such as a stick of graphite or coal leaves."""
    rng = seeded(seed)
    noise, coarse = Noise(rng, grain), Noise(rng, max(3, grain // 4))
    waves = [(n, rng.between(0, 2 * math.pi), rng.between(0.3, 1) / n) for n in (2, 3, 5, 8)]

    def alpha(x, y):
        turn = math.atan2(y, x)
        rim = 1 - wobble + wobble * 0.6 * sum(size * math.sin(n * turn + at) for n, at, size in waves)
        body = 1 - smoothstep(rim - edge, rim, math.hypot(x, y))
        value = 0.65 * noise.at((x + 1) * grain / 2, (y + 1) * grain / 2)
        value += 0.35 * coarse.at((x + 1) * grain / 8, (y + 1) * grain / 8)
        return body * smoothstep(low, high, value)
    return tip(side, alpha)


def bristles(side, seed, count, thickness, load, shape=1.0, lights=0.0):
    """A brush end: `count` hairs in an oval, `shape` times as deep as wide; a share of them carries paint.

    load     of two brush ends that differ in this alone, all hairs that paint with the smaller one do with the other
    lights   how much lighter the paint is on some hairs than the brush's colour, for brushes with own colours
    """
    rng = seeded(seed)
    hairs = []
    for i in range(count):
        out, turn = math.sqrt((i + 0.5) / count) * 0.9, i * math.pi * (3 - math.sqrt(5)) + rng.between(-0.3, 0.3)
        hairs.append((out * math.cos(turn) * shape, out * math.sin(turn), thickness * rng.between(0.6, 1.5),
                      rng.between(0.5, 1.0) * (rng.unit() < load), rng.unit() ** 2 * lights))

    near = [[] for _ in range(16 * 16)]  # hairs by place, as there may be hundreds
    for hair in hairs:
        reach = 3 * hair[2]
        for row in range(int(clamp((hair[1] - reach + 1) * 8, 0, 15)), int(clamp((hair[1] + reach + 1) * 8, 0, 15)) + 1):
            for column in range(int(clamp((hair[0] - reach + 1) * 8, 0, 15)),
                                int(clamp((hair[0] + reach + 1) * 8, 0, 15)) + 1):
                near[row * 16 + column].append(hair)

    def around(x, y):
        for hx, hy, width, paint, light in near[int((y + 1) * 8) * 16 + int((x + 1) * 8)]:
            yield math.exp(-((x - hx) ** 2 + (y - hy) ** 2) / (width * width)), paint, light

    def alpha(x, y):
        bare = 1.0
        for share, paint, _ in around(x, y):
            bare *= 1 - share * paint
        return clamp((1 - bare) * 1.15 - 0.08)

    def color(x, y):
        best = max(around(x, y), default=(0, 0, 0))
        return (best[2],) * 3
    return tip(side, alpha, color if lights else lambda x, y: (0.0, 0.0, 0.0))


def wash(side, seed):
    """A pool of water: thin in the middle, pigment gathered at a ragged rim."""
    rng = seeded(seed)
    noise, fine = Noise(rng, 7), Noise(rng, 19)
    waves = [(n, rng.between(0, 2 * math.pi), rng.between(0.4, 1) / n) for n in (2, 3, 4, 7, 11)]

    def alpha(x, y):
        turn = math.atan2(y, x)
        rim = 0.9 + 0.05 * sum(size * math.sin(n * turn + at) for n, at, size in waves)
        out = math.hypot(x, y) / rim
        cloud = 0.65 * noise.at(x * 3.5 + 3.5, y * 3.5 + 3.5) + 0.35 * fine.at(x * 9.5 + 9.5, y * 9.5 + 9.5)
        inside = 1 - smoothstep(0.84, 1.0, out)
        return inside * (0.2 + 0.25 * cloud + 0.7 * smoothstep(0.55, 0.95, out))
    return tip(side, alpha)


def rough_disc(side, seed, wobble=0.05):
    """A solid disc whose edge is a little torn: a wet brush on absorbent paper."""
    rng = seeded(seed)
    noise = Noise(rng, 12)

    def alpha(x, y):
        out = math.hypot(x, y) + wobble * (noise.at(x * 6 + 6, y * 6 + 6) - 0.5) * 2
        return 1 - smoothstep(0.78, 0.95, out)
    return tip(side, alpha)
