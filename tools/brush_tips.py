# SPDX-License-Identifier: MIT
"""Tips for brushes without hairs: sticks, pools, felts, sprays. PNG bytes, the same every time.

A tip is black, its shape in alpha; places are from -1 to 1, x to the right and y down. Where one has grain, several
seeds belong into a brush that picks among them and turns each at random, so that no dab is known again. Paper, not the
tip, gives a stick's stroke its grain: what a tip has of it is gone after the ten or so dabs that lie over one another.
"""

import numpy as np

from brush_fields import bells, between, png, ranked, smoothstep, soft, tooth, units

FINE = 5    # between two alphas, as papers have it
SMOOTH = 1  # for tips whose alpha is laid over itself hundreds of times


def places(side):
    """x and y of every pixel's middle."""
    place = (2 * np.arange(side) + 1) / side - 1.0
    return place[None, :] + np.zeros((side, 1)), place[:, None] + np.zeros((1, side))


def stamped(alpha, step=FINE, light=0.0):
    """The image of an alpha, in black or lighter paint."""
    alpha = np.clip(alpha, 0, 1)
    paint = np.broadcast_to(light, alpha.shape)
    return png(np.stack([paint, paint, paint, alpha]), step)


def rim(seed, x, y, uneven, turns=7):
    """How far out each pixel lies, 1 being the edge of a disc that is so uneven, in bumps of unlike size."""
    turn = np.arctan2(y, x)
    waves = np.arange(2, 2 + turns)
    sizes = bells(seed, turns) / waves**0.7
    phases = between(seed + 1, turns, 0, 2 * np.pi)
    bumps = sum(size * np.sin(n * turn + at) for n, size, at in zip(waves, sizes, phases))
    return np.hypot(x, y) / (0.94 - uneven + uneven * np.clip(bumps / 1.6, -1, 1))


def _stick(side, seed, edge, uneven, grain, low, high):
    """A worn stick: from its middle to its rim it touches less and less, and there in grains.

    edge        where touching begins to fade, in radii
    grain       longest and shortest wavelength of it, pixels
    low, high   of the tooth, ranked: what is below the first touches nowhere, above the second everywhere it can
    """
    x, y = places(side)
    out = rim(seed, x, y, uneven)
    height = ranked(tooth(side, seed + 2, *grain, 1.2))
    reach = 1 - smoothstep(edge, 1.0, out)  # of the stick into the tooth
    return stamped(smoothstep(low, high, height - 1 + reach) * smoothstep(0, 0.25, reach))


def graphite(seed):
    """A pencil's point, or when large its side: firm, with a crumbling edge. Spacing 0.08 to 0.15."""
    return _stick(128, seed, 0.25, 0.05, (16, 5), -0.35, 0.75)


def coal(seed):
    """Charcoal: crumbs and gaps up to a ragged rim. Spacing 0.06 to 0.12."""
    return _stick(192, seed, 0.45, 0.12, (40, 5), -0.15, 0.55)


def chalk(seed):
    """A stick of chalk: a flat face that breaks off at the rim. Spacing 0.08 to 0.15."""
    return _stick(160, seed, 0.65, 0.1, (28, 5), -0.2, 0.5)


def soft_pastel(seed):
    """Soft pastel: dust that thins out. Spacing 0.05 to 0.1."""
    return _stick(160, seed, 0.0, 0.08, (14, 5), -0.75, 0.75)


def wax(seed):
    """A crayon: blunt, smooth and greasy, with a clean rim. Spacing 0.06 to 0.12."""
    return _stick(128, seed, 0.7, 0.06, (22, 7), -0.6, 0.35)


def conte(seed, aspect=0.34):
    """A hard square stick on its long edge, which lies across (along y); for a fixed or a steered angle.

    aspect   its thickness over its length. Spacing 0.04 to 0.08 of the length
    """
    side = 160
    x, y = places(side)
    wear = 0.02 * soft(side, seed, 6)
    inside = np.minimum(0.93 - np.abs(y), aspect - np.abs(x)) + wear
    height = ranked(tooth(side, seed + 1, 24, 5, 1.2))
    return stamped(smoothstep(0.0, 0.05, inside) * (0.45 + 0.55 * smoothstep(0.1, 0.6, height)))


def puddle(seed, uneven=0.07, turns=7):
    """Wet paint up to where the paper is dry: full, with a clear bank that wanders. Spacing 0.03 to 0.2, turned.

    The dark rim of a wash is no matter of a dab but of the whole stroke, so the tip has none.
    """
    side = 192
    x, y = places(side)
    out = rim(seed, x, y, uneven, turns) + 0.012 * soft(side, seed + 3, 4)
    return stamped(1 - smoothstep(0.88, 0.98, out))


def mop(seed, aspect=0.22):
    """A flat brush full of water, whose long edge lies across (along y). Spacing 0.02 to 0.05 of its length."""
    side = 160
    x, y = places(side)
    inside = np.minimum(0.93 - np.abs(y), aspect - np.abs(x)) + 0.015 * soft(side, seed, 5)
    return stamped(smoothstep(0.0, 0.07, inside))


def bleed(seed):
    """Colour that runs into wet paper: fingers of unlike length around a soft body. Spacing 0.1 to 0.3, turned."""
    side = 192
    x, y = places(side)
    out = rim(seed, x, y, 0.12, 9) + 0.06 * soft(side, seed + 3, 11)
    return stamped((1 - smoothstep(0.6, 0.98, out)) * (1 - smoothstep(0.9, 1.0, np.hypot(x, y))), SMOOTH)


def felt(side=128):
    """A felt tip: full, with an edge of a few fibres' width. Spacing 0.05 to 0.12."""
    x, y = places(side)
    return stamped(1 - smoothstep(0.8, 0.97, np.hypot(x, y)), SMOOTH)


def square():
    """Opaque up to its edge, for whole pixels."""
    return stamped(np.ones((16, 16)))


def ink_brush(seed, uneven=0.05, soft_from=0.8):
    """A full brush of ink, whose edge is a little torn by the paper. Spacing 0.03 to 0.08, turned or steered.

    soft_from   where its edge begins to fade, in radii
    """
    side = 128
    x, y = places(side)
    return stamped(1 - smoothstep(soft_from, 0.95, np.hypot(x, y) + uneven * np.tanh(tooth(side, seed, 30, 6, 1.3))))


def broken_film(seed):
    """Thick colour dragged over paper: patches that hold, gaps that do not; for a second line. Spacing 0.2 to 0.4."""
    side = 192
    x, y = places(side)
    height = ranked(tooth(side, seed, 46, 5, 1.25))
    reach = 1 - smoothstep(0.45, 1.0, rim(seed + 1, x, y, 0.1))
    return stamped(smoothstep(0.42, 0.62, height * 0.75 + reach * 0.4 - 0.1) * smoothstep(0, 0.2, reach))


def sponge(seed):
    """A natural sponge: blots around pores of all sizes. Spacing 0.25 to 0.5, turned and scattered."""
    side = 192
    x, y = places(side)
    blots = ranked(tooth(side, seed, 70, 14, 1.2)) + 0.25 * ranked(tooth(side, seed + 1, 16, 5, 1.0))
    reach = 1 - smoothstep(0.5, 1.0, rim(seed + 2, x, y, 0.16, 9))
    count = 110
    pores = np.ones((side, side))
    sizes = 0.018 + 0.1 * units(seed + 3, count) ** 3
    for px, py, size in zip(between(seed + 4, count, -1, 1), between(seed + 5, count, -1, 1), sizes):
        pores *= smoothstep(0.75, 1.15, np.hypot(x - px, y - py) / size)
    return stamped(pores * smoothstep(0.52, 0.68, blots * 0.6 + reach * 0.45 - 0.1) * smoothstep(0, 0.2, reach))


# ---- Air

def mist():
    """Airbrush: a bell whose slope and bend begin and end at nothing, so that scribbles show no bands. Spacing 0.05."""
    x, y = places(128)
    inside = np.clip(1 - x * x - y * y, 0, 1)
    return stamped(inside**2.5, SMOOTH)


def _drops(side, seed, count, reach, sizes):
    """Round drops of paint at these distances from the middle, of these sizes."""
    x, y = places(side)
    wet = np.zeros((side, side))
    turns = between(seed, count, 0, 2 * np.pi)
    for turn, out, size in zip(turns, reach, sizes):
        middle = (x - out * np.cos(turn)) ** 2 + (y - out * np.sin(turn)) ** 2
        wet = np.maximum(wet, 1 - smoothstep(size * 0.7, size + 1.6 / side, np.sqrt(middle)))
    return wet


def droplets(seed):
    """A grainy airbrush: fine drops, dense in the middle. Spacing 0.1 to 0.2, turned, several seeds."""
    count = 900
    out = np.abs(bells(seed, count)) ** 1.15 * 0.36
    keep = out < 0.96
    sizes = 0.008 + 0.02 * units(seed + 1, count) ** 3
    return stamped(_drops(192, seed + 2, keep.sum(), out[keep], sizes[keep]))


def spatter(seed, count=44):
    """Drops flicked off a brush: a few large, many small, some flung. Spacing 0.4 and more, turned, several seeds."""
    side = 192
    x, y = places(side)
    out = np.sqrt(units(seed, count)) * 0.85
    sizes = 0.012 + 0.15 * units(seed + 1, count) ** 6
    wet = _drops(side, seed + 2, count, out, sizes)
    flung = np.flatnonzero((sizes > 0.025) & (units(seed + 3, count) < 0.3))
    for drop, turn in zip(flung, between(seed + 2, count, 0, 2 * np.pi)[flung]):
        along = x * np.cos(turn) + y * np.sin(turn) - out[drop]
        across = -x * np.sin(turn) + y * np.cos(turn)
        tail = np.clip(along / (4 * sizes[drop]), 0, 1)
        width = sizes[drop] * (1 - tail) ** 2 * 0.8
        inside = 1 - smoothstep(0.7 * width, width + 1.6 / side, np.abs(across))
        wet = np.maximum(wet, inside * (along > 0) * (tail < 1))
    return stamped(wet * (1 - smoothstep(0.95, 0.99, np.hypot(x, y))))
