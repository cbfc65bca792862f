// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <memory>

#include "Selection/FloatingPicture.h"

class QDDrawCanvas;

namespace dabcanvas::dabpainter {

// A picture over the active layer of a canvas: lifted out of it, or from elsewhere. The canvas itself stays as it was until
// the picture is put down, as one step; who gives it up has nothing to put back, and a process that dies loses nothing.
//
// Lifting  what an area covers in part goes in part, so that what is lifted and what stays add up to what was. What stays
//          is paper where the layer has one; a layer that locks its alpha keeps its colours otherwise.
// Life     of no use once the canvas is gone, or another layer is active.
class LayerFloat {
public:
    // Null where the canvas cannot be read, and where nothing is in that area. Paper: invalid for none.
    static std::unique_ptr<LayerFloat> lifted(QDDrawCanvas& canvas, const QPainterPath& area,
                                              const QColor& paper);
    static std::unique_ptr<LayerFloat> placed(QDDrawCanvas& canvas, const QImage& picture, QPoint corner);

    FloatingPicture& picture() { return _picture; }
    const FloatingPicture& picture() const { return _picture; }
    bool isLifted() const { return !_hole.isNull(); }
    bool isCopy() const { return _keeps; }  // the layer stays as it is below
    // From where it was lifted to where it is.
    QTransform moved() const { return _start.toBuffer().inverted() * _picture.toBuffer(); }

    // Where the layer would be another, once it is put down.
    QRegion changes() const;
    // The layer as it would be.
    QImage layer(const QRect& area) const;
    // What it is put onto, and how.
    const QImage& below() const { return _below; }
    QPainter::CompositionMode mode() const;
    // False where the canvas takes nothing; all is as it was then.
    bool putDown();
    // Without the picture.
    bool drop();

private:
    LayerFloat(QDDrawCanvas& canvas, const FloatingPicture& picture);
    bool isUnmoved() const { return isLifted() && _picture == _start; }
    QRect whole() const { return _layer.rect(); }
    bool write();

    QDDrawCanvas& _canvas;
    FloatingPicture _picture, _start;
    bool _locksAlpha;
    bool _keeps = false;
    bool _isDropped = false;
    QImage _layer, _below;  // as it is, and without what was lifted
    QRect _hole;
};

}  // namespace dabcanvas::dabpainter
