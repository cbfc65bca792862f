// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QSizeF>
#include <algorithm>

#include "ESRender/Dab.h"
#include "Maths/Geometry.h"

namespace dabcanvas {

// The area that dabs were drawn into so far, with a margin of one pixel; buffer pixels, top-left origin.
struct DabBounds {
    double minX, minY, maxX = 0, maxY = 0;

    explicit DabBounds(const QSizeF& buffer) : minX(buffer.width()), minY(buffer.height()) {}

    // Half the size of the upright rectangle around a dab.
    static QSizeF extentOf(const Dab& dab) {
        const QSizeF extent(dab.halfSize, dab.halfSize * dab.roundness);
        return dab.radian != 0 ? CGSizeApplyRotation(extent, dab.radian) : extent;
    }

    void grow(const Dab& dab) {
        const QSizeF extent = extentOf(dab);
        minX = std::min(minX, dab.x - extent.width() - 1);
        minY = std::min(minY, dab.y - extent.height() - 1);
        maxX = std::max(maxX, dab.x + extent.width() + 1);
        maxY = std::max(maxY, dab.y + extent.height() + 1);
    }

    QRectF cutTo(const QSizeF& buffer) const {
        const double x = std::max(0.0, minX);
        const double y = std::max(0.0, minY);
        return {x, y, std::max(0.0, std::min(maxX, buffer.width()) - x),
                std::max(0.0, std::min(maxY, buffer.height()) - y)};
    }
};

}  // namespace dabcanvas
