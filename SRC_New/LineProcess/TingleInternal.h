// SPDX-License-Identifier: MIT
// What the jitter functions share and what they remember from call to call. Internal; clients use Tingle.h
// and LPSharedState.h.
#pragma once

#include <cstdint>

#include "LineProcess/LPTypes.h"

namespace dabcanvas {

struct TingleState {
    float previousAngle = 0.0f;              // Radian()'s last answer
    LPPosition lastPosition = {0.0f, 0.0f};  // PositionTingle()'s last place
    float scatterStart[2] = {0.0f, 0.0f};    // random start of the copies there
    std::int64_t pIndex = 0;                 // which copy was placed last
    std::int64_t debugDraws = 0;             // HSVTingle()'s place in the table
};

extern TingleState tingleState;

// The random value of a dab, in [0, 1): by its index from the table in debug mode.
float uniformAt(std::int64_t index);

// How much strength the inputs leave an attribute: 0..1, and beyond where the pen is tilted. Always finite;
// an input that is not a number leaves it full.
float influence(const LPControlParams& inputs, const LPControlParams& control);

// DistributionCountTingle() without its exception for a stroke's first point.
std::uint64_t countOfCopies(std::uint64_t count, std::uint64_t index, float amount, const LPPoint& point,
                            const LPControlParams& control);

}  // namespace dabcanvas
