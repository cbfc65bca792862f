# SPDX-License-Identifier: MIT
"""Tips that are pictures of something, to be scattered: leaves, grass, confetti, blots. PNG bytes, the same every time.

Places are from -1 to 1, x to the right and y down; up is where a brush turned by nothing points.
"""

import numpy as np

from brush_fields import between, png, smoothstep
from brush_tips import FINE, places, stamped


def falling(low, high, value):
    """1 below `low`, 0 above `high`, smoothly between."""
    return 1 - smoothstep(low, high, value)


def leaf(side, kind):
    """A leaf with its stalk down and a bare midrib: 0 pointed, 1 round, 2 willow, 3 lobed."""
    width, rise, round_off = ((0.44, 0.8, 0.8), (0.6, 0.75, 0.55), (0.22, 0.9, 0.9), (0.62, 0.7, 0.7))[kind]
    x, y = places(side)
    t = (y + 0.95) / 1.6  # 0 at the point, 1 where the stalk begins
    blade = np.clip(t, 0, 1)
    half = width * np.clip(np.sin(np.pi * blade**rise), 0, 1) ** round_off
    if kind == 3:
        half = half * (0.72 + 0.28 * np.cos(blade * 6 * np.pi - 0.6))
    elif kind == 0:
        half = half * (1 + 0.05 * np.cos(blade * 40))
    rib = 1 - 0.75 * falling(0.01, 0.035, np.abs(x)) * smoothstep(0.02, 0.2, t)
    between_veins = np.abs((t * 7 - np.abs(x) * 5) % 1 - 0.5)
    veins = 1 - 0.28 * falling(0.0, 0.12, between_veins) * smoothstep(0.03, 0.08, np.abs(x))
    body = smoothstep(0.0, 0.05, half - np.abs(x)) * rib * veins * (t >= 0)
    stalk = falling(0.02, 0.06, np.abs(x + 0.06 * (t - 1))) * falling(1.1, 1.18, t)
    return stamped(np.where(t > 1, stalk, body))


def blade(side, seed):
    """A tuft of grass, growing up from the middle."""
    x, y = places(side)
    covered = np.zeros((side, side))
    shapes = zip(between(seed, 6, -0.5, 0.5), between(seed + 100, 6, -0.3, 0.3), between(seed + 200, 6, 0.7, 0.95),
                 between(seed + 300, 6, 0.035, 0.06))
    for root, lean, height, width in shapes:
        t = (0.5 - y) / (height + 0.45)  # 0 at the root, 1 at the point
        grown = np.clip(t, 0, 1)
        middle = root * (0.7 + 0.3 * grown) + lean * grown**2 * 1.3
        inside = smoothstep(0.0, 0.025, width * (1 - grown) ** 0.7 - np.abs(x - middle))
        covered = np.maximum(covered, inside * (0.75 + 0.25 * grown) * (t == grown))
    return stamped(covered)


def splash(side, seed, arms):
    """A drop that burst: a body, fingers and drops that flew off."""
    x, y = places(side)
    blobs = [(0.0, 0.0, between(seed, 1, 0.3, 0.42)[0])]
    for turn, out, size in zip(between(seed + 100, arms, 0, 2 * np.pi), between(seed + 200, arms, 0.5, 0.95),
                               between(seed + 300, arms, 0.03, 0.07)):
        reach = [(0.3 + step * (out - 0.3) / 7, 0.055 - 0.006 * step) for step in range(7)] + [(out, size)]
        blobs += [(along * np.cos(turn), along * np.sin(turn), thick) for along, thick in reach]
    field = sum(size**2 / ((x - bx) ** 2 + (y - by) ** 2 + 1e-4) for bx, by, size in blobs)
    return stamped(smoothstep(1.3, 1.7, field) * falling(0.93, 0.99, np.maximum(np.abs(x), np.abs(y))))


def shard(side, kind):
    """Confetti in a colour of its own, for the jitter to turn: 0 a strip, 1 a disc, 2 a triangle, 3 a ring."""
    x, y = places(side)
    out = np.hypot(x, y)
    inside = (np.minimum(0.85 - np.abs(x), 0.32 - np.abs(y)), 0.62 - out,
              np.minimum(0.5 - y, (y + 0.75) * 0.5 - np.abs(x) * 0.87), 0.16 - np.abs(out - 0.6))[kind]
    red, green, blue = np.full_like(x, 0.95), 0.15 + 0.1 * (y > 0), np.full_like(x, 0.2)
    return png(np.stack([red, green, blue, smoothstep(0.0, 0.05, inside)]), FINE)
