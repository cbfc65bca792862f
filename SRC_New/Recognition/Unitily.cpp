// SPDX-License-Identifier: MIT
#include "Recognition/Unitily.h"

#include <cmath>

ShapeRecord Unitily::recogniseWithPoints(std::span<const ShapePoint> points) {
    ShapeRecord shape;
    if (points.size() < 5) {
        return shape;
    }
    // For a start: a line between the ends, when every point is near it.
    const ShapePoint from = points.front();
    const ShapePoint to = points.back();
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double length = std::hypot(dx, dy);
    if (!(length > 0)) {
        return shape;
    }
    for (const ShapePoint& point : points) {
        if (!(std::abs((point.x - from.x) * dy - (point.y - from.y) * dx) < 0.05 * length * length)) {
            return shape;
        }
    }
    shape.kind = ShapeKind::line;
    shape.corners = {from, to};
    shape.confidence = 1;
    return shape;
}
