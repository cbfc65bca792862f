// SPDX-License-Identifier: MIT
// The pointer's events and state, handed on to the gate.
#include "Canvas/QDDrawCanvasParts.h"

using namespace dabcanvas;

QPointF QDDrawCanvas::localPointWithTouch(const QDDrawTouch& touch) const {
    return touch.locationInWindow - displayFrame().topLeft();
}

bool QDDrawCanvas::beginWithTouch(const QDDrawTouch& touch) {
    return _inside->parts->pointer.begin(_inside->host.pointOf(touch), touch.pressure, touch.altitude,
                                         touch.time);
}

#define POINTER_EVENT(name, step)                                                                  \
    void QDDrawCanvas::name(const QDDrawTouch& touch) {                                            \
        _inside->parts->pointer.step(_inside->host.pointOf(touch), touch.pressure, touch.altitude, \
                                     touch.time);                                                  \
    }
POINTER_EVENT(moveWithTouch, move)
POINTER_EVENT(endWithTouch, end)
POINTER_EVENT(cancelWithTouch, cancel)
POINTER_EVENT(touchesBeganWithEvent, touchBegan)
POINTER_EVENT(touchesMovedWithEvent, touchMoved)
POINTER_EVENT(touchesEndedWithEvent, touchEnded)
POINTER_EVENT(touchesCancelledWithEvent, touchCancelled)
POINTER_EVENT(mouseDown, mouseDown)
POINTER_EVENT(mouseDragged, mouseDragged)
POINTER_EVENT(mouseUp, mouseUp)
#undef POINTER_EVENT

void QDDrawCanvas::endPointerStroke() {
    _inside->parts->pointer.abandon(false);
}

void QDDrawCanvas::withdrawPointerStroke() {
    _inside->parts->pointer.abandon(true);
}

// ---- Sets of touches: any one of them counts

void QDDrawCanvas::beginWithTouches(const QList<QDDrawTouch>& touches) {
    if (!touches.isEmpty()) {
        beginWithTouch(touches.first());
    }
}

void QDDrawCanvas::moveWithTouches(const QList<QDDrawTouch>& touches) {
    if (!touches.isEmpty()) {
        moveWithTouch(touches.first());
    }
}

void QDDrawCanvas::endWithTouches(const QList<QDDrawTouch>& touches) {
    if (!touches.isEmpty()) {
        endWithTouch(touches.first());
    }
}

void QDDrawCanvas::cancelWithTouches(const QList<QDDrawTouch>& touches) {
    if (!touches.isEmpty()) {
        cancelWithTouch(touches.first());
    }
}

// ---- State of the pointer's stroke

#define POINTER_STATE(type, name, setName)    \
    type QDDrawCanvas::name() const {         \
        return _inside->parts->pointer.name;  \
    }                                         \
    void QDDrawCanvas::setName(type value) {  \
        _inside->parts->pointer.name = value; \
    }
POINTER_STATE(bool, adjustCancelLine, setAdjustCancelLine)
POINTER_STATE(bool, usesPenTilt, setUsesPenTilt)
POINTER_STATE(bool, lineFinish, setLineFinish)
POINTER_STATE(bool, lineMove, setLineMove)
POINTER_STATE(std::uint64_t, moveCount, setMoveCount)
POINTER_STATE(QPointF, lastPoint, setLastPoint)
POINTER_STATE(bool, canAddPoint, setCanAddPoint)
POINTER_STATE(bool, normalMoing, setNormalMoing)
POINTER_STATE(bool, digitPenMoving, setDigitPenMoving)
#undef POINTER_STATE

const PointerOptions& QDDrawCanvas::pointerOptions() const {
    return _inside->parts->pointer.options;
}

void QDDrawCanvas::setPointerOptions(const PointerOptions& options) {
    _inside->parts->pointer.options = options;
}

bool QDDrawCanvas::isLining() const {
    return _inside->parts->pointer.isLining();
}
