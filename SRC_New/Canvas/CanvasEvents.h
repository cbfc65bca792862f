// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRect>

#include "Maths/Export.h"

namespace dabcanvas {

/// What becomes of a canvas, for the class that displays it, whatever delegate a host has set: QDDrawView makes signals
/// of it. A stroke is told of in the course of it, after the delegate but for its begin; all else when the call that
/// caused it is done, once. Each may destroy the canvas.
class DABCANVAS_CANVAS_API CanvasEvents {
protected:
    CanvasEvents() = default;
    ~CanvasEvents() = default;
    Q_DISABLE_COPY_MOVE(CanvasEvents)

    /// Buffer pixels. After each begin comes one end: it stays on the canvas, or nothing of it does.
    virtual void strokeDidBegin(QPointF) {}
    virtual void strokeDidMove(QPointF) {}
    virtual void strokeDidEnd(QPointF) {}
    virtual void strokeWasWithdrawn() {}

    virtual void canvasSizeDidChange() {}
    virtual void pictureDidChange(const QRect& /*bufferPixels*/) {}
    virtual void canUndoDidChange(bool) {}
    virtual void canRedoDidChange(bool) {}
    virtual void modifiedDidChange(bool) {}
    virtual void brushDidChange() {}
    virtual void contextWasLost() {}
};

}  // namespace dabcanvas
