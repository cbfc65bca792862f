// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>

class QDDrawCanvas;

namespace dabcanvas::dabpainter {

// Puts a picture into an area of the active layer, in buffer pixels, that looked like `before`; all of them are premultiplied
// RGBA and as large. A pixel that is the same in both stays as it is, also where the canvas has more than their 8 bits a
// channel. False where the canvas takes nothing.
bool putChanged(QDDrawCanvas& canvas, const QRect& area, const QImage& before, const QImage& after);

}  // namespace dabcanvas::dabpainter
