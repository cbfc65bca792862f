// SPDX-License-Identifier: MIT
// Fits a value of a brush and its control record to what the value should come to.
#pragma once

#include <functional>
#include <vector>

#include "Import/LeastSquares.h"
#include "LineProcess/LPTypes.h"

namespace dabcanvas {

// What a value should be for a dab of these inputs.
struct Target {
    LPControlParams inputs;
    float value, weight = 1;
};

// Which inputs the targets vary with; the others' influences stay 0.
struct Influences {
    bool pressure = false, speed = false, altitude = false;
};

struct ControlFit {
    float first = 0, second = 0;  // the value's own numbers
    LPControlParams control{};
    float off = 0;  // how far targets are missed, on average
};

using ControlModel = std::function<float(const LPControlParams& inputs, const ControlFit& fit)>;

// A penalty, where one is given, is added to the mean square.
ControlFit fitControl(const std::vector<Target>& targets, const Unknown& first, const Unknown& second,
                      const Influences& influences, const ControlModel& model,
                      const std::function<double(const ControlFit&)>& penalty = nullptr);

}  // namespace dabcanvas
