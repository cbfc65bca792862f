// SPDX-License-Identifier: MIT
// What a line makes of a brush's values and of its control records, as numbers that other brushes can be fitted to.
//
// inputs   a dab's pressure, altitude and speed
// control  their influences on the value
#pragma once

#include <vector>

#include "LineProcess/LPTypes.h"

namespace dabcanvas {

// A dab's size as a share of radius; maxRadius is 1.
float shareOfSize(const LPControlParams& inputs, float minRadius, const LPControlParams& control);
// Its flow; maxFlow is 1.
float flowOf(const LPControlParams& inputs, float flow, float minFlow, const LPControlParams& control);
float roundnessOf(const LPControlParams& inputs, float roundness, float minRoundness,
                  const LPControlParams& control);
// What scatter is multiplied with.
float shareOfScatter(const LPControlParams& inputs, const LPControlParams& control);

// The soft disc's alpha from its centre to its edge, evenly.
std::vector<float> discProfile(float hardness);

}  // namespace dabcanvas
