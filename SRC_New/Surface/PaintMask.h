// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "Maths/Rect.h"

namespace dabcanvas {

/// Where strokes may change a picture, and how far. Plain values, never changed once made.
///
/// Units    buffer pixels, top-left origin.
struct PaintMask {
    Rect area;                         ///< on the picture; outside of it nothing changes
    std::vector<std::uint8_t> shares;  ///< of the area's pixels, row by row: 0 keeps all of a pixel, 255 none

    /// Of a pixel inside the area, and those to its right.
    const std::uint8_t* at(int x, int y) const {
        return shares.data() + static_cast<std::ptrdiff_t>(y - area.y) * area.width + (x - area.x);
    }
};

}  // namespace dabcanvas
