// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

#include "Maths/Export.h"

class QDDrawCanvas;

/// What a host hears of a canvas's strokes. Every callback is optional.
///
/// They run on the thread that enters the stroke, inside the call that caused them, with the host's own GL context
/// current. A callback may draw on other canvases, change the brush, take the delegate off, open a dialogue, which ends
/// a pointer's stroke where it got to, and destroy the canvas, of which nothing more is heard then; but a view not
/// while it is hidden, resized or asked for its frame: that ends the process, with a log line. It may not enter a
/// stroke of the same canvas. A delegate is not owned.
class DABCANVAS_CANVAS_API QDDrawViewDelegate {
public:
    virtual ~QDDrawViewDelegate() = default;

    /// The should callbacks veto nothing: they are filters, and the point they return is used instead. View
    /// points.
    virtual QPointF drawViewShouldDrawBegin(QDDrawCanvas&, QPointF point) { return point; }
    virtual QPointF drawViewShouldDrawMove(QDDrawCanvas&, QPointF point) { return point; }
    virtual QPointF drawViewShouldDrawEnd(QDDrawCanvas&, QPointF point) { return point; }

    /// Deliberate: will callbacks get the point in view points, did callbacks in buffer pixels.
    virtual void drawViewWillDrawBegin(QDDrawCanvas&, QPointF) {}
    virtual void drawViewDidDrawBegin(QDDrawCanvas&, QPointF) {}
    virtual void drawViewWillDrawMove(QDDrawCanvas&, QPointF) {}
    /// Not sent for a move that lies within 1.0 buffer pixel of the last accepted one.
    virtual void drawViewDidDrawMove(QDDrawCanvas&, QPointF) {}
    /// As at the begin.
    virtual void drawViewWillDrawEnd(QDDrawCanvas&, QPointF) {}
    virtual void drawViewDidDrawEnd(QDDrawCanvas&, QPointF) {}

    /// Whether undo and redo are possible has changed. Told when the call that changed it is done.
    virtual void drawViewDidUpdateUndoStatus(QDDrawCanvas&, bool /*canUndo*/) {}
    virtual void drawViewDidUpdateRedoStatus(QDDrawCanvas&, bool /*canRedo*/) {}
    /// What the last undo() or redo() was refused for has passed: the stroke has ended.
    virtual void drawViewCanUndoAgain(QDDrawCanvas&) {}
    /// The oldest steps went, as memory and disk have no room for them; so many are left to undo.
    virtual void drawViewDidDropUndoSteps(QDDrawCanvas&, int /*dropped*/, int /*left*/) {}
    /// The driver has taken the GL context away: the canvas cannot be drawn on or read any more. Once; what only
    /// displays the canvas does not tell, the next call that draws does.
    virtual void drawViewDidLoseContext(QDDrawCanvas&) {}
};
