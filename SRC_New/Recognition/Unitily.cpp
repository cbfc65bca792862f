// SPDX-License-Identifier: MIT
#include "Recognition/Unitily.h"

#include "Recognition/ShapeFeatures.h"
#include "Recognition/ShapeMaking.h"
#include "Recognition/ShapeModel.h"
#include "Recognition/StrokePath.h"

#include <cstddef>

using namespace dabcanvas;

namespace {
constexpr std::size_t kFewestPoints = 5;
}

ShapeRecord Unitily::recogniseWithPoints(std::span<const ShapePoint> points) {
    if (points.size() < kFewestPoints) {
        return {};
    }
    const StrokePath stroke = StrokePath::of(points);
    if (stroke.isEmpty()) {
        return {};
    }
    const ShapeFits fits(stroke);
    const ShapeVerdict verdict = judgeShape(ShapeFeatures(stroke, fits));
    ShapeRecord shape = makeShape(verdict.kind, verdict.legs, stroke, fits);
    // A kind that no outline could be made of is nothing, and unsure.
    shape.confidence = shape.kind == verdict.kind ? verdict.confidence : 0;
    return shape;
}
