#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes the stored brush tips of Texture.bundle: black pixels, the shape in alpha.

Needs nothing but Python 3; the same bytes come out every time.

    tools/make_tips.py [folder]        the default is Texture.bundle beside this folder
"""

import math
import struct
import sys
import zlib
from pathlib import Path

BRISTLE_SIDE = 256
SOFT_SIDE = 128


class Random:
    """A xorshift generator of our own, so that no Python release changes the tips."""

    def __init__(self, seed):
        self.state = seed

    def unit(self):
        self.state ^= (self.state << 13) & 0xFFFFFFFF
        self.state ^= self.state >> 17
        self.state ^= (self.state << 5) & 0xFFFFFFFF
        return self.state / 2**32

    def between(self, low, high):
        return low + (high - low) * self.unit()


def smoothstep(low, high, value):
    t = min(max((value - low) / (high - low), 0.0), 1.0)
    return t * t * (3.0 - 2.0 * t)


class ValueNoise:
    """Smooth noise from 0 to 1 whose features are `cell` pixels wide, on a grid turned by `angle`."""

    def __init__(self, rng, side, cell, angle):
        # A turned grid keeps the octaves from adding up to visible squares.
        self.cos = math.cos(angle) / cell
        self.sin = math.sin(angle) / cell
        self.offset = 1.5 * side / cell
        self.width = int(3.0 * side / cell) + 2
        self.values = [rng.unit() for _ in range(self.width * self.width)]

    def at(self, x, y):
        column, across = divmod(self.offset + x * self.cos - y * self.sin, 1.0)
        row, down = divmod(self.offset + x * self.sin + y * self.cos, 1.0)
        across = across * across * (3.0 - 2.0 * across)
        down = down * down * (3.0 - 2.0 * down)
        first = int(row) * self.width + int(column)
        second = first + self.width
        upper = self.values[first] * (1.0 - across) + self.values[first + 1] * across
        lower = self.values[second] * (1.0 - across) + self.values[second + 1] * across
        return upper * (1.0 - down) + lower * down


def bristle_gaps(rng, side, reach):
    """How much of each pixel the bristles leave bare; 1 is all of it.

    Bristles stand on a sunflower spiral, jittered, which fills the round evenly but shows no rows. Each has
    its own load of paint, so that the edge of a stroke breaks into lines.
    """
    gaps = [1.0] * (side * side)
    count = 620
    centre = (side - 1) / 2.0
    for index in range(count):
        distance = reach * math.sqrt((index + 0.5) / count) + rng.between(-4.0, 4.0)
        angle = index * math.pi * (3.0 - math.sqrt(5.0)) + rng.between(-0.05, 0.05)
        x = centre + distance * math.cos(angle)
        y = centre + distance * math.sin(angle)
        width = rng.between(1.8, 4.2)
        load = rng.unit()
        span = int(3.0 * width)
        for py in range(max(int(y) - span, 0), min(int(y) + span + 1, side)):
            for px in range(max(int(x) - span, 0), min(int(x) + span + 1, side)):
                square = ((px - x) ** 2 + (py - y) ** 2) / (width * width)
                gaps[py * side + px] *= 1.0 - 0.9 * load * math.exp(-0.5 * square)
    return gaps


def bristle_tip():
    """A round brush seen from below: bristles under a ragged edge, broken by grain."""
    side = BRISTLE_SIDE
    rng = Random(0x1D0AB5)
    reach = side * 0.430
    waves = [(turns, rng.between(0.0, 2.0 * math.pi), 0.026 / turns**0.5) for turns in (2, 3, 5, 7, 11, 17)]
    gaps = bristle_gaps(rng, side, reach)
    pools = ValueNoise(rng, side, 30.0, 0.35)
    coarse = ValueNoise(rng, side, 7.5, 1.05)
    fine = ValueNoise(rng, side, 2.9, 0.62)
    centre = (side - 1) / 2.0
    alpha = bytearray(side * side)
    for y in range(side):
        for x in range(side):
            angle = math.atan2(y - centre, x - centre)
            rim = reach * (1.0 + sum(size * math.sin(turns * angle + at) for turns, at, size in waves))
            # Grain moves the rim in and out as well, so that the edge is soft but never a clean circle.
            grain = 0.45 * coarse.at(x - centre, y - centre) + 0.55 * fine.at(x - centre, y - centre)
            pool = pools.at(x - centre, y - centre)
            outward = math.hypot(x - centre, y - centre) / rim + 0.22 * (grain - 0.5) + 0.10 * (pool - 0.5)
            body = 1.0 - smoothstep(0.74, 1.06, outward)
            # The grain bites deeper where less paint is left, towards the rim.
            bite = 0.25 + 0.55 * smoothstep(0.45, 0.95, outward)
            tooth = 1.0 - bite * (1.0 - smoothstep(0.25, 0.65, grain))
            bristles = 0.30 + 0.70 * (1.0 - gaps[y * side + x])
            alpha[y * side + x] = int(255.0 * body * tooth * (0.72 + 0.28 * pool) * bristles)
    return side, alpha


def soft_tip():
    """A soft round: a bell curve, shifted down so that it meets 0 at the edge."""
    side = SOFT_SIDE
    centre = (side - 1) / 2.0
    foot = math.exp(-4.5)
    alpha = bytearray(side * side)
    for y in range(side):
        for x in range(side):
            outward = math.hypot(x - centre, y - centre) / (side / 2.0 - 1.0)
            bell = (math.exp(-4.5 * outward * outward) - foot) / (1.0 - foot)
            alpha[y * side + x] = int(255.0 * max(bell, 0.0) + 0.5)
    return side, alpha


def clear_border(side, alpha, width):
    for y in range(side):
        for x in range(side):
            if min(x, y, side - 1 - x, side - 1 - y) < width:
                alpha[y * side + x] = 0


def png(side, alpha):
    """A PNG of black pixels with the given alpha."""

    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    rows = bytearray()
    for y in range(side):
        rows.append(0)  # no filter
        for x in range(side):
            rows += bytes((0, 0, 0, alpha[y * side + x]))
    header = struct.pack(">IIBBBBB", side, side, 8, 6, 0, 0, 0)
    return b"".join((b"\x89PNG\r\n\x1a\n", chunk(b"IHDR", header), chunk(b"IDAT", zlib.compress(rows, 9)),
                     chunk(b"IEND", b"")))


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent / "Texture.bundle"
    folder.mkdir(parents=True, exist_ok=True)
    for name, (side, alpha) in (("PS_brush_11.png", bristle_tip()), ("柔角 30 1.png", soft_tip())):
        # Neighbouring texels must not smear a visible square around the dab.
        clear_border(side, alpha, 2)
        (folder / name).write_bytes(png(side, alpha))


if __name__ == "__main__":
    main()
