// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

#include "Dabs/Dab.h"
#include "Maths/Rect.h"
#include "Maths/Rotation.h"

namespace dabcanvas {

/// The area that dabs were drawn into so far, with a margin of one pixel; buffer pixels, top-left origin.
struct DabBounds {
    double bufferWidth, bufferHeight;
    double minX = bufferWidth, minY = bufferHeight, maxX = 0, maxY = 0;

    /// Half the size of the upright rectangle around a dab.
    static Extent extentOf(const Dab& dab) {
        const Extent extent{dab.halfSize, dab.halfSize * dab.roundness};
        return dab.radian != 0 ? turned(extent, dab.radian) : extent;
    }

    /// False for a dab of which no pixel lies on the buffer.
    bool grow(const Dab& dab) {
        const Extent extent = extentOf(dab);
        const double left = dab.x - extent.width - 1, right = dab.x + extent.width + 1;
        const double top = dab.y - extent.height - 1, bottom = dab.y + extent.height + 1;
        minX = (std::min)(minX, left);
        minY = (std::min)(minY, top);
        maxX = (std::max)(maxX, right);
        maxY = (std::max)(maxY, bottom);
        return !(right <= 0 || bottom <= 0 || left >= bufferWidth || top >= bufferHeight);
    }

    /// The part of it that lies on the buffer; sizes are 0 where none does.
    struct Part {
        double x, y, width, height;
    };
    Part onBuffer() const {
        const double x = (std::max)(0.0, minX);
        const double y = (std::max)(0.0, minY);
        return {x, y, (std::max)(0.0, (std::min)(maxX, bufferWidth) - x),
                (std::max)(0.0, (std::min)(maxY, bufferHeight) - y)};
    }
    /// The same in whole pixels.
    Rect pixelsOnBuffer() const {
        const Part part = onBuffer();
        return Rect::covering(part.x, part.y, part.x + part.width, part.y + part.height);
    }
};

}  // namespace dabcanvas
