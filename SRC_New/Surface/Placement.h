// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "Maths/Export.h"
#include "Maths/Rect.h"

namespace dabcanvas {

/// A place in buffer pixels, between which it may lie.
struct Point {
    double x = 0, y = 0;
};

/// Where a placed image lies on the buffer and how its pixels are to be read there. Plain geometry.
///
/// Units    buffer pixels, top-left origin; angles in radians, counter-clockwise as seen on screen.
class DABCANVAS_DABS_API Placement {
public:
    /// A turn that is a quarter turn but for rounding is taken as one.
    Placement(Point centre, double width, double height, double radian);

    double width() const { return _width; }
    double height() const { return _height; }

    /// Every edge runs between two pixels: no pixel is covered in part.
    bool isOnPixelEdges() const { return _onPixelEdges; }
    /// By any angle, of which the others tell cosine and sine.
    bool isTurned() const { return _cosine != 1; }
    double cosine() const { return _cosine; }
    double sine() const { return _sine; }
    /// The pixels that are covered, at least in part; a margin of one where edges cut through them.
    Rect touched() const;
    /// The corners as offsets from the centre that count upwards, from the top left clockwise (of a source
    /// that is mirrored by nothing), `rim` pixels beyond the edges.
    std::array<Point, 4> corners(double rim, bool flipX, bool flipY) const;

    /// How a picture of this size is read so that it neither blurs nor flickers.
    enum class Reading {
        texelOnPixel,  ///< as it is
        interpolated,  ///< enlarged, turned or between pixels
        averaged,      ///< reduced
    };
    Reading readingOf(const Size& texels) const;
    /// What a picture of this size is averaged to first: no more texels on a side than there are pixels for them.
    Size reducedSize(const Size& texels) const;

private:
    Point _centre;
    double _width, _height;
    double _cosine, _sine;
    bool _onPixelEdges;
};

}  // namespace dabcanvas
