#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes of each recorded stroke several that other hands might have drawn: stretched, leaning, uneven, rounder,
turned, sampled otherwise.

  tools/shapes/warp.py IN --times 20 --seed 1 -o OUT

IN holds strokes as CSV (sample_id, ..., x, y) and labels.csv; OUT gets the same.
"""
import argparse
import csv
import pathlib

import numpy as np


def uneven_in_place(stroke, rng):
    """Moves it by a few slow waves over the plane, as a hand does that judges distances wrongly."""
    for wave in range(3):
        shift = rng.normal(0, 0.02 / (1 + wave / 2), 2)
        across = rng.normal(0, 2.5 + 2 * wave, 2)
        stroke = stroke + np.sin(stroke @ across + rng.uniform(0, 2 * np.pi))[:, None] * shift
    return stroke


def uneven_in_time(stroke, along, rng):
    """Moves it by slow waves along its way."""
    for wave in range(1, 4):
        shift = rng.normal(0, 0.012 / wave, 2)
        stroke = stroke + np.sin(np.pi * (2 * wave * along + rng.uniform(0, 2)))[:, None] * shift
    return stroke


def rounder(stroke, rng):
    for _ in range(rng.integers(1, 3)):
        inner = (stroke[:-2] + 2 * stroke[1:-1] + stroke[2:]) / 4
        stroke = np.concatenate([stroke[:1], inner, stroke[-1:]])
    return stroke


def warped(stroke, label, rng):
    low, high = stroke.min(0), stroke.max(0)
    stroke = (stroke - (low + high) / 2) / np.hypot(*(high - low))
    stretch = np.exp(rng.normal(0, 0.16))
    lean = rng.normal(0, 0.03 if label in ("rectangle", "triangle") else 0.1)  # or they were parallelograms
    stroke = stroke @ np.array([[stretch, 0], [lean, 1 / stretch]])
    stroke = uneven_in_place(stroke, rng)
    along = np.r_[0, np.cumsum(np.hypot(*np.diff(stroke, axis=0).T))]
    along /= along[-1]
    stroke = uneven_in_time(stroke, along, rng)
    if rng.random() < 0.4:
        stroke = rounder(stroke, rng)
    if label != "arrow" and rng.random() < 0.5:  # an arrow's end is a short barb's
        kept = (along >= rng.uniform(0, 0.04)) & (along <= 1 - rng.uniform(0, 0.04))
        if kept.sum() > 8:
            stroke = stroke[kept]
    if rng.random() < 0.5:
        stroke = stroke * [-1, 1]
    if label != "arrow" and rng.random() < 0.3:
        stroke = stroke[::-1]
    angle = rng.uniform(0, 2 * np.pi) if rng.random() < 0.5 else rng.normal(0, 0.1)
    stroke = stroke @ np.array([[np.cos(angle), np.sin(angle)], [-np.sin(angle), np.cos(angle)]])
    places = np.linspace(0, len(stroke) - 1, int(np.clip(len(stroke) * np.exp(rng.uniform(-1.1, 0.5)), 14, 400)))
    index = np.arange(len(stroke))
    stroke = np.c_[np.interp(places, index, stroke[:, 0]), np.interp(places, index, stroke[:, 1])]
    stroke = stroke * np.exp(rng.uniform(np.log(50), np.log(400))) + rng.normal(0, 0.25, stroke.shape) + 500
    return np.round(stroke, 0 if rng.random() < 0.7 else 2)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--times", type=int, default=20)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--but", default="", help="gestures left out, with commas between")
    parser.add_argument("-o", "--output", type=pathlib.Path, required=True)
    arguments = parser.parse_args()

    rng = np.random.default_rng(arguments.seed)
    strokes = {}
    for file in sorted(arguments.folder.glob("*.csv")):
        if file.name in ("labels.csv", "ideal.csv"):
            continue
        with open(file, newline="", encoding="utf-8") as rows:
            for row in csv.DictReader(rows):
                strokes.setdefault(row["sample_id"], []).append((float(row["x"]), float(row["y"])))
    arguments.output.mkdir(parents=True, exist_ok=True)
    with (open(arguments.folder / "labels.csv", newline="", encoding="utf-8") as known,
          open(arguments.output / "labels.csv", "w", newline="", encoding="utf-8") as labels,
          open(arguments.output / "strokes.csv", "w", encoding="utf-8") as samples):
        rows = csv.DictReader(known)
        writer = csv.DictWriter(labels, rows.fieldnames)
        writer.writeheader()
        samples.write("sample_id,x,y\n")
        for row in rows:
            if row["gesture"] in arguments.but.split(","):
                continue
            stroke = np.array(strokes[row["sample_id"]])
            for i in range(arguments.times):
                other = warped(stroke, row["label"], rng)
                name = f"{row['sample_id']}-warped{i}"
                writer.writerow({**row, "sample_id": name, "points": len(other)})
                samples.writelines(f"{name},{x:g},{y:g}\n" for x, y in other)


if __name__ == "__main__":
    main()
