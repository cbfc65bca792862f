// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>
#include <memory>
#include <optional>

#include "Selection/FloatingPicture.h"

class QDDrawCanvas;

namespace dabcanvas::dabpainter {

class LayerFloat;

// What the layers of a canvas look like together while a picture floats over the active one. The canvas is not touched.
//
// Draft    the same at a smaller scale, quick enough to follow a pointer: of layers that were made smaller once, with the
//          picture on whole pixels of that scale.
// Life     no longer than canvas and float.
class FloatLook {
public:
    FloatLook(QDDrawCanvas& canvas, const LayerFloat& floating);
    ~FloatLook();

    // Of an area in the canvas's pixels.
    QImage look(const QRect& area) const;
    // Of one in pixels of this scale, below 1; null where it cannot be had.
    QImage draft(double scale, const QRect& area);
    QSize draftSize(double scale) const;

private:
    struct Draft;
    bool makeDraft(double scale);
    const QImage& smallPicture(Draft& draft) const;

    QDDrawCanvas& _canvas;
    const LayerFloat& _float;
    std::unique_ptr<Draft> _draft;  // of the last scale
};

}  // namespace dabcanvas::dabpainter
