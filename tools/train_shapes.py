#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Trains the network that judges strokes, and reports how well it does on strokes it was not trained on.

  tools/train_shapes.py --features build/release/bin/shape_features --train DIR [DIR ...] [--test DIR ...]
      [-o SRC_New/Recognition/ShapeModelWeights.inc]
  tools/train_shapes.py --features build/release/bin/shape_features --weights FILE --test DIR [DIR ...]

A DIR holds strokes as CSV (sample_id, ..., x, y) and labels.csv, as tools/shape_strokes.py and tools/shapes/warp.py
make them. Needs NumPy. The same input gives the same network on the same machine.
"""
import argparse
import collections
import csv
import pathlib
import subprocess
import sys
import tempfile

import numpy as np

from shapes.network import KINDS, KIND_OF, OUTCOMES, SURE, Network, kinds_of


def measured(folder, program):
    """Features (a row a stroke) and labels of a folder's strokes."""
    files = [f for f in sorted(pathlib.Path(folder).glob("*.csv")) if f.name not in ("labels.csv", "ideal.csv")]
    with tempfile.NamedTemporaryFile() as result:
        names = subprocess.run([program, result.name, *files], check=True, stdout=subprocess.PIPE, text=True)
        names = names.stdout.splitlines()
        features = np.fromfile(result.name, np.float32).reshape(len(names), -1)
    with open(pathlib.Path(folder) / "labels.csv", newline="", encoding="utf-8") as labels:
        rows = {row["sample_id"]: row for row in csv.DictReader(labels)}
    return features, [rows[name] for name in names]


def outcomes_accepted(rows):
    accepted = np.zeros((len(rows), len(OUTCOMES)), np.float32)
    for i, row in enumerate(rows):
        for kind in row["accept"].split("|"):
            if kind == "foldline" and row["legs"]:
                accepted[i, OUTCOMES.index(f"fold{min(max(int(row['legs']), 2), 5)}")] = 1
            else:
                accepted[i, KIND_OF == KINDS.index(kind)] = 1
    return accepted


# What all non-shapes count for, beside all shapes. A shape refused annoys oftener than scrawl made straight.
OTHERS = 0.3

# Log-odds added after training. In a hurry a triangle looks like a kite or a drop, which people draw far more seldom.
FAVOURED = {"triangle": 0.4}


def balanced(rows):
    """Every label counts as much as its number's root, non-shapes OTHERS times as much as all shapes together."""
    count = collections.Counter(row["label"] for row in rows)
    weight = {label: n ** -0.5 for label, n in count.items()}
    shapes = sum(n * weight[label] for label, n in count.items() if label not in ("none", "either"))
    weight["none"] = OTHERS * shapes / max(count["none"], 1)
    values = np.array([weight[row["label"]] for row in rows], np.float32)
    return values / values.mean()


# Drawn near a kind they may be taken for it: they count neither as shapes nor as others.
EITHER_WAY = {"trapezoid", "half-disc", "half_disc", "teardrop", "drop"}


def report(name, chances, rows, sure):
    judged, _ = kinds_of(chances, sure)
    table = collections.defaultdict(collections.Counter)
    legs = collections.Counter()
    right = collections.Counter()
    count = collections.Counter()
    speeds = collections.defaultdict(collections.Counter)
    for i, row in enumerate(rows):
        kind = KINDS[judged[i]]
        table[row["gesture"]][kind] += 1
        if row["gesture"] in EITHER_WAY:
            continue
        if row["label"] not in ("none", "either"):
            speeds[row["speed"]][kind in row["accept"].split("|")] += 1
        count[row["label"]] += 1
        right[row["label"]] += kind in row["accept"].split("|")
        if kind == row["label"] == "foldline":
            legs[2 + int(chances[i, 2:6].argmax()) == min(int(row["legs"]), 5)] += 1
    shapes = [label for label in count if label not in ("none", "either")]
    named = sum(right[s] for s in shapes) / max(sum(count[s] for s in shapes), 1)
    print(f"== {name}: {named:.2%} of the shapes named right, "
          f"{1 - right['none'] / max(count['none'], 1):.2%} of the others accepted, "
          f"legs right {legs[True] / max(sum(legs.values()), 1):.2%}")
    print("   " + ", ".join(f"{s} {right[s] / count[s]:.1%}" for s in sorted(shapes)))
    print("   " + ", ".join(f"{s} {n[True] / n.total():.1%}" for s, n in sorted(speeds.items())))
    for gesture in sorted(table):
        print(f"   {gesture:20}", dict(table[gesture].most_common()))


def trained(arguments):
    rng = np.random.default_rng(arguments.seed)
    features, rows = [], []
    for folder in arguments.train:
        more, its_rows = measured(folder, arguments.features)
        features.append(more)
        rows += its_rows
    features = np.concatenate(features)
    network = Network.untrained(features, (64, 32), rng)
    network.train(features, outcomes_accepted(rows), balanced(rows), arguments.epochs, rng)
    for outcome, by in FAVOURED.items():
        network.biases[-1][OUTCOMES.index(outcome)] += by
    network.rounded()
    return network


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--features", required=True, help="the program shape_features of the build")
    source = parser.add_mutually_exclusive_group(required=True)
    source.add_argument("--train", nargs="+", default=[])
    source.add_argument("--weights", help="judge by this file instead of training")
    parser.add_argument("--test", nargs="*", default=[])
    parser.add_argument("--epochs", type=int, default=30)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--sure", type=float, default=SURE, help="how sure a shape must be in the report")
    parser.add_argument("-o", "--output")
    arguments = parser.parse_args()

    network = Network.read(arguments.weights) if arguments.weights else trained(arguments)
    for folder in arguments.test:
        features, rows = measured(folder, arguments.features)
        report(folder, network.chances(features), rows, arguments.sure)
    if arguments.output:
        network.write(arguments.output)


if __name__ == "__main__":
    sys.exit(main())
