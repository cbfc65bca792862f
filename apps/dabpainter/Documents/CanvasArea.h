// SPDX-License-Identifier: MIT
// Another size for a canvas: which part of it that is, and making it so.
//
// Units   buffer pixels; an area may reach beyond the canvas.
#pragma once

#include <QColor>
#include <QImage>
#include <QRect>
#include <QString>

class QDDrawCanvas;

namespace dabcanvas::dabpainter {

// What keeps its place when the size changes: a corner, the middle of an edge, or the middle.
struct Anchor {
    int column = 1, row = 1;  // 0..2, from left to right and from top to bottom
};

QRect areaOfSize(QSize now, QSize wanted, Anchor anchor);

// The least area that holds all that is seen on the paper; an invalid colour, or a transparent one, is none. Empty where
// there is nothing.
QRect drawnArea(const QImage& picture, const QColor& paper);

// As one undo step; what is added is paper on the lowest layer and transparent on the others. The fault, or nothing.
QString takeArea(QDDrawCanvas& canvas, const QRect& area, const QColor& paper);

}  // namespace dabcanvas::dabpainter
