// SPDX-License-Identifier: MIT
// From pointer events to the stages of a stroke: what begins one, what withdraws a short one, and which of two
// devices is heard.
#include <QDateTime>
#include <QLineF>
#include <QLoggingCategory>
#include <utility>

#include "QDEAGLView/QDDrawCanvasScopes.h"

namespace {

// Every mouse and pen stroke ends through the cancel path, so its line is for those who ask for it.
Q_LOGGING_CATEGORY(lcPointer, "dabcanvas.pointer", QtWarningMsg)

constexpr std::uint64_t kShortStroke = 9;   // moves; a stroke of more is a line
constexpr double kRecognitionPause = 1.0;   // seconds between the end of a recognised stroke and the next
constexpr double kSlidWithoutMoving = 1.0;  // view points

double now() {
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000;
}

}  // namespace

// The pointer's stroke ends, in callbacks that may end it once more or destroy the canvas.
struct QDDrawCanvas::PointerEnding {
    explicit PointerEnding(QDDrawCanvas& canvas)
        : alive(canvas), _canvas(canvas), _before(std::exchange(canvas._pointerEnds, true)) {}
    ~PointerEnding() {
        if (alive) {
            _canvas._pointerEnds = _before;
        }
    }
    PointerEnding(const PointerEnding&) = delete;
    PointerEnding& operator=(const PointerEnding&) = delete;

    const Alive alive;

private:
    QDDrawCanvas& _canvas;
    bool _before;
};

QPointF QDDrawCanvas::localPointWithTouch(const QDDrawTouch& touch) const {
    return touch.locationInWindow - displayFrame().topLeft();
}

// ---- One pointer's stroke

bool QDDrawCanvas::beginWithTouch(const QDDrawTouch& touch) {
    if (shownFrame().isEmpty() || isContextLost()) {
        return false;  // nothing is shown that a point could lie on, or nothing can be drawn
    }
    if (_brush.enableRecogition) {
        const double passed = now() - _lastProcessTime;
        if (_isProcess && passed >= 0 && passed < kRecognitionPause) {
            return false;
        }
        _isProcess = false;
        _canAddPoint = true;
    }
    const QPointF point = pointOf(touch);
    _lineFinish = false;
    _lineMove = false;
    _moveCount = 0;
    _lastPoint = point;
    drawingWithBeginPoint(point, touch.pressure, -1.0f);
    return true;
}

void QDDrawCanvas::moveWithTouch(const QDDrawTouch& touch) {
    if (_brush.enableRecogition && !_canAddPoint) {
        return;
    }
    const QPointF point = pointOf(touch);
    _lineMove = true;
    ++_moveCount;
    _lastPoint = point;
    drawingWithMoveToPoint(point, touch.pressure, -1.0f);
}

void QDDrawCanvas::endWithTouch(const QDDrawTouch& touch) {
    if (_brush.enableRecogition) {
        if (!_canAddPoint) {
            return;
        }
        startProcess();
    }
    const PointerEnding ending(*this);
    QPointF point = pointOf(touch);
    if (!_lineMove && QLineF(_lastPoint, point).length() >= kSlidWithoutMoving) {
        // Deliberate: a press that slid without any move is discarded, and only the callbacks tell of its end.
        if (!announce(&QDDrawViewDelegate::drawViewShouldDrawEnd, &QDDrawViewDelegate::drawViewWillDrawEnd,
                      point) ||
            !tell(&QDDrawViewDelegate::drawViewDidDrawEnd, point)) {
            return;
        }
        dropStroke();
        if (!ending.alive) {
            return;
        }
        _lineFinish = true;
        _isProcess = false;
        return;
    }
    _lineMove = false;
    drawingWithEndPoint(point, touch.pressure, -1.0f);
    if (!ending.alive) {
        return;
    }
    _lineFinish = true;
    _moveCount = 0;
    if (_brush.enableRecogition) {
        _isProcess = false;
    }
}

void QDDrawCanvas::cancelWithTouch(const QDDrawTouch& touch) {
    qCDebug(lcPointer, "cancelWithTouch:");
    cancelAt(pointOf(touch), touch.pressure, false);
}

// withdraw: whatever its length.
void QDDrawCanvas::cancelAt(QPointF point, float pressure, bool withdraw) {
    if (_brush.enableRecogition && !_canAddPoint) {
        return;
    }
    const PointerEnding ending(*this);
    const bool moved = !_lineFinish && _lineMove;
    const bool tooShort = _moveCount <= kShortStroke && _adjustCancelLine;
    if (moved && (withdraw || tooShort)) {
        if (!announce(&QDDrawViewDelegate::drawViewShouldDrawEnd, &QDDrawViewDelegate::drawViewWillDrawEnd,
                      point)) {
            return;
        }
        startProcess();
        withdrawStroke(bufferPoint(point));
        if (!ending.alive) {
            return;
        }
        _isProcess = false;
        if (!tell(&QDDrawViewDelegate::drawViewDidDrawEnd, point)) {
            return;
        }
    } else if (moved) {
        if (_brush.enableRecogition) {
            startProcess();
        }
        _lineMove = false;
        drawingWithEndPoint(point, pressure, -1.0f);
        if (!ending.alive) {
            return;
        }
        _isProcess = false;
    } else {
        dropStroke();  // a click leaves nothing
        if (!ending.alive) {
            return;
        }
    }
    _lineFinish = true;
    _lineMove = false;
    _moveCount = 0;
}

// No more points until the next begin.
void QDDrawCanvas::startProcess() {
    _canAddPoint = false;
    _isProcess = true;
    _lastProcessTime = now();
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

// ---- Touch events, refused while a mouse or pen draws

void QDDrawCanvas::touchesBeganWithEvent(const QDDrawTouch& event) {
    _normalMoing = !_digitPenMoving;
    if (_normalMoing && !beginWithTouch(event)) {
        _normalMoing = false;
    }
}

void QDDrawCanvas::touchesMovedWithEvent(const QDDrawTouch& event) {
    if (!_digitPenMoving && _normalMoing) {
        moveWithTouch(event);
    } else {
        _normalMoing = false;
    }
}

void QDDrawCanvas::touchesEndedWithEvent(const QDDrawTouch& event) {
    if (!_digitPenMoving && _normalMoing) {
        const Alive alive(*this);
        endWithTouch(event);
        if (!alive) {
            return;
        }
    }
    _normalMoing = false;
}

void QDDrawCanvas::touchesCancelledWithEvent(const QDDrawTouch& event) {
    if (!_digitPenMoving && _normalMoing) {
        const Alive alive(*this);
        cancelWithTouch(event);
        if (!alive) {
            return;
        }
    }
    _normalMoing = false;
}

// ---- Mouse and pen events, refused while a finger draws

void QDDrawCanvas::mouseDown(const QDDrawTouch& event) {
    if (!_normalMoing) {
        _digitPenMoving = true;
        if (!beginWithTouch(event)) {
            _digitPenMoving = false;
        }
    }
}

void QDDrawCanvas::mouseDragged(const QDDrawTouch& event) {
    if (!_normalMoing && _digitPenMoving) {
        moveWithTouch(event);
    }
}

// Deliberate: the cancel path, not the end path. A stroke long enough is finished there all the same.
void QDDrawCanvas::mouseUp(const QDDrawTouch& event) {
    if (!_normalMoing && _digitPenMoving) {
        const Alive alive(*this);
        cancelWithTouch(event);
        if (!alive) {
            return;
        }
    }
    _digitPenMoving = false;
}

// ---- What the display does to a pointer's stroke

void QDDrawCanvas::endPointerStroke() {
    leavePointerStroke(false);
}

void QDDrawCanvas::withdrawPointerStroke() {
    leavePointerStroke(true);
}

void QDDrawCanvas::leavePointerStroke(bool withdraw) {
    if (_pointerEnds) {
        return;  // called back while it ends
    }
    const Alive alive(*this);
    if (_normalMoing || _digitPenMoving) {
        cancelAt(_lastPoint, _lastPressure, withdraw);
    }
    if (!alive) {
        return;
    }
    _normalMoing = _digitPenMoving = false;
}
