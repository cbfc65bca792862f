#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes the brush presets in samples/brushes with dabpaint, from the settings below.

Needs Python 3 with numpy and a built dabpaint; the same brushes come out every time.

    tools/make_brushes.py [--dabpaint PROGRAM] [--sheet SHEET.jpg] [NAME...]

The program is build/release/bin/dabpaint unless another is named; with names only those brushes are made. A sheet shows
all of them.
"""

import argparse
import subprocess
import sys
import tempfile
from pathlib import Path

import brush_images as images
import brush_stamps as stamps

ROOT = Path(__file__).resolve().parent.parent
FOLDER = ROOT / "samples" / "brushes"

# Size never varies: without influences a dab has the middle of smallest and largest.
EVEN = {"minRadius": 1, "startRadius": 0, "endRadius": 0}
DISC, RECTANGLE = 1, 3     # texture types
SMUDGE, LIVE_FILL = 3, 4   # brush types
ERASE, MULTIPLY = 5, 8     # blend types

# name: settings; a value that is bytes, or a list of them, is an image. Sizes are for a canvas of about 2000 pixels.
BRUSHES = {}


# Every preset keeps a tip for the second line; a small one where there is no such line.
SECOND_TIP = images.rough_disc(32, 1, wobble=0)


def brush(name, **settings):
    BRUSHES[name] = {"slTextureImage": SECOND_TIP, **settings}


GRAIN = images.paper(128, (64, 40, 20), 0.22, 0.62, seed=3)
ROUGH = images.paper(128, (64, 48, 24), 0.36, 0.66, seed=8)
CLOUDS = images.paper(128, (5, 9, 24), -0.3, 0.8, seed=5)

# ---- Drawing

brush("Pencil", textureImages=images.speckled(48, 11, 14, 0.05, 0.6, edge=0.45), radius=9, minRadius=0.4,
      radiusControl=(0.6, 0, 0), startRadius=0.5, strokeControlValue=12, endRadius=0.3, pointsDistance=0.12,
      radianTingle=1, flow=0.55, minFlow=0.08, flowControl=(1, 0, 0), flowTingle=0.3, needMaskTexture=True,
      maskImage=GRAIN, renderColor="#2c2c30")

brush("Charcoal", textureImages=images.speckled(96, 21, 22, 0.3, 0.72, edge=0.3), radius=46, minRadius=0.6,
      radiusControl=(0.5, 0, 0), startRadius=0, endRadius=0.5, pointsDistance=0.08, radianTingle=1,
      distribution=0.05, flow=0.4, minFlow=0.12, flowControl=(1, 0, 0), flowTingle=0.4, needMaskTexture=True,
      maskImage=ROUGH, maskScale=1.2, renderColor="#1d1b1b")

brush("Wax Crayon", textureImages=images.speckled(64, 31, 18, 0.28, 0.6, edge=0.2), radius=24, minRadius=0.75,
      radiusControl=(0.6, 0, 0), startRadius=0, endRadius=0.7, pointsDistance=0.14, radianTingle=1, flow=0.5,
      minFlow=0.25, flowControl=(1, 0, 0), needMaskTexture=True,
      maskImage=images.paper(128, (60, 36), 0.36, 0.5, seed=13), maskScale=1.1, renderColor="#c8452e")

brush("Ink Pen", textureType=DISC, hardness=0.75, radius=10, minRadius=0.12, radiusControl=(1, 0, 0),
      startRadius=0.05, strokeControlValue=40, endRadius=0.02, pointsDistance=0.12, renderColor="#141a2e")

brush("Brush Pen", textureImages=images.rough_disc(96, 5), radius=44, minRadius=0.03, radiusControl=(1, 0, 0.25),
      sensitivity=70, startRadius=0.03, strokeControlValue=70, endRadius=0.01, pointsDistance=0.05,
      moveRadianEnable=True, renderColor="#101014")

brush("Speed Pen", textureType=DISC, hardness=0.7, radius=20, minRadius=0.12, radiusControl=(0, 0, 1),
      sensitivity=15, speedSencitive=0.5, startRadius=0.2, strokeControlValue=30, endRadius=0.05,
      pointsDistance=0.1, renderColor="#1c3d5a")

brush("Calligraphy Nib", textureType=RECTANGLE, textureControlValue=5, hardness=0.6, radius=38, minRadius=0.85,
      radiusControl=(0.4, 0, 0), startRadius=0, endRadius=0, radian=0.785, pointsDistance=0.04,
      renderColor="#2a1420")

# ---- Markers

brush("Round Marker", textureType=DISC, hardness=0.75, radius=28, **EVEN, pointsDistance=0.1, opacity=0.75,
      blendType=MULTIPLY, renderColor="#f2b33d")

brush("Chisel Marker", textureType=RECTANGLE, textureControlValue=2.6, hardness=0.75, radius=46, **EVEN,
      radian=0.96, pointsDistance=0.03, opacity=0.7, blendType=MULTIPLY, renderColor="#58b7a6")

# ---- Paint

brush("Watery Wash", textureImages=[images.wash(128, seed) for seed in (4, 9, 16)], textureTingleEnabled=True,
      radius=96, minRadius=0.55, radiusControl=(0.6, 0, 0), startRadius=0, endRadius=0.7, pointsDistance=0.045,
      radianTingle=1, radiusTingle=0.05, flow=0.11, flowTingle=0.3, opacity=0.85, blendType=MULTIPLY,
      needMaskTexture=True, maskImage=CLOUDS, maskScale=2.5, renderColor="#3d78b8")

brush("Dry Bristle", textureImages=[images.bristles(80, 7, 110, 0.045, load, shape=0.35)
                                    for load in (0.75, 0.6, 0.45, 0.3, 0.18)],
      textureControl=(1, 0, 0), radius=72, minRadius=0.7, radiusControl=(0.5, 0, 0), startRadius=0, endRadius=0.8,
      pointsDistance=0.02, moveRadianEnable=True, flow=0.5, flowControl=(0.7, 0, 0), minFlow=0.3,
      flowTingle=0.3, renderColor="#6b3f2a")

brush("Oil Impasto", textureImages=images.bristles(128, 12, 150, 0.06, 0.97, shape=0.3, lights=0.55),
      colorFul=True, brightnessTingle=0.05, radius=70, minRadius=0.75, radiusControl=(0.6, 0, 0), startRadius=0,
      endRadius=0.8, pointsDistance=0.02, moveRadianEnable=True, flow=0.85, renderColor="#b03a2c")

brush("Sponge", textureImages=[images.speckled(96, seed, 13, 0.48, 0.6, edge=0.2, wobble=0.2) for seed in (41, 42, 43)],
      textureTingleEnabled=True, radius=70, **EVEN, pointsDistance=0.35, radianTingle=1, distribution=0.15,
      disTwoAxes=True, flow=0.85, flowControl=(0.6, 0, 0), minFlow=0.3, brightnessTingle=0.08,
      renderColor="#6f8f52")

brush("Textured Gouache", textureType=DISC, hardness=0.8, radius=64, minRadius=0.5, radiusControl=(0.7, 0, 0),
      startRadius=0, endRadius=0.6, pointsDistance=0.05, repeatedlyRenderEnabled=True,
      slTextureImage=images.speckled(128, 51, 26, 0.36, 0.56, edge=0.15), slRadius=80, slPointsDistance=0.28,
      slDistribution=0.2, slDistbTwoAxes=True, slRadiusRelationType=2, renderColor="#7a4b9a")

# ---- Spray

brush("Airbrush", textureType=DISC, hardness=0, radius=100, **EVEN, pointsDistance=0.06, flow=0.1, minFlow=0.02,
      flowControl=(1, 0, 0), renderColor="#304a8c")

brush("Spray Can", textureType=DISC, hardness=0.7, radius=5, minRadius=0.3, maxRadius=1, startRadius=0, endRadius=0,
      radiusTingle=0.8, pointsDistance=1, distribution=9, disTwoAxes=True, distributionCount=14,
      distributionCountControl=(0.8, 0, 0), distributionCountTingle=0.3, flow=0.75, flowTingle=0.5,
      renderColor="#c22a56")

brush("Ink Spatter", textureImages=[stamps.splash(96, seed, arms) for seed, arms in ((3, 7), (6, 4), (9, 0))],
      textureTingleEnabled=True, radius=52, minRadius=0.04, maxRadius=1, radiusControl=(0.7, 0, 0), startRadius=0,
      endRadius=0.4, radiusTingle=1, radianTingle=1, pointsDistance=0.45, distribution=1.1, disTwoAxes=True,
      distributionCount=3, distributionCountTingle=0.8, renderColor="#17171c")

# ---- Stamps

brush("Autumn Leaves", textureImages=[stamps.leaf(96, kind) for kind in range(4)], textureTingleEnabled=True,
      radius=52, minRadius=0.55, maxRadius=1, radiusControl=(0.8, 0, 0), startRadius=0, endRadius=0.7, radiusTingle=0.4,
      radianTingle=1, flipXTingle=True, pointsDistance=0.35, distribution=0.7, disTwoAxes=True,
      distributionCount=2, distributionCountTingle=0.5, colorTingle=1, hueTingle=0.06, saturationTingle=0.12,
      brightnessTingle=0.15, renderColor="#c8782a", backRenderColor="#8a9a34")

brush("Meadow Grass", textureImages=[stamps.blade(96, seed) for seed in (2, 5, 8)], textureTingleEnabled=True,
      radius=80, minRadius=0.5, maxRadius=1, radiusControl=(0.8, 0, 0), startRadius=0, endRadius=0.6,
      flipXTingle=True, pointsDistance=0.12, distribution=0.12, colorTingle=1,
      hueTingle=0.04, brightnessTingle=0.12, renderColor="#5f9a3a", backRenderColor="#2f5f2c")

brush("Confetti", textureImages=[stamps.shard(64, kind) for kind in range(4)], textureTingleEnabled=True,
      colorFul=True, hueTingle=1, brightnessTingle=0.1, radius=28, minRadius=0.6, maxRadius=1, startRadius=0, endRadius=0,
      radiusTingle=0.5, radianTingle=1, roundnessTingle=0.4, minRoundness=0.5, pointsDistance=0.7,
      distribution=1.8, disTwoAxes=True, distributionCount=4, distributionCountControl=(0.7, 0, 0))

# ---- Brushes for what is there

brush("Smudge Finger", brushType=SMUDGE, textureType=DISC, hardness=0.35, radius=60, minRadius=0.6,
      radiusControl=(0.7, 0, 0), startRadius=0, endRadius=0, pointsDistance=0.04, loadQuantity=0, mixQuantity=1,
      moistQuantity=0.95, smudgeControl=False)

brush("Soft Blender", brushType=SMUDGE, textureType=DISC, hardness=0, radius=84, **EVEN, pointsDistance=0.06,
      loadQuantity=0.5, mixQuantity=0.7, moistQuantity=0.6, flow=0.6, flowControl=(0.5, 0, 0), minFlow=0.2,
      renderColor="#f6efe2")

brush("Hard Eraser", textureType=DISC, hardness=0.85, radius=36, **EVEN, pointsDistance=0.1, blendType=ERASE)

brush("Soft Eraser", textureType=DISC, hardness=0, radius=90, **EVEN, pointsDistance=0.08, flow=0.2, minFlow=0.05,
      flowControl=(1, 0, 0), blendType=ERASE)

brush("Live Fill", brushType=LIVE_FILL, opacity=0.9, renderColor="#3f8f5e")


def file_name(name):
    return name.lower().replace(" ", "-") + ".xbf"


def written(value, folder, key):
    """A setting as dabpaint takes it; images become files in the folder."""
    if isinstance(value, bytes):
        value = [value]
    if isinstance(value, list):
        paths = [folder / f"{key}-{place}.png" for place in range(len(value))]
        for path, image in zip(paths, value):
            path.write_bytes(image)
        return ",".join(map(str, paths))
    if isinstance(value, bool):
        return "yes" if value else "no"
    if isinstance(value, tuple):
        return ",".join(map(str, value))
    return str(value)


def make(program, name):
    with tempfile.TemporaryDirectory() as folder:
        words = [program, "preset", "make", "-o", FOLDER / file_name(name), "--name", name]
        for key, value in BRUSHES[name].items():
            words += ["--set", f"{key}={written(value, Path(folder), key)}"]
        subprocess.run(words, check=True)


def main():
    parser = argparse.ArgumentParser(description="Makes the brush presets in samples/brushes.")
    parser.add_argument("--dabpaint", default=ROOT / "build" / "release" / "bin" / "dabpaint", metavar="PROGRAM")
    parser.add_argument("--sheet", metavar="SHEET.jpg")
    parser.add_argument("names", nargs="*", metavar="NAME")
    options = parser.parse_args()
    unknown = [name for name in options.names if name not in BRUSHES]
    if unknown:
        sys.exit(f"no brush is called {', '.join(unknown)}")
    FOLDER.mkdir(parents=True, exist_ok=True)
    try:
        for name in options.names or BRUSHES:
            make(options.dabpaint, name)
        if options.sheet:
            files = [FOLDER / file_name(name) for name in BRUSHES]
            subprocess.run([options.dabpaint, "preset", "sheet", *files, "-o", options.sheet], check=True)
    except (OSError, subprocess.CalledProcessError) as fault:
        sys.exit(str(fault))


if __name__ == "__main__":
    main()
