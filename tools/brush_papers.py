# SPDX-License-Identifier: MIT
"""Papers for brushes: seamless height fields, white where paint gets on at once and black where it comes last.

Every height is as frequent, so that a paper lets through as large a share of a surface as asked for; none has a
feature that would be found again where it repeats. PNG bytes, the same every time.
"""

import functools

import numpy as np

from brush_fields import bells, between, evened, png, ranked, soft, tooth, unit

SIDE = 512
STEP = 5  # of grey between two heights: neighbours differ by more, and what PNG predicts stays small


def _heights(field, reach):
    """From 0 to 1; evened until the ranking, which bends the heights, leaves it so."""
    for _ in range(3):
        field = ranked(evened(field, reach)) - 0.5
    return ranked(field)


def rough():
    """Watercolour paper as it comes off the felt: knobs of all sizes up to 22 px with crevices between them."""
    return _heights(np.maximum(tooth(SIDE, 101, 38, 4.4, 1.35), tooth(SIDE, 102, 38, 4.4, 1.35)), 26)


def cold_press():
    """Watercolour paper pressed cold: worn tops with pits of up to 12 px."""
    return _heights(-np.maximum(tooth(SIDE, 111, 22, 4.8, 1.2), tooth(SIDE, 112, 22, 4.8, 1.2)), 22)


def hot_press():
    """Smooth paper, ironed: an even tooth with pits of up to 8 px, where washes settle."""
    return _heights(-np.maximum(tooth(SIDE, 121, 17, 4.8, 1.4), tooth(SIDE, 122, 17, 4.8, 1.4)), 18)


def _threads(place, seed, count, differ):
    """Of each place down a tile, which of so many threads lies there and where in it, from 0 to 1.

    differ   deviation of a thread's width, as a share of it
    """
    widths = 1 + differ * np.clip(bells(seed, count), -1.7, 1.7)
    edges = np.concatenate([[0], np.cumsum(widths)]) * SIDE / widths.sum()
    place = place % SIDE
    thread = np.clip(np.searchsorted(edges, place, side="right") - 1, 0, count - 1)
    return thread, (place - edges[thread]) / (edges[thread + 1] - edges[thread])


def laid():
    """Paper with the lines of its mould, 7 px apart, that waver a little and fade, and a tooth between."""
    down = np.mgrid[0:SIDE, 0:SIDE][0] + 0.9 * soft(SIDE, 131, 10, 8)
    _, inside = _threads(down, 132, 72, 0.14)
    firm = np.clip(1 + 0.6 * soft(SIDE, 133, 9, 5), 0, 2.2)
    return _heights(unit(-np.cos(2 * np.pi * inside) * firm) + 1.6 * tooth(SIDE, 134, 26, 4.6, 1.1), 26)


def canvas():
    """Linen, threads of 7 px over and under one another, of unlike widths and strengths."""
    count = 70  # even, so that over and under go on at the edge
    y, x = np.mgrid[0:SIDE, 0:SIDE].astype(float)
    column, right = _threads(x + 1.2 * soft(SIDE, 141, 7, 10), 142, count, 0.18)
    row, down = _threads(y + 1.2 * soft(SIDE, 143, 10, 7), 144, count, 0.18)
    over = (column + row) % 2 == 0  # the thread across lies on top
    along, across = np.where(over, right, down), np.where(over, down, right)
    strength = between(145, count * count, 0.3, 1.35).reshape(count, count)[row, column]
    bulge = np.sin(np.pi * along) ** 0.6 * np.sin(np.pi * across) ** 0.8 * strength
    return _heights(unit(bulge) + 0.75 * tooth(SIDE, 146, 20, 4.4, 1.0), 24)


def cartridge():
    """Drawing paper: a tooth of 3 to 6 px, as fine as the crumbs that a pencil or a stick of chalk leaves on it."""
    return _heights(tooth(SIDE, 151, 10, 2.4, 0.7), 16)


def sugar():
    """Pastel paper: crumbs of 2 px upon a mottling of up to 14 px."""
    return _heights(tooth(SIDE, 152, 16, 1.8, 0.75), 20)


PAPERS = {"rough": rough, "laid": laid, "canvas": canvas, "cold press": cold_press, "hot press": hot_press,
          "cartridge": cartridge, "sugar": sugar}
COARSE_STEP = 11  # where grains are so fine that a dab covers many


@functools.cache
def paper(name):
    """The PNG bytes of one of PAPERS."""
    return png(PAPERS[name](), COARSE_STEP if name in ("cartridge", "sugar") else STEP)
