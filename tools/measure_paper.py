#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Measures whether a paper repeats: prints the strongest autocorrelation beyond 24 px, and what a far look leaves.

    tools/measure_paper.py                   each of the papers, at four scales
    tools/measure_paper.py PATCH.ppm...      pictures, such as a patch that dabpaint filled with a brush

The correlation is normalised, 1 being a repeat without a difference, and looked for over all shifts of up to half the
side. "light" and "firm" are the paper as little and as much pressure shows it. "far" is the deviation of a light one
blurred by 12 px, which is what lets an eye find the repeat of a tile on a large surface.
"""

import sys
from pathlib import Path

import numpy as np

from brush_fields import blurred
from brush_papers import PAPERS

NEAR = 24       # pixels; closer than that a grain is like itself
FAR = 12        # pixels of blur
SCALES = (0.5, 1, 2, 3)


def strongest(patch):
    """The strongest correlation of a patch with itself, and its shift right and down."""
    height, width = patch.shape
    patch = patch - patch.mean()
    room = np.zeros((2 * height, 2 * width))
    room[:height, :width] = patch  # so that nothing meets itself around the edge
    found = np.fft.irfft2(np.abs(np.fft.rfft2(room)) ** 2, room.shape)
    right, down = np.meshgrid(np.fft.fftfreq(2 * width, 0.5 / width), np.fft.fftfreq(2 * height, 0.5 / height))
    found = found / ((height - abs(down)).clip(1) * (width - abs(right)).clip(1)) / patch.var()
    looked = (np.hypot(right, down) > NEAR) & (abs(right) <= width // 2) & (abs(down) <= height // 2)
    place = np.where(looked, found, -1).argmax()
    return found.flat[place], int(right.flat[place]), int(down.flat[place])


def scaled(field, scale):
    """A tile as a canvas shows it, with pixels in between read linearly."""
    side = field.shape[0]
    field = blurred(field, 0.35 / scale) if scale < 1 else field
    place = (np.arange(int(side * scale)) + 0.5) / scale - 0.5
    first = np.floor(place).astype(int)
    for _ in range(2):
        part = (place - first)[:, None]
        field = (field[first % side] * (1 - part) + field[(first + 1) % side] * part).T
    return field


def picture(path):
    """The brightness of a binary PPM."""
    kind, size, most, pixels = Path(path).read_bytes().split(b"\n", 3)
    if kind != b"P6" or most != b"255":
        raise ValueError(f"{path}: not a binary PPM")
    width, height = map(int, size.split())
    return np.frombuffer(pixels, np.uint8).reshape(height, width, 3).mean(axis=2) / 255


def line(name, patch):
    peak, right, down = strongest(patch)
    return f"{name:24} {peak:6.3f} at {right:4},{down:4}"


def main():
    try:
        for path in sys.argv[1:]:
            print(line(path, picture(path)))
    except (OSError, ValueError) as fault:
        sys.exit(str(fault))
    for name, make in PAPERS.items() if len(sys.argv) == 1 else ():
        heights = make()
        for scale in SCALES:
            tile = scaled(heights, scale)
            light, firm = np.clip(5 * tile - 3.5, 0, 1), np.clip(5 * tile - 0.75, 0, 1)
            print(line(f"{name} x{scale}", tile), line("  light", light), line("  firm", firm),
                  f"  far {blurred(light, FAR).std():.4f}")


if __name__ == "__main__":
    main()
