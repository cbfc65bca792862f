// SPDX-License-Identifier: MIT
// Where a placed image lies on the buffer and how its texture is to be read there. Plain geometry, no GL.
//
// Units    buffer pixels, top-left origin; angles in radians, counter-clockwise as seen on screen.
#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>
#include <array>

#include "LineProcess/LPTypes.h"

namespace dabcanvas {

class Placement {
public:
    // The rectangle of a dab: radius is the width, roundness times that the height. A turn that is a quarter
    // turn but for rounding is taken as one.
    Placement(const LPPoint& dab, float roundness, double radian);

    double width() const { return _width; }
    double height() const { return _height; }

    // Every edge runs between two pixels: no pixel is covered in part.
    bool isOnPixelEdges() const { return _onPixelEdges; }
    bool isTurned() const { return _cosine != 1; }
    // The pixels that are covered, at least in part; a margin of one where edges cut through them.
    QRect touched() const;
    // The corners as offsets from the centre that count upwards, from the top left clockwise (of a source
    // that is mirrored by nothing), `rim` pixels beyond the edges.
    std::array<QPointF, 4> corners(double rim, bool flipX, bool flipY) const;

    // How a texture of these many texels is read so that it neither blurs nor flickers.
    enum class Reading {
        texelOnPixel,  // as it is
        interpolated,  // enlarged, turned or between pixels
        averaged,      // reduced: mip levels
    };
    Reading readingOf(const QSize& texels) const;

private:
    QPointF _centre;
    double _width, _height;
    double _cosine, _sine;
    bool _onPixelEdges;
};

}  // namespace dabcanvas
