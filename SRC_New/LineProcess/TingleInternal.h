// SPDX-License-Identifier: MIT
// What the jitter functions share and what they remember from call to call, one per thread. Internal; clients use
// Tingle.h and LPSharedState.h.
#pragma once

#include <cstdint>

#include "LineProcess/LPSharedState.h"
#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"

namespace dabcanvas {

struct TingleState {
    float previousAngle = 0.0f;              // Radian()'s last answer
    LPPosition lastPosition = {0.0f, 0.0f};  // PositionTingle()'s last place
    float scatterStart[2] = {0.0f, 0.0f};    // random start of the copies there
    std::int64_t pIndex = 0;                 // which copy was placed last
    std::int64_t debugDraws = 0;             // HSVTingle()'s place in the table
    LPGenerator* generator = nullptr;        // draws for lines and dabs; null: the C library's do. Not owned
    bool debug = false;                      // SetDebugModel()'s; no part of LPSharedState
};

extern constinit thread_local TingleState tingleState;

// The random value of a dab, in [0, 1): by its index from the table in debug mode.
DABCANVAS_STROKE_API float uniformAt(std::int64_t index);
// One of two, as even, the same way.
DABCANVAS_STROKE_API bool coinAt(std::int64_t index);
// For the sizes of a line's dabs, in debug mode too: lpRandom(), unless there is a generator.
float lineRandom();

// How much strength the inputs leave an attribute: 0..1, and beyond where the pen is tilted. Always finite;
// an input that is not a number leaves it full.
DABCANVAS_STROKE_API float influence(const LPControlParams& inputs, const LPControlParams& control);

// DistributionCountTingle() without its exception for a stroke's first point.
std::uint64_t countOfCopies(std::uint64_t count, std::uint64_t index, float amount, const LPPoint& point,
                            const LPControlParams& control);

}  // namespace dabcanvas
