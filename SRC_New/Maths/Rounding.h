// SPDX-License-Identifier: MIT
// Doubles to integers without undefined behaviour: a NaN becomes 0, and values too large for pixels end at
// 2^30, far enough from the ends of int that an offset and a size can be added.
#pragma once

#include <algorithm>
#include <cmath>

namespace dabcanvas {

inline int truncatedInt(double value) {
    constexpr double kLimit = 1 << 30;
    return std::isnan(value) ? 0 : static_cast<int>(std::clamp(value, -kLimit, kLimit));
}

// Halves go away from zero.
inline int nearestInt(double value) {
    return truncatedInt(std::round(value));
}

}  // namespace dabcanvas
