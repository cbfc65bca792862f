# SPDX-License-Identifier: MIT
"""Tips for brushes that leave the traces of hairs, and for a knife. PNG bytes, the same every time.

Each stands upright: hairs lie side by side along y, and a brush that turns its tip into the stroke's direction moves
along x. A stroke is its tip drawn out, so what counts is how much paint lies at each y: hairs of unlike width and load
in tufts, never a row of equal ones, which would be corduroy. Spacing 0.015 to 0.03 of the width, else hairs are beads.
"""

import numpy as np

from brush_fields import bells, between, blurred, smoothstep, unit, units
from brush_tips import FINE, places, stamped

SIDE = 256


def _tufts(seed, wide):
    """Noise along y, of features so many pixels wide, from 0 to 1 with all in between."""
    noise = unit(blurred(np.repeat(bells(seed, SIDE)[:, None], SIDE, axis=1), 0, wide))[:, 0]
    return 0.5 + 0.5 * np.tanh(noise)


def _row(seed, count, thick, load, depth, film=0.0, bow=0.0, taper=0.1, lights=0.0):
    """A row of hairs.

    count   hairs from end to end
    thick   of a hair, in widths of the row; those of one brush differ by half and twice
    load    share of hairs that carry paint; of two seeds alike, who paints with less does with more
    depth   of the row: how far hairs stand before and behind it
    film    of paint between the hairs, where tufts hold some
    bow     how much the ends stay behind the middle, for rounded brushes
    taper   share of the row at either end where hairs thin out
    lights  how much lighter than the brush's colour the paint on some hairs is, for brushes with colours of their own
    """
    x, y = places(SIDE)
    at = -0.92 + 1.84 * (np.arange(count) + between(seed, count, -0.1, 1.1)) / count
    row = np.clip(((at + 1) * SIDE / 2).astype(int), 0, SIDE - 1)
    ends = smoothstep(0, 2 * taper, 0.95 - np.abs(at))
    width = thick * np.exp(0.45 * bells(seed + 1, count)) * (0.6 + 0.4 * ends)
    tuft = _tufts(seed + 2, 9)[row] * 0.6 + _tufts(seed + 3, 3)[row] * 0.4
    order = 0.5 * units(seed + 4, count) + 0.5 * (1 - tuft)  # the first carry paint
    paint = smoothstep(0, 0.12, load * 1.1 - order) * (0.35 + 0.65 * tuft) * ends
    before = depth * bells(seed + 5, count) * 0.5 - bow * at**2
    bare, best, light = np.ones((SIDE, SIDE)), np.zeros((SIDE, SIDE)), np.zeros((SIDE, SIDE))
    shades = lights * units(seed + 6, count) ** 2
    for hair in np.flatnonzero(paint > 0.01):
        share = np.exp(-((y - at[hair]) / width[hair]) ** 2 - ((x - before[hair]) / (0.03 + 1.2 * width[hair])) ** 2)
        bare *= 1 - share * paint[hair]
        light = np.where(share > best, shades[hair], light)
        best = np.maximum(best, share)
    across = film * _tufts(seed + 7, 5)[:, None] * smoothstep(0, 2 * taper, 0.93 - np.abs(y))
    bare *= 1 - across * np.exp(-((x + bow * y**2) / (0.05 + depth)) ** 2)
    alpha = np.clip((1 - bare) * 1.12 - 0.05, 0, 1)
    return stamped(alpha * (1 - smoothstep(0.94, 1.0, np.maximum(np.abs(x), np.abs(y)))), FINE, light)


def filbert(seed, load=0.95, lights=0.0):
    """Oil: a full brush with a rounded end."""
    return _row(seed, 150, 0.016, load, 0.2, film=0.6, bow=0.35, taper=0.22, lights=lights)


def flat(seed, load=0.95, lights=0.0):
    """Oil and acrylic: a full brush with a straight end and sharp sides."""
    return _row(seed, 170, 0.014, load, 0.17, film=0.65, taper=0.03, lights=lights)


def fan(seed, load=0.6):
    """Thin hairs spread wide, in tufts with bare places between."""
    return _row(seed, 90, 0.008, load, 0.08, bow=0.3, taper=0.15)


def dry(seed, load=0.4):
    """A brush with little paint left: as many of its hairs as load says. For a row of tips from much load to little."""
    return _row(seed, 140, 0.011, load, 0.12, taper=0.2)


def rake(seed, teeth=11):
    """Clumps of hairs as apart as the teeth of a comb, each of its own width, strength and gap."""
    x, y = places(SIDE)
    gaps = np.cumsum(np.exp(0.5 * bells(seed, teeth + 1)))
    at = -0.9 + 1.8 * (gaps[:-1] - gaps[0] * 0.5) / (gaps[-1] - gaps[0] * 0.5)
    width = 0.36 / teeth * np.exp(0.25 * bells(seed + 1, teeth))
    alpha = np.zeros((SIDE, SIDE))
    strengths, ahead = between(seed + 2, teeth, 0.6, 1), 0.07 * bells(seed + 3, teeth)
    for place, size, strength, before in zip(at, width, strengths, ahead):
        out = np.hypot((y - place) / size, (x - before) / np.maximum(size, 0.13))
        hairs = 0.7 + 0.3 * np.tanh(unit(_tufts(seed + 4, 1.5)))[:, None]
        alpha = np.maximum(alpha, (1 - smoothstep(0.6, 1.25, out)) * strength * hairs)
    return stamped(alpha)


def knife(seed):
    """A palette knife: an even film to a sharp edge, thicker at both ends, with a few scratches of dried paint."""
    x, y = places(SIDE)
    wear = _tufts(seed, 4)[:, None] * 0.5 + _tufts(seed + 1, 14)[:, None] * 0.5
    scratch = 1 - 0.85 * smoothstep(0.74, 0.84, _tufts(seed + 2, 1.6) * 0.7 + _tufts(seed + 3, 9) * 0.3)[:, None]
    film = (0.72 + 0.28 * wear) * scratch
    ends = smoothstep(0.8, 0.9, np.abs(y))
    film = film + (1 - film) * ends
    inside = np.minimum(0.94 - np.abs(y), 0.16 + 0.03 * wear - np.abs(x))
    return stamped(film * smoothstep(0.0, 0.05, inside))
