// SPDX-License-Identifier: MIT
#include "Recognition/ShapeModel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace dabcanvas {

namespace {
// kInputs, kHidden1, kHidden2, kOutputs; kMean and kScale of the inputs; of each layer the weights, a row an
// output, in steps of that row's kStep, and kBias.
#include "Recognition/ShapeModelWeights.inc"

static_assert(kInputs == ShapeFeatures::kCount,
              "the model was trained on other features: run tools/train_shapes.py");

// A stroke that is no surer a shape than this stays as it was drawn: where of made-up people's hurried strokes 99.5 %
// of the shapes are named and 1 % of the scrawl is taken for one.
constexpr double kSureEnough = 0.45;
// So does one that may be several kinds, none of them likely.
constexpr double kLikelyKind = 0.3;

// In the order of the network's outputs.
struct Outcome {
    ShapeKind kind;
    int legs;
};
constexpr std::array<Outcome, 12> kOutcomes = {{{ShapeKind::none, 0},
                                                {ShapeKind::line, 0},
                                                {ShapeKind::foldLine, 2},
                                                {ShapeKind::foldLine, 3},
                                                {ShapeKind::foldLine, 4},
                                                {ShapeKind::foldLine, 5},
                                                {ShapeKind::triangle, 0},
                                                {ShapeKind::rectangle, 0},
                                                {ShapeKind::parallelogram, 0},
                                                {ShapeKind::ellipse, 0},
                                                {ShapeKind::arc, 0},
                                                {ShapeKind::arrow, 0}}};
static_assert(kOutputs == kOutcomes.size());

template <std::size_t In, std::size_t Out>
std::array<float, Out> layer(const std::array<float, In>& input,
                             const std::array<std::int8_t, In * Out>& weights,
                             const std::array<float, Out>& steps, const std::array<float, Out>& bias) {
    std::array<float, Out> output;
    for (std::size_t row = 0; row < Out; ++row) {
        float sum = 0;
        for (std::size_t i = 0; i < In; ++i) {
            sum += static_cast<float>(weights[row * In + i]) * input[i];
        }
        output[row] = sum * steps[row] + bias[row];
    }
    return output;
}

template <std::size_t Count>
std::array<float, Count> bent(std::array<float, Count> values) {
    for (float& value : values) {
        value = std::tanh(value);
    }
    return values;
}

std::array<float, kOutputs> scores(const ShapeFeatures& features, float mirror) {
    std::array<float, kInputs> input;
    for (std::size_t i = 0; i < kInputs; ++i) {
        const float value = i < ShapeFeatures::kMirrored ? mirror * features.values[i] : features.values[i];
        input[i] = (value - kMean[i]) * kScale[i];
    }
    const auto first = bent(layer<kInputs, kHidden1>(input, kWeights1, kStep1, kBias1));
    const auto second = bent(layer<kHidden1, kHidden2>(first, kWeights2, kStep2, kBias2));
    return layer<kHidden2, kOutputs>(second, kWeights3, kStep3, kBias3);
}
}  // namespace

ShapeVerdict judgeShape(const ShapeFeatures& features) {
    std::array<float, kOutputs> outputs = scores(features, 1);
    const std::array<float, kOutputs> mirrored = scores(features, -1);
    for (std::size_t i = 0; i < kOutputs; ++i) {
        outputs[i] = (outputs[i] + mirrored[i]) / 2;
    }
    const float highest = *std::max_element(outputs.begin(), outputs.end());
    double sum = 0;
    std::array<double, kOutputs> chances;
    for (std::size_t i = 0; i < kOutputs; ++i) {
        chances[i] = std::exp(outputs[i] - highest);
        sum += chances[i];
    }
    std::array<double, static_cast<std::size_t>(ShapeKind::arrow) + 1> kinds{};
    std::size_t best = 0;  // of all fold lines
    for (std::size_t i = 0; i < kOutputs; ++i) {
        chances[i] /= sum;
        kinds[static_cast<std::size_t>(kOutcomes[i].kind)] += chances[i];
        if (kOutcomes[i].legs > 0 && (kOutcomes[best].legs == 0 || chances[i] > chances[best])) {
            best = i;
        }
    }
    const auto shape = std::max_element(kinds.begin() + 1, kinds.end());
    ShapeVerdict verdict;
    if (1 - kinds[0] < kSureEnough || *shape < kLikelyKind) {
        verdict.confidence = kinds[0];
        return verdict;
    }
    verdict.kind = static_cast<ShapeKind>(shape - kinds.begin());
    verdict.confidence = *shape;
    verdict.legs = verdict.kind == ShapeKind::foldLine ? kOutcomes[best].legs : 0;
    return verdict;
}

}  // namespace dabcanvas
