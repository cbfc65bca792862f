# SPDX-License-Identifier: MIT
"""Pencils, coal, chalk, pastel and wax: sticks on paper. What they leave comes of the paper's tooth and of pressure.

A stroke's dabs lie ten deep, so each flows little: paint that is laid down at once would make a stencil of the paper.
"""

import brush_tips as tips
from brush_papers import paper
from brush_table import brush, on_paper

# A tip turned at random, of several: no dab is known again.
LOOSE = {"textureTingleEnabled": True, "radianTingle": 1}

brush("Pencil", "pencil dry", "A well sharpened HB pencil on drawing paper.",
      textureImages=[tips.graphite(seed) for seed in (3, 13, 23)], **LOOSE, radius=8, minRadius=0.6,
      radiusControl=(0.6, 0, 0), startRadius=0.5, strokeControlValue=8, endRadius=0.4, pointsDistance=0.14,
      flow=0.42, minFlow=0.3, flowControl=(1, 0, 0), renderColor="#2e2e33",
      **on_paper(paper("cartridge"), 0.35, 1.0, 0.15, scale=0.6, control=(0.5, 0, 0)))

brush("Pencil 2B", "pencil dry tilt", "A soft pencil; tilt it to shade with the side of its lead.",
      textureImages=[tips.graphite(seed) for seed in (5, 15, 25)], **LOOSE, radius=32, minRadius=0.16, maxRadius=0.28,
      radiusControl=(0.5, 1, 0), startRadius=0.12, strokeControlValue=10, endRadius=0.12, pointsDistance=0.11,
      flow=0.36, minFlow=0.22, flowControl=(1, 0.3, 0), renderColor="#26262a",
      **on_paper(paper("cartridge"), 0.35, 1.0, 0.12, scale=0.7, control=(0.5, 0.2, 0)))

brush("Mechanical Pencil", "pencil dry", "A thin lead that is always sharp, for lines of one width.",
      textureImages=[tips.graphite(seed) for seed in (7, 17)], **LOOSE, radius=4, minRadius=0.9,
      radiusControl=(0.5, 0, 0), startRadius=0, endRadius=0, pointsDistance=0.2, flow=0.5, minFlow=0.3,
      flowControl=(1, 0, 0), renderColor="#34343a",
      **on_paper(paper("cartridge"), 0.25, 0.8, 0.2, scale=0.6, control=(0.5, 0, 0)))

brush("Charcoal", "charcoal dry", "A stick of charcoal: dusty when light, black where it is pressed.",
      textureImages=[tips.coal(seed) for seed in (3, 13, 23, 33)], **LOOSE, radius=44, minRadius=0.5, maxRadius=0.8,
      radiusControl=(0.4, 0.9, 0), startRadius=0, endRadius=0.5, pointsDistance=0.07, flow=0.2, minFlow=0.3,
      flowControl=(1, 0.3, 0), flowTingle=0.3, renderColor="#1d1b1b",
      **on_paper(paper("sugar"), 0.4, 0.95, 0.06, control=(0.6, 0, 0)))

brush("Chalk", "chalk dry", "A hard stick of chalk whose face breaks up over the tooth.",
      textureImages=[tips.chalk(seed) for seed in (3, 13, 23)], **LOOSE, radius=36, minRadius=0.8,
      radiusControl=(0.4, 0, 0), startRadius=0, endRadius=0.8, pointsDistance=0.09, flow=0.25, minFlow=0.4,
      flowControl=(0.8, 0, 0), renderColor="#3a6aa0",
      **on_paper(paper("sugar"), 0.3, 1.0, 0.06, control=(0.6, 0, 0)))

brush("Soft Pastel", "pastel dry", "Soft pastel: powder that fills the tooth and blooms under pressure.",
      textureImages=[tips.soft_pastel(seed) for seed in (3, 13, 23)], **LOOSE, radius=48, minRadius=0.8,
      radiusControl=(0.4, 0, 0), startRadius=0, endRadius=0.8, pointsDistance=0.06, flow=0.2, minFlow=0.3,
      flowControl=(1, 0, 0), renderColor="#b8577a",
      **on_paper(paper("cartridge"), 0.35, 0.8, 0.05, control=(0.6, 0, 0)))

brush("Conte", "chalk dry", "A hard square crayon, broad across its edge and thin along it, on laid paper.",
      textureImages=[tips.conte(seed) for seed in (3, 13, 23)], textureTingleEnabled=True, radius=40, minRadius=0.9,
      radiusControl=(0.3, 0, 0), startRadius=0, endRadius=0.9, radian=0.6, radianTingle=0.03, pointsDistance=0.04,
      flow=0.14, minFlow=0.3, flowControl=(1, 0, 0), renderColor="#7a3a22",
      **on_paper(paper("laid"), 0.35, 0.9, 0.0, scale=0.6, control=(0.6, 0, 0)))

brush("Wax Crayon", "crayon dry", "A blunt greasy crayon that skips the paper's pits.",
      textureImages=[tips.wax(seed) for seed in (3, 13, 23)], **LOOSE, radius=24, minRadius=0.8,
      radiusControl=(0.4, 0, 0), startRadius=0, endRadius=0.8, pointsDistance=0.09, flow=0.22, minFlow=0.5,
      flowControl=(0.8, 0, 0), renderColor="#c8452e",
      **on_paper(paper("cartridge"), 0.25, 1.0, 0.1, scale=1.0, control=(0.5, 0, 0)))
