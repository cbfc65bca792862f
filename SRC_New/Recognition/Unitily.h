// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "Maths/Export.h"
#include "Recognition/ShapeRecord.h"

/// Recognises the shape that a freehand stroke was meant as.
class DABCANVAS_SHAPES_API Unitily {
public:
    /// The shape of one stroke, tidied up: nearly level lines become level, nearly right angles right, and
    /// so on; it stays within a few percent of what was drawn.
    ///   points   in the order drawn, however spaced, in any unit (y down only matters for `rotation`). Points
    ///            that are not finite are left out. The order tells direction; times are not needed.
    /// Nothing is recognised in fewer than 5 points, in points on one spot, or in what is no shape.
    /// Takes time and memory linear in the number of points; any thread.
    static ShapeRecord recogniseWithPoints(std::span<const ShapePoint> points);
};
