// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QSize>

namespace dabcanvas::dabpainter {

// What a canvas is to begin with.
struct CanvasPlan {
    QSize size{1600, 1000};         // pixels
    QColor background = Qt::white;  // transparent: nothing
    bool paintsApart = false;       // on a layer of its own, above an opaque background
};

}  // namespace dabcanvas::dabpainter
