# SPDX-License-Identifier: MIT
"""Pens, markers and the pixel brush: ink without grain, whose edge tells them apart. A dab's edge stays two pixels wide
or so, however thin the line, so that no line has stairs.
"""

import brush_tips as tips
from brush_papers import paper
from brush_table import DISC, EVEN, MULTIPLY, RECTANGLE, brush, on_paper

# ---- Pens

brush("Ink Pen", "ink wet", "A flexible steel nib that swells under pressure and runs out in points.",
      textureType=DISC, hardness=0.75, radius=10, minRadius=0.12, radiusControl=(1, 0, 0), startRadius=0.05,
      strokeControlValue=40, endRadius=0.02, pointsDistance=0.12, renderColor="#141a2e")

brush("Technical Pen", "ink wet", "A drawing pen of one width, whatever the hand does.",
      textureType=DISC, hardness=0.7, radius=6, **EVEN, pointsDistance=0.1, renderColor="#15161c")

brush("Ballpoint", "ink wet", "A ball that skips a little and lays down more ink where it is pressed.",
      textureType=DISC, hardness=0.5, radius=4.5, minRadius=0.75, radiusControl=(0.7, 0, 0), startRadius=0,
      endRadius=0, pointsDistance=0.15, flow=0.8, minFlow=0.5, flowControl=(1, 0, 0), flowTingle=0.3,
      renderColor="#20348f", **on_paper(paper("cartridge"), 0.2, 0.6, 0.35, control=(0.6, 0, 0)))

brush("Speed Pen", "ink wet", "A pen for the mouse: slow lines are wide and quick ones thin.",
      textureType=DISC, hardness=0.7, radius=20, minRadius=0.12, radiusControl=(0, 0, 1), sensitivity=15,
      speedSencitive=0.5, startRadius=0.2, strokeControlValue=30, endRadius=0.05, pointsDistance=0.1,
      renderColor="#1c3d5a")

brush("Brush Pen", "ink wet", "A full pointed brush of ink, from a hair to a broad stroke.",
      textureImages=tips.ink_brush(5, 0.04, 0.5), radius=44, minRadius=0.03, radiusControl=(1, 0, 0.25), sensitivity=70,
      startRadius=0.03, strokeControlValue=70, endRadius=0.01, pointsDistance=0.04, moveRadianEnable=True,
      renderColor="#101014")

brush("Calligraphy Nib", "ink wet", "A broad nib held at 45 degrees: thick and thin come of the direction.",
      textureType=RECTANGLE, textureControlValue=5, hardness=0.6, radius=38, minRadius=0.85,
      radiusControl=(0.4, 0, 0), startRadius=0, endRadius=0, radian=0.785, pointsDistance=0.03,
      renderColor="#2a1420")

# ---- Markers

brush("Felt Tip", "marker wet", "A fibre pen whose edge frays a little on the paper.",
      textureImages=[tips.ink_brush(seed, 0.09) for seed in (11, 21, 31)], textureTingleEnabled=True, radianTingle=1,
      radius=14, minRadius=0.7, radiusControl=(0.6, 0, 0), startRadius=0, endRadius=0.7, pointsDistance=0.09,
      flow=0.6, minFlow=0.6, flowControl=(0.6, 0, 0), renderColor="#0f6b5c",
      **on_paper(paper("cartridge"), 0.15, 0.5, 0.35))

brush("Round Marker", "marker wet", "A transparent marker that darkens where strokes cross.",
      textureType=DISC, hardness=0.75, radius=28, **EVEN, pointsDistance=0.08, opacity=0.75, blendType=MULTIPLY,
      renderColor="#f2b33d")

brush("Chisel Marker", "marker wet", "A slanted marker: broad one way, thin the other, transparent.",
      textureType=RECTANGLE, textureControlValue=2.6, hardness=0.75, radius=46, **EVEN, radian=0.96,
      pointsDistance=0.025, opacity=0.7, blendType=MULTIPLY, renderColor="#58b7a6")

# ---- Pixels

brush("Hard Pixel", "pixel dry", "Whole pixels without a soft edge, for pixel art and masks.",
      textureImages=tips.square(), pixelAligned=True, lineProcessType=0, radius=3, **EVEN, pointsDistance=0.2,
      renderColor="#222034")
