#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes dabpainter.svg: a stroke of dabs across a canvas. The PNG pictures are made of it:
    packaging/icons/make_icon.py && for s in 16 32 48 64 128 256; do rsvg-convert -w $s dabpainter.svg -o $s.png; done
"""
import math
import pathlib

HEAD = """<svg xmlns="http://www.w3.org/2000/svg" width="256" height="256" viewBox="0 0 256 256">
<title>Dabpainter</title>
<defs><linearGradient id="paper" x2="0" y2="1"><stop stop-color="#fffdf7"/><stop offset="1" stop-color="#efe6d2"/>
</linearGradient></defs>
<rect x="18" y="22" width="220" height="220" rx="34" fill="#2b2a33" opacity=".22"/>
<rect x="16" y="14" width="224" height="224" rx="34" fill="url(#paper)"/>
<rect x="17.5" y="15.5" width="221" height="221" rx="32.5" fill="none" stroke="#2b2a33" stroke-opacity=".28" stroke-width="3"/>
"""
COLOURS = [(0x1F, 0x4E, 0x8C), (0x1F, 0x9A, 0xA8), (0xF2, 0xB1, 0x34), (0xE4, 0x57, 0x2E)]


def colour(t):
    """The stroke's colour, 0 at its start to 1 at its end."""
    i = min(int(t * (len(COLOURS) - 1)), len(COLOURS) - 2)
    part = t * (len(COLOURS) - 1) - i
    return "#" + "".join("%02x" % round(a + (b - a) * part) for a, b in zip(COLOURS[i], COLOURS[i + 1]))


def dabs(count=34):
    for i in range(count):
        t = i / (count - 1)
        x = 52 + 152 * t
        y = 128 - 58 * math.sin(2 * math.pi * t) + 8 * (t - 0.5)
        radius = 7 + 27 * math.sin(math.pi * (0.08 + 0.80 * t)) ** 1.5
        yield x, y, radius, colour(t)


def main():
    shapes = "".join(f'<circle cx="{x:.1f}" cy="{y:.1f}" r="{r:.1f}" fill="{c}"/>\n' for x, y, r, c in dabs())
    pathlib.Path(__file__).with_name("dabpainter.svg").write_text(HEAD + shapes + "</svg>\n", encoding="utf-8")


main()
