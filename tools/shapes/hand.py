# SPDX-License-Identifier: MIT
"""A hand that draws a meant shape: the shape's legs in, pen samples out.

A shape is a list of legs, arrays of points of which each begins where the one before ends; two points are a straight
leg, more are a curve. Pixels, y down; times in milliseconds.
"""

import zlib
from dataclasses import dataclass

import numpy as np

# Speed along a minimum-jerk motion, by the part of the way done.
_TAU = np.linspace(0.0, 1.0, 401)
_WAY = _TAU**3 * (10.0 - 15.0 * _TAU + 6.0 * _TAU**2)
_SPEED = 30.0 * _TAU**2 * (1.0 - _TAU)**2
_WAY_GRID = np.linspace(0.0, 1.0, 201)
_SPEED_GRID = np.interp(_WAY_GRID, _WAY, _SPEED)


@dataclass
class Meant:
    """A shape to be drawn."""

    gesture: str
    label: str
    legs: list                 # arrays (n, 2)
    closed: bool = False
    folds: int = 0             # straight legs of a fold line
    accept: str = ""           # "" is the label alone
    ideal: bool = True         # the legs are the meant outline; false where there is none to compare with
    note: str = ""
    outline: np.ndarray = None  # the meant outline where it is not simply the legs


@dataclass
class Hand:
    """How a stroke is drawn. Lengths are shares of the larger side of the meant shape, unless said otherwise."""

    shift: float = 0.0         # corners: standard deviation of their displacement
    bow: float = 0.0           # legs: standard deviation of the height of the bow, share of the leg
    bow_bias: float = 0.0      # the same side always, as an arm that turns about the elbow gives
    bow_most: float = 0.3      # share of the leg
    sway: float = 0.0          # legs: an S instead of a bow
    rounding: float = 0.0      # corners: how far before the corner the turn begins, share of the shorter leg
    rounding_spread: float = 0.5
    rounding_most: float = 0.42
    overshoot: float = 0.0     # corners: mean distance past the corner
    overshoot_odds: float = 0.0
    overlap: float = 0.0       # closed shapes: share of the way round drawn twice; negative is a gap
    drift: float = 0.0         # closed shapes: how far off its place the end is, standard deviation
    wobble: float = 0.0        # slow wandering
    wobble_turns: float = 2.5  # how often it turns, about
    quiver: float = 0.0        # quicker wandering
    tremor: float = 0.0        # pixels
    tremor_hz: float = 9.5
    noise: float = 0.0         # pixels, independent from sample to sample
    hook_start: float = 0.0
    hook_end: float = 0.0
    speed: float = 400.0       # mean, pixels a second
    least_ms: float = 180.0
    stops: float = 1.0         # 0: passes corners without slowing; 1: minimum jerk from corner to corner
    slowest: float = 0.12      # at corners, of the mean speed
    bends: float = 0.33        # exponent of the slowing in bends
    dt: float = 10.0           # ms from sample to sample
    jitter: float = 0.1        # of dt, share
    uneven: float = 0.0        # odds that a sample comes late, by up to three times dt
    whole: bool = False        # whole pixels
    merge: float = 0.0         # pixels: samples nearer than this to the one before are not reported


def generator(*keys):
    """Random numbers that follow from these numbers and words alone."""
    return np.random.default_rng([key if isinstance(key, int) else zlib.crc32(key.encode()) for key in keys])


def arc_length(points):
    step = np.diff(points, axis=0)
    out = np.zeros(len(points))
    np.cumsum(np.sqrt(step[:, 0]**2 + step[:, 1]**2), out=out[1:])
    return out


def along(points, count):
    """The same line with `count` points evenly spaced."""
    s = arc_length(points)
    u = np.linspace(0.0, s[-1], count)
    return np.column_stack((np.interp(u, s, points[:, 0]), np.interp(u, s, points[:, 1])))


def cut(points, share):
    """Two lines: up to that share of the length, and from there."""
    s = arc_length(points)
    at = share * s[-1]
    k = int(np.clip(np.searchsorted(s, at), 1, len(s) - 1))
    there = np.array([[np.interp(at, s, points[:, 0]), np.interp(at, s, points[:, 1])]])
    return np.concatenate((points[:k], there)), np.concatenate((there, points[k:]))


def middle_start(legs, share):
    """Closed legs that begin on the first leg, that share along it."""
    first, rest = cut(legs[0], share)
    return [rest] + legs[1:] + [first]


def _moved_corners(legs, closed, by, rng):
    """The legs with every end moved a little; what meets still meets."""
    moves = rng.normal(0.0, by, (len(legs) + 1, 2))
    if closed:
        moves[-1] = moves[0]
    out = []
    for i, leg in enumerate(legs):
        u = np.linspace(0.0, 1.0, len(leg))[:, None]
        out.append(leg + moves[i] * (1.0 - u) + moves[i + 1] * u)
    return out


def _bent(leg, step, hand, rng):
    """A leg as the hand draws it, points about `step` apart."""
    s = arc_length(leg)
    count = max(int(s[-1] / step), 6) + 1
    if len(leg) > 2:
        return along(leg, count)
    u = np.linspace(0.0, 1.0, count)
    lean = np.exp(rng.normal(0.0, 0.25))
    height = hand.bow_bias + rng.normal(0.0, hand.bow) if hand.bow or hand.bow_bias else 0.0
    height = min(max(height, -hand.bow_most), hand.bow_most)
    off = height * np.sin(np.pi * u**lean)
    if hand.sway:
        off += rng.normal(0.0, hand.sway) * np.sin(2.0 * np.pi * u)
    way = leg[1] - leg[0]
    side = np.array([-way[1], way[0]])
    return leg[0] + u[:, None] * way + off[:, None] * side


def _overshot(lines, hand, size, rng):
    """At some corners the hand goes too far and bends back within the next leg."""
    for first, second in zip(lines, lines[1:]):
        if rng.random() >= hand.overshoot_odds:
            continue
        lengths = [arc_length(line)[-1] for line in (first, second)]
        far = min(rng.exponential(hand.overshoot * size), 0.18 * min(lengths))
        way = first[-1] - first[-min(4, len(first))]
        way = way / max(np.hypot(*way), 1e-9) * far
        back = arc_length(second)
        second += way * np.exp(-back / max(2.5 * far, 1e-9))[:, None]
        ahead = arc_length(first)
        first += way * np.exp((ahead - ahead[-1]) / max(2.5 * far, 1e-9))[:, None]
    return lines


def _rounded(lines, hand, size, rng):
    """Cuts corners along a curve. Lines still meet, in the middle of the curve."""
    for i in range(len(lines) - 1):
        first, second = lines[i], lines[i + 1]
        reach = hand.rounding * np.exp(rng.normal(0.0, hand.rounding_spread))
        whole = [arc_length(line)[-1] for line in (first, second)]
        # A long radius is a slip, not a habit: it does not grow with the leg for ever.
        far = min(reach * min(whole), hand.rounding_most * min(whole), 0.25 * size)
        m = int(far / max(whole[0] / (len(first) - 1), 1e-9))
        n = int(far / max(whole[1] / (len(second) - 1), 1e-9))
        if m < 1 or n < 1:
            continue
        a, b, c = first[-m - 1], first[-1], second[n]
        t = np.linspace(0.0, 1.0, 2 * max(m, n) + 3)[:, None]
        turn = a * (1.0 - t)**2 + 2.0 * b * t * (1.0 - t) + c * t**2
        half = len(turn) // 2
        lines[i] = np.concatenate((first[:-m - 1], turn[:half + 1]))
        lines[i + 1] = np.concatenate((turn[half:], second[n + 1:]))
    return lines


def _hook(points, length, rng):
    """A small tail before the first point, as where a pen touches down before the hand moves off."""
    way = points[min(6, len(points) - 1)] - points[0]
    ahead = np.arctan2(way[1], way[0])
    turn = ahead + rng.choice([-1.0, 1.0]) * rng.uniform(0.8, 2.6)
    tip = points[0] + length * np.array([np.cos(turn), np.sin(turn)])
    bend = points[0] + 0.4 * length * np.array([np.cos(turn), np.sin(turn)]) - 0.15 * length * way / max(
        np.hypot(*way), 1e-9)
    t = np.linspace(0.0, 1.0, 7)[:-1, None]
    return tip * (1.0 - t)**2 + 2.0 * bend * t * (1.0 - t) + points[0] * t**2


def trace(legs, closed, hand, size, rng):
    """The line that the hand draws, and where on it the corners are (indices)."""
    total = sum(arc_length(leg)[-1] for leg in legs)
    step = max(total / 700.0, min(0.8, total / 60.0))
    if hand.shift:
        legs = _moved_corners(legs, closed, hand.shift * size, rng)
    lines = [_bent(leg, step, hand, rng) for leg in legs]
    again = None
    if closed and hand.overlap > 0.0:
        # The second pass is drawn anew: another bow, another corner.
        left = hand.overlap * total
        again = []
        for leg in legs:
            line = _bent(leg, step, hand, rng)
            length = arc_length(line)[-1]
            if length >= left:
                again.append(along(cut(line, max(left / length, 0.01))[0], max(int(left / step), 3)))
                break
            again.append(line)
            left -= length
        if len(legs) == 1:  # a smooth curve goes on
            lines = [np.concatenate((lines[0], again[0][1:]))]
        else:
            lines += again
    elif closed and hand.overlap < 0.0:
        left = -hand.overlap * total
        while left > 0.0:
            length = arc_length(lines[-1])[-1]
            if left < length * 0.97:
                lines[-1] = cut(lines[-1], 1.0 - left / length)[0]
                break
            if len(lines) == 1:
                break
            left -= length
            lines.pop()
    if hand.overshoot and len(lines) > 1:
        lines = _overshot(lines, hand, size, rng)
    if hand.rounding and len(lines) > 1:
        lines = _rounded(lines, hand, size, rng)
    ends = np.cumsum([len(line) - 1 for line in lines])
    line = np.concatenate([lines[0]] + [part[1:] for part in lines[1:]])
    s = arc_length(line)
    u = s / max(s[-1], 1e-9)
    if closed and hand.drift:
        line = line + (np.clip((u - 0.4) / 0.6, 0.0, 1.0)**2)[:, None] * rng.normal(0.0, hand.drift * size, 2)
    if hand.wobble:
        waves = hand.wobble_turns * np.exp(rng.normal(0.0, 0.3, (3, 2))) * np.array([[0.5], [1.0], [1.9]])
        high = rng.normal(0.0, 1.0, (3, 2)) * hand.wobble * size * np.array([[0.75], [0.55], [0.35]])
        phase = rng.uniform(0.0, 2.0 * np.pi, (3, 2))
        for k in range(3):
            line = line + high[k] * np.sin(2.0 * np.pi * u[:, None] * waves[k] + phase[k])
    if hand.quiver:
        long = s[-1] / max(size, 1e-9)  # as many to the same length, whatever the shape
        waves = rng.uniform(3.0, 8.0, (2, 2)) * long
        high = rng.normal(0.0, 0.7 * hand.quiver * size, (2, 2))
        phase = rng.uniform(0.0, 2.0 * np.pi, (2, 2))
        for k in range(2):
            line = line + high[k] * np.sin(2.0 * np.pi * u[:, None] * waves[k] + phase[k])
    corners = list(ends[:-1])
    if hand.hook_start:
        tail = _hook(line, hand.hook_start * size, rng)
        line = np.concatenate((tail, line))
        corners = [len(tail)] + [c + len(tail) for c in corners]
    if hand.hook_end:
        tail = _hook(line[::-1], hand.hook_end * size, rng)[::-1]
        corners.append(len(line) - 1)
        line = np.concatenate((line, tail))
    return line, corners


def _times(line, corners, hand):
    s = arc_length(line)
    total = max(s[-1], 1e-9)
    pace = np.ones(len(line))
    if hand.stops:
        ends = [0] + corners + [len(line) - 1]
        for a, b in zip(ends, ends[1:]):
            if b <= a:
                continue
            u = (s[a:b + 1] - s[a]) / max(s[b] - s[a], 1e-9)
            # Short legs are not drawn as fast as long ones.
            reach = min(1.0, (s[b] - s[a]) / (0.3 * total))**0.35
            part = 1.0 - hand.stops + hand.stops * np.interp(u, _WAY_GRID, _SPEED_GRID)
            pace[a:b + 1] = part * reach
    if hand.bends and len(line) > 8:
        k = max(len(line) // 80, 2)
        way = line[k:] - line[:-k]
        heading = np.unwrap(np.arctan2(way[:, 1], way[:, 0]))
        bend = np.abs(heading[k:] - heading[:-k]) / np.maximum(s[2 * k:] - s[:-2 * k], 1e-9) * 2.0
        bend = np.convolve(bend, np.full(k, 1.0 / k), "same") * total / 8.0
        slow = np.full(len(line), 1.0)
        slow[k:-k] = (1.0 / (0.25 + bend))**hand.bends
        slow[:k], slow[-k:] = slow[k], slow[-k - 1]
        pace = pace * np.clip(slow, 0.25, 1.6)
    pace = np.maximum(pace, hand.slowest)
    wait = np.diff(s) * 0.5 * (1.0 / pace[1:] + 1.0 / pace[:-1])
    t = np.zeros(len(line))
    np.cumsum(wait, out=t[1:])
    duration = max(1000.0 * total / hand.speed, hand.least_ms)
    return t * (duration / max(t[-1], 1e-9))


def report(line, t, hand, rng):
    """What the device reports of a line passed at the times `t`: times in whole milliseconds, points."""
    count = int(t[-1] / hand.dt) + 2
    gaps = hand.dt * np.maximum(1.0 + rng.normal(0.0, hand.jitter, count), 0.15)
    if hand.uneven:
        late = rng.random(count) < hand.uneven
        gaps[late] *= rng.uniform(1.2, 3.0, int(late.sum()))
    at = np.concatenate(([0.0], np.cumsum(gaps)))
    at = np.append(at[at < t[-1] - 0.3 * hand.dt], t[-1])
    p = np.column_stack((np.interp(at, t, line[:, 0]), np.interp(at, t, line[:, 1])))
    if hand.tremor:
        phase = rng.uniform(0.0, 2.0 * np.pi, 2)
        drift = np.cumsum(rng.normal(0.0, 0.25, (len(at), 2)), axis=0)
        p += hand.tremor * rng.uniform(0.6, 1.0, 2) * np.sin(
            (2e-3 * np.pi * hand.tremor_hz) * at[:, None] + phase + drift)
    if hand.noise:
        p += rng.normal(0.0, hand.noise, p.shape)
    if hand.whole:
        p = np.rint(p)
    keep = np.ones(len(p), bool)
    if hand.merge > 1.0:
        last = p[0]
        for i in range(1, len(p) - 1):
            if abs(p[i, 0] - last[0]) + abs(p[i, 1] - last[1]) < hand.merge:
                keep[i] = False
            else:
                last = p[i]
    else:
        keep[1:] = (p[1:] != p[:-1]).any(axis=1)
    times = np.maximum.accumulate(np.rint(at)).astype(int)
    return times[keep], p[keep]


def draw(meant, hand, size, rng):
    line, corners = trace(meant.legs, meant.closed, hand, size, rng)
    return report(line, _times(line, corners, hand), hand, rng)
