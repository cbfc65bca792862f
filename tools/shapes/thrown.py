# SPDX-License-Identifier: MIT
"""A hand that throws its strokes: one aimed movement a leg, each begun before the one before has ended.

Unlike the hand of hand.py it follows no line. It aims from wherever it is, misses a little, and where two movements
overlap the corner becomes round: the more haste, the rounder, the wider of the mark and the seldomer seen.
"""

import numpy as np

from .hand import arc_length, cut, report

_BEND = 0.7 * np.pi  # of a curve, about what one movement does


def _movements(legs):
    """The legs, curves cut where one movement does not reach; of each, is it straight, does it begin at a corner."""
    for leg in legs:
        if len(leg) == 2:
            yield leg[0] + np.linspace(0.0, 1.0, 24)[:, None] * (leg[1] - leg[0]), True, True
            continue
        way = np.diff(leg, axis=0)
        bend = np.abs(np.diff(np.unwrap(np.arctan2(way[:, 1], way[:, 0])))).sum()
        count = int(np.ceil(bend / _BEND))
        for i in range(count, 1, -1):
            first, leg = cut(leg, 1.0 / i)
            yield first, False, i == count
        yield leg, False, count < 2


def _aimed(piece, at, haste, bow, most, rng):
    """The piece, turned and stretched from `at` to near its goal; what is straight is bowed."""
    chord, way = piece[-1] - piece[0], piece[-1] - at
    length = max(np.hypot(*chord), 1e-9)
    stretch = np.clip(np.hypot(*way) / length, 0.7, 1.4) * np.exp(rng.normal(0.0, 0.025 + 0.035 * haste))
    turn = np.arctan2(way[1], way[0]) - np.arctan2(chord[1], chord[0])
    turn = np.clip((turn + np.pi) % (2 * np.pi) - np.pi, -0.5, 0.5) + rng.normal(0.0, 0.02 + 0.025 * haste)
    side = np.array([-chord[1], chord[0]]) * np.clip(bow + rng.normal(0.0, 0.015 + 0.02 * haste), -most, most)
    bowed = piece - piece[0] + np.sin(np.linspace(0.0, np.pi, len(piece)))[:, None] * side
    c, s = np.cos(turn) * stretch, np.sin(turn) * stretch
    return bowed @ np.array([[c, s], [-s, c]])


def draw(meant, hand, size, haste, rng):
    """Times in milliseconds and points, as hand.draw gives them."""
    pieces = list(_movements(meant.legs))
    flick = rng.random() < 0.25 * min(haste, 1.5)
    if flick:  # the hand is on its way to something else before the pen is up
        last = pieces[-1][0]
        way = last[-1] - last[-min(6, len(last))]
        turn = np.arctan2(way[1], way[0]) + rng.normal(0.0, 0.8)
        tip = rng.uniform(0.02, 0.13 if meant.closed else 0.06) * size * np.array([np.cos(turn), np.sin(turn)])
        pieces.append((last[-1] + np.linspace(0.0, 1.0, 8)[:, None] * tip, False, True))
    lengths = np.array([arc_length(piece)[-1] for piece, _, _ in pieces])
    spans = np.maximum(lengths / lengths.sum(), 0.02)**0.6
    overlap = rng.uniform(0.02, 0.12) + 0.17 * haste * rng.uniform(0.6, 1.3)
    starts, clock = [], 0.0
    for i, (span, (_, _, corner)) in enumerate(zip(spans, pieces)):
        early = np.clip(overlap + rng.normal(0.0, 0.04), 0.0, 0.45) if corner else rng.uniform(0.3, 0.5)
        clock -= early * min(span, spans[i - 1]) if i else 0.0
        starts.append(clock)
        clock += span
    now = np.linspace(0.0, clock, 900)
    line = np.tile(pieces[0][0][0], (len(now), 1))
    at = pieces[0][0][0]
    for (piece, straight, _), start, span in zip(pieces, starts, spans):
        moved = _aimed(piece, at, haste, hand.bow_bias if straight else 0.0, hand.bow_most, rng)
        at = at + moved[-1]
        u = np.clip((now - start) / span, 0.0, 1.0)**rng.uniform(0.8, 1.25)
        way = u**3 * (10.0 - 15.0 * u + 6.0 * u**2)
        s = arc_length(moved)
        line = line + np.column_stack([np.interp(way * s[-1], s, moved[:, k]) for k in (0, 1)])
    # The pen comes down a little late and goes up a little early.
    s = arc_length(line)
    keep = (s >= rng.uniform(0.0, 0.02) * haste * size) & (s <= s[-1] - rng.uniform(0.0, 0.03) * haste * size)
    line, now = line[keep], now[keep]
    duration = max(1000.0 * lengths.sum() / hand.speed, hand.least_ms)
    return report(line, (now - now[0]) * duration / (now[-1] - now[0]), hand, rng)
