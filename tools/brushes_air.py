# SPDX-License-Identifier: MIT
"""What is sprayed, dabbed, stamped, rubbed out or filled."""

import brush_stamps as stamps
import brush_tips as tips
from brush_table import DISC, ERASE, EVEN, LIVE_FILL, brush

# ---- Spray

brush("Airbrush", "airbrush dry", "A soft jet of colour that builds up with every pass.",
      textureImages=tips.mist(), radius=80, **EVEN, pointsDistance=0.05, flow=0.07, minFlow=0.02,
      flowControl=(1, 0, 0), renderColor="#304a8c")

brush("Soft Airbrush", "airbrush dry", "A wide and faint mist for shadows and glows.",
      textureImages=tips.mist(), radius=200, **EVEN, pointsDistance=0.05, flow=0.035, minFlow=0.05,
      flowControl=(1, 0, 0), renderColor="#8c3a5e")

brush("Grainy Airbrush", "airbrush dry", "A jet with too much air, in drops that stay apart.",
      textureImages=[tips.droplets(seed) for seed in (3, 13, 23, 33)], textureTingleEnabled=True, radianTingle=1,
      radius=120, **EVEN, pointsDistance=0.12, distribution=0.06, disTwoAxes=True, flow=0.3, minFlow=0.1,
      flowControl=(1, 0, 0), flowTingle=0.5, renderColor="#2c6e6a")

brush("Spray Can", "spray wet", "Paint from a can: coarse drops all over the jet, more of them under pressure.",
      textureType=DISC, hardness=0.7, radius=5, minRadius=0.3, maxRadius=1, startRadius=0, endRadius=0,
      radiusTingle=0.8, pointsDistance=1, distribution=9, disTwoAxes=True, distributionCount=14,
      distributionCountControl=(0.8, 0, 0), distributionCountTingle=0.3, flow=0.75, flowTingle=0.5,
      renderColor="#c22a56")

brush("Ink Spatter", "spray ink wet", "Ink flicked off a brush, in blots that burst and drops that fly.",
      textureImages=[tips.spatter(seed) for seed in (3, 13, 23, 33, 43)] + [stamps.splash(128, 9, 0)],
      textureTingleEnabled=True, radius=110, minRadius=0.15, maxRadius=1, radiusControl=(0.7, 0, 0), startRadius=0,
      endRadius=0.4, radiusTingle=0.8, radianTingle=1, pointsDistance=0.5, distribution=0.5, disTwoAxes=True,
      distributionCount=2, distributionCountTingle=0.6, renderColor="#17171c")

# ---- Stamps

brush("Sponge", "stamp wet", "A natural sponge dabbed about, with pores of all sizes.",
      textureImages=[tips.sponge(seed) for seed in (3, 13, 23)], textureTingleEnabled=True, radius=90, **EVEN,
      pointsDistance=0.3, radianTingle=1, distribution=0.15, disTwoAxes=True, flow=0.7, flowControl=(0.6, 0, 0),
      minFlow=0.3, brightnessTingle=0.08, renderColor="#6f8f52")

brush("Autumn Leaves", "stamp wet", "Fallen leaves of four kinds, between two colours.",
      textureImages=[stamps.leaf(96, kind) for kind in range(4)], textureTingleEnabled=True,
      radius=52, minRadius=0.55, maxRadius=1, radiusControl=(0.8, 0, 0), startRadius=0, endRadius=0.7, radiusTingle=0.4,
      radianTingle=1, flipXTingle=True, pointsDistance=0.35, distribution=0.7, disTwoAxes=True,
      distributionCount=2, distributionCountTingle=0.5, colorTingle=1, hueTingle=0.06, saturationTingle=0.12,
      brightnessTingle=0.15, renderColor="#c8782a", backRenderColor="#8a9a34")

brush("Meadow Grass", "stamp wet", "Tufts of grass that stand upright along the stroke.",
      textureImages=[stamps.blade(96, seed) for seed in (2, 5, 8)], textureTingleEnabled=True,
      radius=80, minRadius=0.5, maxRadius=1, radiusControl=(0.8, 0, 0), startRadius=0, endRadius=0.6,
      flipXTingle=True, pointsDistance=0.12, distribution=0.12, colorTingle=1,
      hueTingle=0.04, brightnessTingle=0.12, renderColor="#5f9a3a", backRenderColor="#2f5f2c")

brush("Confetti", "stamp dry", "Paper scraps of all colours, thrown wide.",
      textureImages=[stamps.shard(64, kind) for kind in range(4)], textureTingleEnabled=True,
      colorFul=True, hueTingle=1, brightnessTingle=0.1, radius=28, minRadius=0.6, maxRadius=1, startRadius=0,
      endRadius=0, radiusTingle=0.5, radianTingle=1, roundnessTingle=0.4, minRoundness=0.5, pointsDistance=0.7,
      distribution=1.8, disTwoAxes=True, distributionCount=4, distributionCountControl=(0.7, 0, 0))

# ---- Erasers, and the fill

brush("Hard Eraser", "eraser dry", "Rubs out all, to a clean edge.",
      textureType=DISC, hardness=0.85, radius=36, **EVEN, pointsDistance=0.1, blendType=ERASE)

brush("Soft Eraser", "eraser dry", "Takes a little away with each pass, without an edge.",
      textureImages=tips.mist(), radius=90, **EVEN, pointsDistance=0.05, flow=0.14, minFlow=0.05,
      flowControl=(1, 0, 0), blendType=ERASE)

brush("Live Fill", "fill wet", "Fills what the pen goes around while it goes.",
      brushType=LIVE_FILL, opacity=0.9, renderColor="#3f8f5e")
