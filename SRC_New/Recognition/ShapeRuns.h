// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"
#include "Recognition/ShapeRecord.h"

namespace dabcanvas {
inline constexpr std::int64_t kMostShapePoints = std::int64_t{1} << 22;
}  // namespace dabcanvas

/// Dabs in the order in which they are drawn, the caller's to free().
struct ShapeRun {
    LPPoint* points = nullptr;
    std::uint64_t count = 0;
};

/// The outlines of shapes as dense runs of dabs, about one a unit of the
/// outline's length, all of one size and with full pressure, altitude and speed.
///
/// Units     the points' own; angles are radians. With y down, a growing rotation turns counter-clockwise.
/// Owns      every array comes from malloc and is the caller's to free().
/// Errors    (null, 0), or null, for numbers that are not finite, for outlines of more than kMostShapePoints
///           points, and without the memory.
/// Thread    any.
class DABCANVAS_SHAPES_API LineProcess {
public:
    /// A polygon or polyline through the corners. type 2 closes it, and begins with the side that does; 3
    /// leaves it open; any other draws the separate lines from corner 0 to 1, 2 to 3 and so on. Two corners
    /// are always an open line. Deliberate: a line's last point is left to the next line; so an open outline
    /// lacks its very last. (null, 0) for fewer than two corners.
    static ShapeRun processLineWithType(int type, const ShapePoint* points, float pointSize,
                                        std::int64_t count);

    /// A whole ellipse; width and height are its half axes. (null, 0) unless both, and pointSize, are above 0.
    /// Deliberate: an unrotated ellipse, of a radian of 0.001 at most, is refused as well.
    static ShapeRun processEllipsesWithCenter(ShapePoint center, float width, float height, float radian,
                                              float pointSize);

    /// The part of it from startAngle to endAngle, or past a whole turn to there where endAngle is less.
    /// (null, 0) for equal angles too. Deliberate: how densely it is sampled goes by endAngle alone, not by
    /// the difference.
    static ShapeRun processArcWithCenter(ShapePoint center, float width, float height, float radian,
                                         float startAngle, float endAngle, float pointSize);
};

/// n points along an elliptical arc of half axes a and b, the end left out; an end below the start is a turn
/// later, and what is a turn or more is the whole ellipse from angle 0. With nothing between start and end the
/// points are (0, 0). Null for an n below 1.
DABCANVAS_SHAPES_API ShapePoint* CreateArc(int n, float cx, float cy, float a, float b, float rotation,
                                           float start, float end);
/// The whole ellipse.
DABCANVAS_SHAPES_API ShapePoint* CreateEllipses(int n, float cx, float cy, float a, float b, float rotation);
