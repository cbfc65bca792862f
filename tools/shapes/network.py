# SPDX-License-Identifier: MIT
"""A small neural network: training, judging, and writing it down as C++."""
import re

import numpy as np

OUTCOMES = ["none", "line", "fold2", "fold3", "fold4", "fold5", "triangle", "rectangle", "parallelogram",
            "ellipse", "arc", "arrow"]
KINDS = ["none", "line", "foldline", "triangle", "rectangle", "parallelogram", "ellipse", "arc", "arrow"]
KIND_OF = np.array([KINDS.index("foldline" if name.startswith("fold") else name) for name in OUTCOMES])
MIRRORED = 32  # as ShapeFeatures::kMirrored: these features change sign with the stroke's mirror image


def mirror_image(features):
    image = features.copy()
    image[:, :MIRRORED] *= -1
    return image


def softmax(scores):
    powers = np.exp(scores - scores.max(1, keepdims=True))
    return powers / powers.sum(1, keepdims=True)


class Network:
    """Layers of weights (inputs x outputs) and biases, on features that `mean` and `scale` bring to about 1."""

    def __init__(self, mean, scale, weights, biases):
        self.mean, self.scale, self.weights, self.biases = mean, scale, weights, biases

    @classmethod
    def untrained(cls, features, hidden, rng):
        both = np.concatenate([features, mirror_image(features)])
        mean = both.mean(0)
        mean[:MIRRORED] = 0
        sizes = [features.shape[1], *hidden, len(OUTCOMES)]
        weights = [(rng.standard_normal((a, b)) * np.sqrt(1.6 / a)).astype(np.float32)
                   for a, b in zip(sizes, sizes[1:])]
        return cls(mean, 1 / (both.std(0) + 1e-3), weights, [np.zeros(b, np.float32) for b in sizes[1:]])

    @classmethod
    def read(cls, path):
        """What write() wrote."""
        with open(path, encoding="ascii") as text:
            found = re.findall(r"> (k\w+) = \{([^}]*)\}", text.read())
        tables = {name: np.array(body.replace("F", "").split(","), np.float32) for name, body in found}
        biases = [tables[f"kBias{i}"] for i in (1, 2, 3)]
        weights = [(tables[f"kWeights{i}"].reshape(len(bias), -1) * tables[f"kStep{i}"][:, None]).T
                   for i, bias in enumerate(biases, 1)]
        return cls(tables["kMean"], tables["kScale"], weights, biases)

    def layers(self, inputs):
        values = [inputs]
        for weights, bias in zip(self.weights[:-1], self.biases[:-1]):
            values.append(np.tanh(values[-1] @ weights + bias))
        values.append(values[-1] @ self.weights[-1] + self.biases[-1])
        return values

    def chances(self, features):
        scores = sum(self.layers((image - self.mean) * self.scale)[-1]
                     for image in (features, mirror_image(features)))
        return softmax(scores / 2)

    def train(self, features, accepted, importance, epochs, rng, batch=256, rate=2e-3, decay=1e-4, dropped=0.1,
              noise=0.12):
        """Adam on the chance of any accepted outcome. Features are dropped and shaken, so that none is relied on."""
        inputs = ((features - self.mean) * self.scale).astype(np.float32)
        parameters = self.weights + self.biases
        first = [np.zeros_like(p) for p in parameters]
        second = [np.zeros_like(p) for p in parameters]
        steps = epochs * (len(inputs) // batch)
        step = 0
        for epoch in range(epochs):
            order = rng.permutation(len(inputs))
            loss = 0
            for part in order[:len(inputs) // batch * batch].reshape(-1, batch):
                step += 1
                x = inputs[part]
                x[rng.random(batch) < 0.5, :MIRRORED] *= -1
                x += noise * rng.standard_normal(x.shape, np.float32)
                x *= (rng.random(x.shape, np.float32) > dropped) / np.float32(1 - dropped)
                values = self.layers(x)
                chances = softmax(values[-1])
                wanted = chances * accepted[part]
                sure = wanted.sum(1, keepdims=True) + 1e-6
                loss -= (importance[part] * np.log(sure[:, 0])).sum()
                wanted = 0.98 * wanted / sure + 0.02 / len(OUTCOMES)  # labels are not beyond doubt
                slope = (chances - wanted) * importance[part, None] / batch
                gradients = [None] * len(parameters)
                count = len(self.weights)
                for i in reversed(range(count)):
                    gradients[i] = values[i].T @ slope + decay * self.weights[i]
                    gradients[count + i] = slope.sum(0)
                    if i:
                        slope = (slope @ self.weights[i].T) * (1 - values[i] ** 2)
                now = rate * min(1, step / 200) * (1 + np.cos(np.pi * step / steps)) / 2
                for p, g, m, v in zip(parameters, gradients, first, second):
                    m += 0.1 * (g - m)
                    v += 0.001 * (g * g - v)
                    p -= now * (m / (1 - 0.9 ** step)) / (np.sqrt(v / (1 - 0.999 ** step)) + 1e-8)
            print(f"epoch {epoch + 1}: loss {loss / len(inputs):.4f}", flush=True)

    def rounded(self):
        """Weights as whole steps of -127 to 127, a step a row of the next layer; this network becomes what they say."""
        self.mean = self.mean.astype(np.float32)
        self.scale = self.scale.astype(np.float32)
        self.steps = [np.abs(w).max(0) / 127 for w in self.weights]
        self.whole = [np.rint(w / s).astype(np.int8) for w, s in zip(self.weights, self.steps)]
        self.weights = [(w * s).astype(np.float32) for w, s in zip(self.whole, self.steps)]

    def write(self, path):
        def lines(numbers):
            line = "    "
            for number in numbers:
                if len(line) + len(number) > 119:
                    yield line.rstrip()
                    line = "    "
                line += number + ", "
            yield line.rstrip()

        def table(kind, name, numbers):
            text = [str(n) if kind != "float" else repr_float(n) for n in numbers]
            out.write(f"constexpr std::array<{kind}, {len(text)}> {name} = {{\n")
            out.write("\n".join(lines(text)).rstrip(",") + "};\n")

        def repr_float(number):
            text = f"{number:.5g}"
            return text + ("F" if "." in text or "e" in text else ".0F")

        sizes = [self.weights[0].shape[0]] + [w.shape[1] for w in self.weights]
        with open(path, "w", encoding="ascii") as out:
            out.write("// SPDX-License-Identifier: MIT\n// clang-format off\n")
            out.write("// Made by tools/train_shapes.py; do not edit.\n")
            for name, size in zip(("kInputs", "kHidden1", "kHidden2", "kOutputs"), sizes):
                out.write(f"constexpr std::size_t {name} = {size};\n")
            table("float", "kMean", self.mean)
            table("float", "kScale", self.scale)
            for i, (whole, steps, bias) in enumerate(zip(self.whole, self.steps, self.biases), 1):
                table("std::int8_t", f"kWeights{i}", whole.T.reshape(-1))
                table("float", f"kStep{i}", steps)
                table("float", f"kBias{i}", bias)
            out.write("// clang-format on\n")


SURE, LIKELY = 0.45, 0.3  # kSureEnough and kLikelyKind of ShapeModel.cpp


def kinds_of(chances, sure=SURE, likely=LIKELY):
    """The judged kind of each row, and the chances of all kinds."""
    kinds = np.zeros((len(chances), len(KINDS)))
    for outcome, kind in enumerate(KIND_OF):
        kinds[:, kind] += chances[:, outcome]
    best = kinds[:, 1:].argmax(1) + 1
    return np.where((1 - kinds[:, 0] >= sure) & (kinds[:, 1:].max(1) >= likely), best, 0), kinds
