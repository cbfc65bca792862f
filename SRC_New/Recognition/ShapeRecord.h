// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "Maths/Export.h"

/// A place, in the unit of the points that were recognised.
struct ShapePoint {
    double x = 0;
    double y = 0;

    friend bool operator==(const ShapePoint&, const ShapePoint&) = default;
};

/// What a stroke was meant as, and what of its record tells the shape.
enum class ShapeKind : std::uint8_t {
    none,
    line,           ///< corners: both ends
    foldLine,       ///< corners: an open polyline of two or more legs
    triangle,       ///< corners: 3
    rectangle,      ///< corners: 4, all angles right
    parallelogram,  ///< corners: 4, opposite sides parallel
    ellipse,        ///< centre, a, b, rotation; a whole turn
    arc,            ///< the same, from startAngle to endAngle
    arrow           ///< corners: tail, tip, one barb's end, the other's
};

/// What a recognised stroke is made into: a kind, and the numbers its outline is drawn from.
///
/// Units     those of the points that were recognised; angles are radians. With y down, as on the canvas, a
///           growing `rotation` turns a shape counter-clockwise, as CreateArc() turns its outlines.
/// Errors    nothing was recognised: kind is none, and no other member but confidence means anything.
struct ShapeRecord {
    ShapeKind kind = ShapeKind::none;
    std::vector<ShapePoint> corners;  ///< in the order drawn; a closed shape does not repeat its first

    /// Of ellipse and arc. The point at angle t is
    /// centre + (a cos t cos r + b sin t sin r, b sin t cos r - a cos t sin r), r being the rotation.
    ShapePoint centre;
    double a = 0;  ///< half axes, above 0
    double b = 0;
    double rotation = 0;    ///< from 0 to below pi
    double startAngle = 0;  ///< from 0 to below 2 pi
    double endAngle = 0;    ///< above startAngle, by a whole turn at most

    double confidence = 0;  ///< 0..1: how sure the kind is, none included

    explicit operator bool() const { return kind != ShapeKind::none; }
    /// A fold line's straight legs; 0 for every other kind.
    int legs() const { return kind == ShapeKind::foldLine ? static_cast<int>(corners.size()) - 1 : 0; }
    /// Whether its outline comes back to where it began.
    bool isClosed() const {
        return kind == ShapeKind::triangle || kind == ShapeKind::rectangle ||
               kind == ShapeKind::parallelogram || kind == ShapeKind::ellipse;
    }
    /// Whether it has a centre and half axes instead of corners.
    bool isRound() const { return kind == ShapeKind::ellipse || kind == ShapeKind::arc; }
};

/// "line", "foldline", "triangle", "rectangle", "parallelogram", "ellipse", "arc", "arrow", "none"; "unknown shape" for
/// what the enumeration has no name of.
DABCANVAS_SHAPES_API std::string_view nameOfShapeKind(ShapeKind kind);

/// The shape as one pen stroke: a closed one repeats its first point, an arrow goes back over its tip, a
/// round one has a point about every `step` of its outline, but no fewer than 17 and no more than 100,001. Empty for
/// none, and for a round one whose half axes or angles are not finite.
DABCANVAS_SHAPES_API std::vector<ShapePoint> outlineOfShape(const ShapeRecord& shape, double step = 1);
