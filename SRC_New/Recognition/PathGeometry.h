// SPDX-License-Identifier: MIT
// What every step of recognition counts and measures with.
#pragma once

#include "Recognition/StrokePath.h"

#include <cmath>
#include <cstddef>

namespace dabcanvas {

// Points and corners are counted by int, since counts are subtracted; containers want this.
inline std::size_t at(int index) {
    return static_cast<std::size_t>(index);
}

// By how much the second direction is turned from the first: -pi to pi, positive from x to y.
inline double turnBetween(const Vec2& before, const Vec2& after) {
    return std::atan2(before.x() * after.y() - before.y() * after.x(), before.dot(after));
}

}  // namespace dabcanvas
