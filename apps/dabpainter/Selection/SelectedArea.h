// SPDX-License-Identifier: MIT
// What of a canvas is selected: a path in buffer pixels, so that its outline is crisp however the canvas is shown.
#pragma once

#include <QImage>
#include <QPainterPath>
#include <QPolygonF>
#include <QRect>

namespace dabcanvas::dabpainter {

enum class AreaMode { replace, add, takeAway };

// Of whole pixels, between two places in any order.
QPainterPath rectangleArea(QPointF from, QPointF to);
// All that a closed way goes around, also where it crosses itself.
QPainterPath lassoArea(const QPolygonF& way);

// Two areas as one, cut to the canvas.
QPainterPath joinedArea(const QPainterPath& area, const QPainterPath& with, AreaMode mode, QSize canvas);

// The pixels that it touches.
QRect pixelsOf(const QPainterPath& area);
// How much of each pixel of a rectangle it covers: Format_Alpha8, 255 for all of it.
QImage coverageOf(const QPainterPath& area, const QRect& pixels);

}  // namespace dabcanvas::dabpainter
