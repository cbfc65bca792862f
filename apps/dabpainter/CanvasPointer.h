// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QEvent>
#include <QObject>
#include <QPointF>

#include "BrushModel.h"
#include "Canvas/QDDrawViewDelegate.h"
#include "History/StepPicture.h"

class QKeyEvent;
class QMouseEvent;
class QTabletEvent;
class QTouchEvent;

namespace dabcanvas::dabpainter {

class BrushCursor;
class CanvasViewport;

// What the pointer does besides painting, which the view does itself: panning by the space bar, picking colours, the
// dab of a plain click and the pen's eraser. Watches the events of the viewport, of its view and of the
// keyboard.
class CanvasPointer : public QObject, public QDDrawViewDelegate {
    Q_OBJECT

public:
    CanvasPointer(CanvasViewport& viewport, BrushCursor& cursor, BrushModel& model);

    // To be called with every new view, which paints for this delegate.
    void watchView();
    bool isPicking() const { return _picking; }
    void setPicking(bool picking);
    // No stroke is in progress: the canvas may be replaced, zoomed or saved.
    bool isIdle() const;

    bool eventFilter(QObject* watched, QEvent* event) override;
    void drawViewDidDrawBegin(QDDrawCanvas& canvas, QPointF) override;
    void drawViewDidDrawMove(QDDrawCanvas&, QPointF bufferPoint) override;
    void drawViewDidDrawEnd(QDDrawCanvas&, QPointF) override;
    void drawViewDidUpdateUndoStatus(QDDrawCanvas&, bool canUndo) override { emit canUndoChanged(canUndo); }
    void drawViewDidUpdateRedoStatus(QDDrawCanvas&, bool canRedo) override { emit canRedoChanged(canRedo); }

signals:
    void moved(QPointF bufferPoint);
    void left();
    void pressureChanged(float pressure);  // -1: the device gives none
    void strokeEnded();
    void noShapeFound();  // a stroke that was to be one is gone
    void canUndoChanged(bool canUndo);
    void canRedoChanged(bool canRedo);
    void picked(const QColor& color);
    void pickingChanged(bool picking);

private:
    bool filterKey(QKeyEvent& event);
    bool filterMouse(QMouseEvent& event, QPointF at);
    bool filterTablet(QTabletEvent& event, QPointF at);
    void filterTouch(const QTouchEvent& event);
    void pickAt(QPointF at);
    void pressed(QPointF at);
    void released();
    void leaveDab(QPointF at);
    void pointTo(QPointF at);
    void chooseCursor();

    CanvasViewport& _viewport;
    BrushCursor& _cursor;
    BrushModel& _model;

    enum class Shown { none, grab, hand, cross, dot };
    Shown _shown = Shown::none;
    bool _spaceHeld = false;
    bool _panning = false;
    QPointF _panFrom;
    bool _picking = false;
    bool _pickPressed = false;

    // Of the pointer that is down
    bool _down = false, _marked = false, _manyFingers = false;
    QPointF _downAt;  // buffer pixels
    float _downPressure = 1;
    dabcanvas::StepPicture _recordedBefore;  // of a stroke that is to be a shape
};

}  // namespace dabcanvas::dabpainter
