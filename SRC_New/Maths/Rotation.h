// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

namespace dabcanvas {

/// Half the width and half the height of something, or of the upright box around it.
struct Extent {
    double width = 0, height = 0;
};

/// Of the upright box around a box turned by `angle` radians. Computed in single precision.
inline Extent turned(const Extent& half, float angle) {
    const auto width = static_cast<float>(half.width);
    const auto height = static_cast<float>(half.height);
    const float diagonal = std::sqrt(width * width + height * height);
    const float corner = std::atan2(height, width);
    return {diagonal * (std::max)(std::abs(std::cos(angle - corner)), std::abs(std::cos(angle + corner))),
            diagonal * (std::max)(std::abs(std::sin(angle - corner)), std::abs(std::sin(angle + corner)))};
}

}  // namespace dabcanvas
