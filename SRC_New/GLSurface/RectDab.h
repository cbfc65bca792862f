// SPDX-License-Identifier: MIT
// How renderers that draw dabs are told a rectangle.
#pragma once

#include "LineProcess/LPTypes.h"
#include "Maths/Rect.h"

namespace dabcanvas {

// The one dab that covers a rectangle when its renderer's roundness is the rectangle's height over its width.
inline LPPoint dabOf(const Rect& rect) {
    return {{static_cast<float>(rect.x + rect.width * 0.5), static_cast<float>(rect.y + rect.height * 0.5)},
            static_cast<float>(rect.width),
            {1.0f, 1.0f, 1.0f}};
}

inline float roundnessOf(const Rect& rect) {
    return static_cast<float>(static_cast<double>(rect.height) / rect.width);
}

}  // namespace dabcanvas
