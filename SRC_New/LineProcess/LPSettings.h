// SPDX-License-Identifier: MIT
// Makes sense of values that clients may set to anything. Internal to the line process.
#pragma once

#include <cmath>

namespace dabcanvas {

inline float finiteOr(float value, float otherwise) {
    return std::isfinite(value) ? value : otherwise;
}

// Not a number counts as 0.
inline float clampedToUnit(float value) {
    if (!(value > 0.0f)) {
        return 0.0f;
    }
    return value < 1.0f ? value : 1.0f;
}

// The cosine curve that pressure acts along: 1 at no pressure, 0 at full pressure.
inline float pressureCosine(float pressure) {
    return std::cos(static_cast<float>(static_cast<double>(pressure) * 1.5707963267948966));
}

// What a pressure reads when the device gives none.
inline constexpr float kNoPressure = -1.0f;
// Altitudes from here on count as a tilted pen.
inline constexpr float kTilted = 0.7f;

}  // namespace dabcanvas
