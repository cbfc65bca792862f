// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointF>
#include <optional>

#include "Brush/BrushModel.h"
#include "Canvas/PointerOptions.h"
#include "History/StepPicture.h"
#include "Viewport/FingerPick.h"

class QDDrawView;
class QKeyEvent;
class QMouseEvent;
class QTabletEvent;
class QTouchEvent;

namespace dabcanvas::dabpainter {

class BrushCursor;
class CanvasViewport;
class ColorPicker;

// What the pointer does besides painting, which the view does itself: panning by the space bar, the
// dab of a plain click and the pen's eraser. Watches the events of the viewport, of its view and of the
// keyboard.
class CanvasPointer : public QObject {
    Q_OBJECT

public:
    CanvasPointer(CanvasViewport& viewport, BrushCursor& cursor, BrushModel& model);

    // To be called with every new view.
    void watchView();
    // Where it is over the canvas, or else the middle; in the viewport's points.
    QPointF place() const;
    // These hold for every view.
    void setTouch(TouchPolicy policy);
    void setPressure(const PressureCurve& curve);
    void setStabiliser(const StabiliserOptions& options);
    // Off: nothing of the pointer's becomes a stroke, and fingers only move the canvas.
    void setPaints(bool paints);
    bool fingersPaint() const { return _options.touch == TouchPolicy::fingersPaint; }
    ColorPicker& picker() { return *_picker; }
    // The left button is a selection's: no brush is shown, and fingers move the canvas unless they always paint.
    void setSelecting(bool selecting);
    bool isFree() const;  // it neither pans nor picks
    bool isIdle() const;  // no stroke is in progress
    // It ends where it got to. Before the canvas is saved, replaced, zoomed or anything else: nothing waits for a device
    // that may never be heard of again.
    void endStroke();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void moved(QPointF bufferPoint);
    void left();
    void pressureChanged(float pressure);  // -1: the device gives none
    void tapped(QPointF viewPoint);        // one finger that may paint, and hardly moved
    void noShapeFound();                   // a stroke that was to be one is gone

private:
    bool filterKey(QKeyEvent& event);
    bool filterMouse(QMouseEvent& event, QPointF at);
    bool filterTablet(QTabletEvent& event, QPointF at);
    bool filterTouch(QTouchEvent& event);
    void tellOptions();
    bool mayFingerPaint() const;
    void watchTap(const QTouchEvent& event);
    void pressed(bool isEraser);
    bool deliverRelease(QEvent& event);
    void leaveDab(QPointF bufferPoint);
    void strokeEnds();
    void judgeShape(const dabcanvas::StepPicture& before);
    void pointTo(QPointF at);
    void showPointer();
    void chooseCursor();

    CanvasViewport& _viewport;
    BrushCursor& _cursor;
    BrushModel& _model;
    ColorPicker* _picker;
    FingerPick _finger;

    enum class Shown { none, grab, hand, cross, dot };
    Shown _shown = Shown::none;
    bool _spaceHeld = false;
    bool _panning = false;
    QPointF _panFrom;
    std::optional<QPointF> _place;
    PointerOptions _options;
    bool _paints = true;
    bool _selecting = false;

    // Of the stroke in progress: none has begun, or nothing was drawn yet
    enum class Stroke { none, begun, drawn };
    Stroke _stroke = Stroke::none;
    QPointF _beganAt;  // buffer pixels
    bool _manyFingers = false, _penSeen = false;
    std::optional<QPointF> _tapFrom;
    float _downPressure = 1;
    dabcanvas::StepPicture _recordedBefore;  // of a stroke that is to be a shape
};

}  // namespace dabcanvas::dabpainter
