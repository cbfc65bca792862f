// SPDX-License-Identifier: MIT
#include "Recognition/ShapeRecord.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

std::string_view nameOfShapeKind(ShapeKind kind) {
    static constexpr std::array<std::string_view, 9> kNames = {
        "none", "line", "foldline", "triangle", "rectangle", "parallelogram", "ellipse", "arc", "arrow"};
    static_assert(kNames.size() == static_cast<std::size_t>(ShapeKind::arrow) + 1);
    const auto index = static_cast<std::size_t>(kind);
    return index < kNames.size() ? kNames[index] : "unknown shape";
}

namespace {
std::vector<ShapePoint> roundOutline(const ShapeRecord& shape, double step) {
    constexpr double kMostPoints = 100000;
    const double start = shape.kind == ShapeKind::ellipse ? 0 : shape.startAngle;
    const double end = shape.kind == ShapeKind::ellipse ? 2 * 3.141592653589793 : shape.endAngle;
    const double length = std::max(shape.a, shape.b) * (end - start);
    if (!std::isfinite(length)) {
        return {};
    }
    const double wanted = std::ceil(length / step);
    const int pieces = wanted > 16 ? static_cast<int>(std::min(wanted, kMostPoints)) : 16;
    const double sr = std::sin(shape.rotation);
    const double cr = std::cos(shape.rotation);
    std::vector<ShapePoint> outline;
    outline.reserve(static_cast<std::size_t>(pieces) + 1);
    for (int i = 0; i <= pieces; ++i) {
        const double t = start + (end - start) * i / pieces;
        const double x = shape.a * std::cos(t);
        const double y = shape.b * std::sin(t);
        outline.push_back({shape.centre.x + x * cr + y * sr, shape.centre.y - x * sr + y * cr});
    }
    return outline;
}
}  // namespace

std::vector<ShapePoint> outlineOfShape(const ShapeRecord& shape, double step) {
    if (shape.isRound()) {
        return roundOutline(shape, step);
    }
    std::vector<ShapePoint> outline = shape.corners;
    if (shape.kind == ShapeKind::arrow && outline.size() == 4) {
        outline.insert(outline.begin() + 3, outline[1]);
    } else if (shape.isClosed() && !outline.empty()) {
        outline.push_back(outline.front());
    }
    return outline;
}
