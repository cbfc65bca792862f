// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPoint>

class QDDrawCanvas;

namespace dabcanvas::dabpainter {

enum class FillOutcome { filled, nothingToFill, layerHidden, failed };

// Floods the active layer with an opaque colour from this buffer pixel: as far as what is seen, of all layers together, hangs
// together there and differs by the tolerance at most, 0 to 255. One step of the history, when the canvas marks steps. A layer
// that locks its alpha changes its colours alone. Within what is selected, in buffer pixels; nothing selected: everywhere.
FillOutcome fillCanvas(QDDrawCanvas& canvas, QPoint at, const QColor& color, int tolerance,
                       const QPainterPath& selected = {});

}  // namespace dabcanvas::dabpainter
