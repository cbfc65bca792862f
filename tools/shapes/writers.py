# SPDX-License-Identifier: MIT
"""Virtual writers: each has a device, a hand and habits that persist from stroke to stroke."""

import numpy as np

from .hand import Hand, generator

SPEEDS = ("slow", "medium", "fast")
PACE = {"slow": 0.62, "medium": 1.0, "fast": 1.75}
HURRY = {"slow": 0.35, "medium": 0.7, "fast": 1.0}
CARE = {"slow": 0.85, "medium": 1.0, "fast": 1.25}  # how sloppiness grows with haste


class Writer:
    """One person at one device. Everything follows from the seed and the number.

    `habit` is a fixed value of this writer, chosen when first asked for; `vary` is a habit that comes out a little
    differently each time. Habits are kept by the kind of shape and by name.
    """

    def __init__(self, seed, number):
        self.name = f"w{number:03d}"
        self.seed, self.number = seed, number
        self.kept = {}
        r = generator(seed, "writer", number)
        self.tidy = float(np.exp(r.normal(0.0, 0.3)).clip(0.5, 1.7))  # small is tidy
        device = r.choice(["palm", "mouse", "tablet", "touch"], p=[0.4, 0.25, 0.2, 0.15])
        self.device = str(device)
        usual, spread = (140.0, 0.25) if device == "palm" else (196.0, 0.5)
        self.size = float(np.clip(usual * np.exp(r.normal(0.0, spread)), 55, 480))
        self.pace = 450.0 * np.exp(r.normal(0.0, 0.3))
        self.dt = {"palm": r.uniform(8.5, 16), "mouse": r.uniform(8, 16), "tablet": r.uniform(5, 8),
                   "touch": r.uniform(8, 17)}[self.device]
        self.merge = {"palm": r.choice([1.0, 2.0, 3.0]), "mouse": r.choice([1.0, 2.0]), "tablet": 0.0,
                      "touch": 0.0}[self.device]
        self.whole = device in ("palm", "mouse") or r.random() < 0.4
        self.jitter = r.uniform(0.15, 0.4) if device in ("palm", "mouse") else r.uniform(0.02, 0.12)
        self.uneven = r.uniform(0.02, 0.1) if device in ("palm", "mouse") else 0.0
        self.tremor = r.uniform(0.1, 0.75) * (1.3 if device == "mouse" else 1.0)
        self.noise = r.uniform(0.0, 0.3)
        self.wobble = r.uniform(0.0025, 0.008)
        self.quiver = r.uniform(0.0, 0.004)
        self.shift = r.uniform(0.008, 0.022)
        self.bow = r.uniform(0.012, 0.042)
        self.bow_bias = r.normal(0.0, 0.014)
        self.sway = r.uniform(0.003, 0.014)
        self.rounding = float(np.exp(r.normal(np.log(0.05), 0.75)).clip(0.008, 0.24))
        self.overshoot = r.uniform(0.01, 0.035)
        self.overshoot_odds = r.choice([0.0, 0.15, 0.4])
        self.overlap = r.normal(0.0, 0.018)
        self.overlap_spread = r.uniform(0.006, 0.022)
        self.drift = r.uniform(0.006, 0.028)
        self.hook_odds = r.choice([0.0, 0.1, 0.35])
        self.hook_end_odds = r.choice([0.0, 0.05, 0.2])
        self.stops = r.uniform(0.35, 0.95)
        self.tilt = r.normal(0.0, 3.0)       # degrees
        self.slant = r.normal(0.0, 0.07)     # letters lean
        self.wide = float(np.exp(r.normal(0.0, 0.1)))
        self.repeat = r.uniform(0.5, 1.3)    # how much repetitions differ
        self.mirrored = r.random() < 0.12    # draws what has a direction the other way round

    def habit(self, kind, name, low, high):
        key = (kind, name)
        if key not in self.kept:
            self.kept[key] = generator(self.seed, "habit", self.number, kind, name).uniform(low, high)
        return self.kept[key]

    def chance(self, kind, name, odds):
        """Whether this writer does so, always."""
        return self.habit(kind, name, 0.0, 1.0) < odds

    def haste(self, span, speed):
        """How hurried this writer is at that speed: 0 not at all, 1 visibly."""
        return self.habit("", "haste", *span) * HURRY[speed]

    def hand(self, speed, size, rng, haste=0.0):
        care = self.tidy * CARE[speed] * (1.0 + 0.35 * haste)
        hand = self.unhurried(speed, size, care, rng)
        if haste:
            hand.rounding *= 1.0 + 0.8 * haste
            hand.overlap = float(np.clip(hand.overlap + rng.normal(0.0, 0.03 * haste), -0.12, 0.12))
            hand.drift += 0.012 * haste
            hand.stops *= 1.0 - 0.25 * min(haste, 1.5)
            hand.speed *= 1.0 + 0.4 * haste
            hand.hook_end = hand.hook_end or (rng.uniform(0.02, 0.06) if rng.random() < 0.15 * haste else 0.0)
        return hand

    def unhurried(self, speed, size, care, rng):
        return Hand(
            shift=self.shift * care, bow=self.bow * care, bow_bias=self.bow_bias, sway=self.sway * care,
            rounding=self.rounding * CARE[speed], rounding_spread=0.45,
            overshoot=self.overshoot, overshoot_odds=self.overshoot_odds,
            overlap=float(np.clip(rng.normal(self.overlap, self.overlap_spread * care), -0.075, 0.075)),
            drift=self.drift * care, wobble=self.wobble * care, quiver=self.quiver * care,
            wobble_turns=rng.uniform(1.2, 3.5),
            tremor=self.tremor * (size / 140.0)**0.4, tremor_hz=rng.uniform(8.0, 11.0), noise=self.noise,
            hook_start=rng.uniform(0.012, 0.045) if rng.random() < self.hook_odds else 0.0,
            hook_end=rng.uniform(0.012, 0.04) if rng.random() < self.hook_end_odds else 0.0,
            speed=self.pace * PACE[speed] * (size / 140.0)**0.6 * np.exp(rng.normal(0.0, 0.12)), least_ms=150.0,
            stops=self.stops * (1.0 if speed == "slow" else 0.9 if speed == "medium" else 0.8), slowest=0.15,
            dt=self.dt, jitter=self.jitter, uneven=self.uneven, whole=self.whole, merge=self.merge)


class Repetition:
    """One go of a writer at one kind of shape: what the makers of shapes ask for numbers."""

    def __init__(self, writer, kind, rng):
        self.writer, self.kind, self.rng = writer, kind, rng

    def vary(self, name, low, high, spread=0.1):
        """A habit between low and high, give or take a share of that range."""
        middle = self.writer.habit(self.kind, name, low, high)
        off = self.rng.normal(0.0, spread * self.writer.repeat * (high - low))
        return float(np.clip(middle + off, low, high))

    def one_of(self, name, *choices):
        at = self.writer.habit(self.kind, name, 0.0, 1.0)
        return choices[min(int(at * len(choices)), len(choices) - 1)]

    def chance(self, name, odds):
        return self.writer.chance(self.kind, name, odds)

    def shaken(self, points, by=0.03):
        """Places, each moved as this writer always does and a little more."""
        p = np.asarray(points, float)
        fixed = np.array([[self.writer.habit(self.kind, f"{i}{axis}", -1.0, 1.0) for axis in "xy"]
                          for i in range(len(p))])
        return p + fixed * by * 1.3 + self.rng.normal(0.0, by * 0.6 * self.writer.repeat, p.shape)
