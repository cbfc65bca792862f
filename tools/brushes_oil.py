# SPDX-License-Identifier: MIT
"""Oil, and what moves or mixes paint that is there: fingers, blenders, knives."""

import brush_hairs as hairs
import brush_tips as tips
from brush_papers import paper
from brush_table import DISC, EVEN, SMUDGE, brush, on_paper

# Paint that takes up the colours below it and carries them along.
MIXING = {"brushType": SMUDGE, "smudgeControl": False, "startRadius": 0}

brush("Oil Impasto", "oil wet", "Thick paint from a hog's hair brush, which mixes with what is wet below it.",
      **MIXING, textureImages=hairs.flat(12, 0.97), moveRadianEnable=True, radius=70, minRadius=0.8,
      radiusControl=(0.5, 0, 0), endRadius=0.8, pointsDistance=0.02, flow=0.9, loadQuantity=1, mixQuantity=0.2,
      moistQuantity=0.6, bristles=0.85, renderColor="#b03a2c")

brush("Oil Filbert", "oil wet", "A rounded brush for soft-ended strokes that pick up their neighbours' colour.",
      **MIXING, textureImages=hairs.filbert(8), moveRadianEnable=True, radius=60, minRadius=0.7,
      radiusControl=(0.7, 0, 0), endRadius=0.6, pointsDistance=0.02, flow=0.9, minFlow=0.5, flowControl=(0.6, 0, 0),
      loadQuantity=1, mixQuantity=0.3, moistQuantity=0.5, bristles=0.7, renderColor="#2d5a4a")

brush("Oil Flat", "oil wet", "A flat brush with sharp sides for planes of colour, dragging streaks of what it meets.",
      **MIXING, textureImages=hairs.flat(5), moveRadianEnable=True, radius=80, minRadius=0.9,
      radiusControl=(0.3, 0, 0), endRadius=0, pointsDistance=0.02, flow=0.85, minFlow=0.4, flowControl=(0.6, 0, 0),
      loadQuantity=1, mixQuantity=0.35, moistQuantity=0.7, bristles=0.8, renderColor="#c08a2a")

brush("Palette Knife", "oil wet", "A steel blade that lays a film of paint and scrapes the colours below along.",
      **MIXING, textureImages=hairs.knife(4), moveRadianEnable=True, radius=90, minRadius=0.9,
      radiusControl=(0.3, 0, 0), endRadius=0, pointsDistance=0.015, flow=1, loadQuantity=0.9, mixQuantity=0.4,
      moistQuantity=0.8, bristles=1, renderColor="#5d7f9f")

# Hairs on the inside of a turn run together: where single hairs nearly reach the stroke's opacity, that makes no knots.

brush("Fan", "oil dry", "Thin hairs spread wide, for foliage, fur and hair.",
      textureImages=[hairs.fan(3, load) for load in (0.7, 0.62, 0.54, 0.46)], textureControl=(1, 0, 0), radius=90,
      minRadius=0.7, radiusControl=(0.5, 0, 0), startRadius=0, endRadius=0.8, pointsDistance=0.015,
      moveRadianEnable=True, flow=0.8, minFlow=0.4, flowControl=(0.8, 0, 0), opacity=0.72, renderColor="#3d5a1b")

brush("Dry Bristle", "oil dry", "A stiff brush with little paint, whose hairs each leave a scratch.",
      textureImages=[hairs.dry(9, load) for load in (0.75, 0.6, 0.45, 0.3, 0.18)], textureControl=(1, 0, 0),
      radius=72, minRadius=0.7, radiusControl=(0.5, 0, 0), startRadius=0, endRadius=0.8, pointsDistance=0.02,
      moveRadianEnable=True, flow=0.8, flowControl=(0.7, 0, 0), minFlow=0.35, opacity=0.72, renderColor="#56290f",
      **on_paper(paper("canvas"), 0.3, 1.2, 0.1, scale=0.6, control=(0.6, 0, 0)))

brush("Rake", "oil dry", "Clumps of hairs as apart as a comb's teeth, for fur, grass and grain of wood.",
      textureImages=hairs.rake(4), radius=70, minRadius=0.8, radiusControl=(0.4, 0, 0), startRadius=0, endRadius=0.8,
      pointsDistance=0.02, moveRadianEnable=True, flow=0.85, minFlow=0.4, flowControl=(0.8, 0, 0), opacity=0.74,
      renderColor="#5e3817")

# ---- Without paint of their own

brush("Smudge Finger", "smudge wet", "A fingertip that drags wet paint along.",
      brushType=SMUDGE, textureType=DISC, hardness=0.35, radius=60, minRadius=0.6, radiusControl=(0.7, 0, 0),
      startRadius=0, endRadius=0, pointsDistance=0.04, loadQuantity=0, mixQuantity=1, moistQuantity=0.95,
      smudgeControl=False)

brush("Soft Blender", "blender wet", "A soft dry brush that blurs the border between colours.",
      brushType=SMUDGE, textureImages=tips.mist(), radius=84, **EVEN, pointsDistance=0.04, loadQuantity=0,
      mixQuantity=1, moistQuantity=0.9, smudgeControl=False, flow=0.9, flowControl=(0.5, 0, 0), minFlow=0.3)

brush("True Blender", "blender wet", "Hairs without paint that draw one colour into the other in fine streaks.",
      brushType=SMUDGE, textureImages=hairs.filbert(21), moveRadianEnable=True, radius=70, minRadius=0.7,
      radiusControl=(0.5, 0, 0), startRadius=0, endRadius=0, pointsDistance=0.02, loadQuantity=0, mixQuantity=1,
      moistQuantity=0.98, bristles=0.5, smudgeControl=False, flow=1, flowControl=(0.5, 0, 0), minFlow=0.4)
