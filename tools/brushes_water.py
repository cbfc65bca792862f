# SPDX-License-Identifier: MIT
"""Watercolour, gouache and acrylic: paint thinned with water, from a transparent wash to a body that covers."""

import brush_hairs as hairs
import brush_tips as tips
from brush_papers import paper
from brush_table import MULTIPLY, brush, on_paper

# Pigment settles in the paper's pits a little, whatever the pressure.
GRANULATING = on_paper(paper("hot press"), 0, 0.3, 0.35)

# ---- Watercolour

brush("Round Watercolour", "watercolour wet",
      "A pointed round of sable: transparent colour that dries with a dark rim.",
      textureImages=[tips.puddle(seed, 0.04) for seed in (3, 13, 23)], textureTingleEnabled=True, radianTingle=1,
      radius=54, minRadius=0.12, radiusControl=(1, 0, 0), startRadius=0.1, strokeControlValue=40, endRadius=0.05,
      pointsDistance=0.05, flow=0.4, minFlow=0.5, flowControl=(0.5, 0, 0), opacity=0.8, blendType=MULTIPLY,
      colorTingle=0.5, brightnessTingle=0.06, wetEdge=0.55, wetEdgeWidth=5, renderColor="#2f6f9f",
      backRenderColor="#3f8fa8", **GRANULATING)

brush("Flat Watercolour", "watercolour wet", "A flat wash brush with straight ends and a dark rim along both sides.",
      textureImages=[tips.mop(seed) for seed in (3, 13, 23)], textureTingleEnabled=True, moveRadianEnable=True,
      radius=84, minRadius=0.9, radiusControl=(0.3, 0, 0), startRadius=0, endRadius=0, pointsDistance=0.02,
      flow=0.4, minFlow=0.5, flowControl=(0.5, 0, 0), opacity=0.75, blendType=MULTIPLY, colorTingle=0.3,
      brightnessTingle=0.02, wetEdge=0.55, wetEdgeWidth=7, renderColor="#a9512f", backRenderColor="#b86a35",
      **GRANULATING)

brush("Watery Wash", "watercolour wet", "Much water and little pigment, in pools that dry unevenly and leave a rim.",
      textureImages=[tips.puddle(seed, 0.09, 9) for seed in (4, 9, 16, 25)], textureTingleEnabled=True,
      radianTingle=1, radius=110, minRadius=0.55, radiusControl=(0.6, 0, 0), startRadius=0, endRadius=0.7,
      pointsDistance=0.12, distribution=0.04, disTwoAxes=True, flow=0.45, flowTingle=0.5, opacity=0.9,
      blendType=MULTIPLY, colorTingle=1, brightnessTingle=0.1, wetEdge=0.66, wetEdgeWidth=9, renderColor="#3d78b8",
      backRenderColor="#6fa6c8", **on_paper(paper("rough"), 0, 0.2, 0.4))

brush("Bleeding Wash", "watercolour wet", "Colour dropped into wet paper, which runs out in fingers as it likes.",
      textureImages=[tips.bleed(seed) for seed in (3, 13, 23, 33)], textureTingleEnabled=True, radianTingle=1,
      radius=120, minRadius=0.3, maxRadius=1, radiusControl=(0.6, 0, 0), startRadius=0, endRadius=0.6,
      radiusTingle=0.6, pointsDistance=0.14, distribution=0.2, disTwoAxes=True, distributionCount=2, flow=0.75,
      flowTingle=0.7, opacity=0.85, blendType=MULTIPLY, colorTingle=1, hueTingle=0.04, wetEdge=0.66,
      wetEdgeWidth=12, renderColor="#7d3f8c", backRenderColor="#c2476a")

# ---- Gouache

brush("Textured Gouache", "gouache wet", "Opaque matt paint, a little uneven in tone, that breaks up on rough paper.",
      textureImages=[tips.broken_film(seed) for seed in (3, 13, 23, 33)], textureTingleEnabled=True, radianTingle=1,
      radius=64, minRadius=0.6, radiusControl=(0.6, 0, 0), startRadius=0, endRadius=0.6, pointsDistance=0.07,
      flow=0.6, minFlow=0.5, flowControl=(0.8, 0, 0), brightnessTingle=0.13, saturationTingle=0.08,
      renderColor="#7a4b9a", **on_paper(paper("cold press"), 0.25, 0.9, 0.4, scale=0.6, control=(0.6, 0, 0)))

brush("Gouache Dry", "gouache dry",
      "The rest of the paint on a brush: broken strokes of single hairs over rough paper.",
      textureImages=[hairs.dry(7, load) for load in (0.8, 0.65, 0.5, 0.35)], textureControl=(1, 0, 0), radius=70,
      minRadius=0.75, radiusControl=(0.5, 0, 0), startRadius=0, endRadius=0.8, pointsDistance=0.02,
      moveRadianEnable=True, flow=0.35, minFlow=0.4, flowControl=(0.7, 0, 0), renderColor="#c79a2e",
      **on_paper(paper("rough"), 0.3, 1.0, 0.08, scale=0.5, control=(0.6, 0, 0)))

# ---- Acrylic

brush("Acrylic", "acrylic wet", "Plastic paint from a bristle brush: covers at once and keeps the hairs' furrows.",
      textureImages=hairs.flat(3, 0.9, lights=0.15), colorFul=True,
      radius=66, minRadius=0.85, radiusControl=(0.4, 0, 0), startRadius=0, endRadius=0.9, pointsDistance=0.02,
      moveRadianEnable=True, flow=0.5, minFlow=0.5, flowControl=(0.8, 0, 0), brightnessTingle=0.05,
      renderColor="#d9662b", **on_paper(paper("canvas"), 0.3, 0.9, 0.3, scale=0.6, control=(0.6, 0, 0)))
