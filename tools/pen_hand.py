# SPDX-License-Identifier: MIT
"""A hand that draws: turns shapes into pen samples. Used by make_samples.py."""

import math
import random


class Hand:
    """Turns shapes into pen samples: a tremor, an uneven pace, a pressure that rises and falls."""

    def __init__(self, seed):
        self.unit = random.Random(seed).random  # the one generator call that Python keeps repeatable

    def between(self, low, high):
        return low + (high - low) * self.unit()

    def around(self, middle, spread):
        return middle + spread * (self.unit() + self.unit() - 1.0)

    def wander(self, scale):
        """A smooth random function of one variable, about -1..1, that turns over `scale` units."""
        parts = [(2.0 * math.pi / (scale * self.between(0.6, 2.2)), self.between(0.0, 6.283), weight)
                 for weight in (0.5, 0.3, 0.2)]
        return lambda at: sum(weight * math.sin(turn * at + phase) for turn, phase, weight in parts)

    def trace(self, points, pace=10.0, tremor=0.4, pressure=(0.15, 0.8, 0.35), rise=0.18, fall=0.3):
        """Samples [x, y, pressure] along a smooth curve through points.

        pressure   at the start, at its height and at the end; rise and fall are the shares of the length
                   over which it changes
        pace       mean distance between samples; the hand is slower at both ends
        """
        line = curve_through(points)
        lengths = [0.0]
        for first, second in zip(line, line[1:]):
            lengths.append(lengths[-1] + math.dist(first, second))
        total = max(lengths[-1], 1e-6)
        sway, drift, press = self.wander(14.0), self.wander(60.0), self.wander(max(total / 5.0, 20.0))
        low, high, last = pressure
        samples = []
        at, index = 0.0, 0
        while True:
            at = min(at, total)
            while index < len(line) - 2 and lengths[index + 1] < at:
                index += 1
            span = lengths[index + 1] - lengths[index]
            part = (at - lengths[index]) / span if span > 0.0 else 0.0
            (ax, ay), (bx, by) = line[index], line[index + 1]
            dx, dy = (bx - ax) / (span or 1.0), (by - ay) / (span or 1.0)
            off = tremor * (0.6 * sway(at) + 1.4 * drift(at))
            share = at / total
            up, down = ease(share / rise), ease((1.0 - share) / fall)
            force = low + (high - low) * up if up < 1.0 else last + (high - last) * down
            force = min(max(force * (1.0 + 0.10 * press(at)), 0.02), 1.0)
            samples.append([round(ax + (bx - ax) * part - dy * off, 1),
                            round(ay + (by - ay) * part + dx * off, 1), round(force, 3)])
            if at >= total:
                return samples
            slow = 0.45 + 0.55 * min(ease(share / 0.2), ease((1.0 - share) / 0.15))
            step = max(pace * slow * self.between(0.65, 1.35), 1.3)
            at = total if total - at - step < 1.3 else at + step


    def dot(self, x, y, size):
        """A small round scribble: a brush needs a way to go before it leaves its first dabs."""
        turn = self.between(0.0, 6.283)
        return [[round(x + size * math.cos(turn + step), 1), round(y + size * math.sin(turn + step), 1), 0.9]
                for step in range(8)]


def ease(value):
    value = min(max(value, 0.0), 1.0)
    return value * value * (3.0 - 2.0 * value)


def curve_through(points, steps=14):
    """A Catmull-Rom curve as a polyline."""
    if len(points) == 2:
        return [tuple(point) for point in points]
    ends = [points[0], *points, points[-1]]
    line = [tuple(points[0])]
    for p0, p1, p2, p3 in zip(ends, ends[1:], ends[2:], ends[3:]):
        for step in range(1, steps + 1):
            t = step / steps
            line.append(tuple(0.5 * (2.0 * b + (c - a) * t + (2.0 * a - 5.0 * b + 4.0 * c - d) * t * t +
                                     (3.0 * b - a - 3.0 * c + d) * t**3)
                              for a, b, c, d in zip(p0, p1, p2, p3)))
    return line


def mix(first, second, share):
    """The colour `share` of the way between two "#rrggbb"."""
    pairs = zip(bytes.fromhex(first[1:]), bytes.fromhex(second[1:]))
    return "#" + "".join(f"{round(a + (b - a) * min(max(share, 0.0), 1.0)):02x}" for a, b in pairs)
