// SPDX-License-Identifier: MIT
#include "Canvas/ShapeSketch.h"

#include "Recognition/Unitily.h"

namespace dabcanvas {
namespace {

constexpr std::size_t kTooFewPoints = 4;

}  // namespace

ShapeRecord scaled(ShapeRecord shape, double factor) {
    for (ShapePoint& corner : shape.corners) {
        corner = {corner.x * factor, corner.y * factor};
    }
    shape.centre = {shape.centre.x * factor, shape.centre.y * factor};
    shape.a *= factor;
    shape.b *= factor;
    return shape;
}

void ShapeSketch::begin(QPointF place) {
    if (!_record.isGiven()) {
        _record.refresh(kRecognitionLine);
    }
    // The points are kept in buffer pixels: what they are divided by may change before they are recognised.
    _points.assign(1, {place.x(), place.y()});
    _isOn = true;
}

Rect ShapeSketch::settle() {
    Rect area;
    _layers.withdraw([&](const Rect& drawn) {
        const auto restored = _record.restore(drawn);
        area = restored.value_or(drawn);
        return restored.has_value();
    });
    return area;
}

ShapeRecord ShapeSketch::end(QPointF place, double unit) {
    _isOn = false;
    std::vector<ShapePoint> points;
    points.swap(_points);
    points.push_back({place.x(), place.y()});
    if (points.size() <= kTooFewPoints) {
        return {};
    }
    for (ShapePoint& at : points) {
        at = {at.x / unit, at.y / unit};
    }
    return Unitily::recogniseWithPoints(points);
}

}  // namespace dabcanvas
