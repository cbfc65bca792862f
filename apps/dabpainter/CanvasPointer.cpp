// SPDX-License-Identifier: MIT
#include "CanvasPointer.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QTabletEvent>
#include <QTimer>
#include <QTouchEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "BrushCursor.h"
#include "BrushPresentation.h"
#include "CanvasViewport.h"
#include "ESRender/ESImageRender.h"
#include "QDEAGLView/QDDrawView.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr float kPress = 1;  // what the view takes a device for that measures none

// The hot spot inside the brush's outline.
QCursor dotCursor() {
    QPixmap dot(11, 11);
    dot.fill(Qt::transparent);
    QPainter painter(&dot);
    painter.fillRect(3, 3, 5, 5, QColor(255, 255, 255, 200));
    painter.fillRect(4, 4, 3, 3, QColor(0, 0, 0, 220));
    painter.end();
    return QCursor(dot, 5, 5);
}

bool isTyping() {
    const QWidget* focus = QApplication::focusWidget();
    return qobject_cast<const QLineEdit*>(focus) || qobject_cast<const QAbstractSpinBox*>(focus);
}

}  // namespace

CanvasPointer::CanvasPointer(CanvasViewport& viewport, BrushCursor& cursor, BrushModel& model)
    : QObject(&viewport), _viewport(viewport), _cursor(cursor), _model(model) {
    viewport.setMouseTracking(true);
    viewport.setTabletTracking(true);
    connect(&cursor, &BrushCursor::outlineChanged, this, &CanvasPointer::chooseCursor);
    qApp->installEventFilter(this);  // the space bar counts wherever the focus is
}

void CanvasPointer::watchView() {
    QDDrawView* view = _viewport.view();
    view->setDelegate(this);
    view->setAdjustCancelLine(false);  // short strokes are meant
    view->setUsesPenTilt(true);
    view->setMouseTracking(true);
    view->setTabletTracking(true);
    _down = false;
}

bool CanvasPointer::isIdle() const {
    return !_viewport.view() || !_viewport.view()->isDrawing();
}

bool CanvasPointer::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease)
        return watched->isWidgetType() && filterKey(*static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::ApplicationDeactivate && watched == qApp) {
        _spaceHeld = _panning = false;  // nobody will tell of the key's release
        chooseCursor();
    }
    if (!_viewport.view() || watched != _viewport.view())
        return false;
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease: {
            auto& mouse = *static_cast<QMouseEvent*>(event);
            return filterMouse(mouse, mouse.position());
        }
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease: {
            auto& tablet = *static_cast<QTabletEvent*>(event);
            return filterTablet(tablet, tablet.position());
        }
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TouchCancel:
            filterTouch(*static_cast<QTouchEvent*>(event));
            return false;  // the view has to hear of every finger
        case QEvent::Wheel:
            pointTo(static_cast<QWheelEvent*>(event)->position());
            return false;
        case QEvent::Leave:
            _cursor.hideOutline();
            emit left();
            return false;
        default:
            return false;
    }
}

// ---- Keyboard

bool CanvasPointer::filterKey(QKeyEvent& event) {
    if (event.key() != Qt::Key_Space || event.modifiers() != Qt::NoModifier)
        return false;
    if (event.type() == QEvent::KeyRelease) {
        if (!_spaceHeld)
            return false;
        if (!event.isAutoRepeat()) {
            _spaceHeld = false;
            chooseCursor();
        }
        return true;
    }
    // Over the canvas the space bar is for panning; elsewhere it presses the button that has the focus.
    const bool blocked = QApplication::activeModalWidget() || QApplication::activePopupWidget() || isTyping();
    if (blocked || !(_viewport.underMouse() || _viewport.hasFocus()))
        return false;
    _spaceHeld = true;
    chooseCursor();
    return true;
}

// ---- Mouse and pen

bool CanvasPointer::filterMouse(QMouseEvent& event, QPointF at) {
    const bool isPress =
        event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
    if (isPress) {
        _viewport.setFocus(Qt::MouseFocusReason);
        const bool pans =
            event.button() == Qt::MiddleButton || (event.button() == Qt::LeftButton && _spaceHeld);
        if (pans && isIdle()) {
            _panning = true;
            _panFrom = at;
            chooseCursor();
            return true;
        }
        if (event.button() != Qt::LeftButton)
            return false;
        if (_picking) {
            _pickPressed = true;
            pickAt(at);
            return true;
        }
        _downPressure = kPress;
        pressed(at);
        return false;
    }
    if (event.type() == QEvent::MouseMove) {
        pointTo(at);
        if (_panning) {
            _viewport.pan(at - _panFrom);
            _panFrom = at;
            return true;
        }
        if (_pickPressed)
            pickAt(at);
        return _pickPressed || (event.buttons() == Qt::NoButton && isIdle());  // hovering is not for the view
    }
    if (_panning) {
        _panning = false;
        chooseCursor();
        return true;
    }
    if (_pickPressed) {
        _pickPressed = false;
        setPicking(false);
        return true;
    }
    if (event.button() == Qt::LeftButton)
        released();
    return false;
}

bool CanvasPointer::filterTablet(QTabletEvent& event, QPointF at) {
    emit pressureChanged(event.type() == QEvent::TabletRelease ? -1 : float(event.pressure()));
    // Left to the mouse event that follows a tablet event which nobody took.
    if (_spaceHeld || _panning || _picking || _pickPressed ||
        (event.type() == QEvent::TabletPress && event.button() != Qt::LeftButton)) {
        event.ignore();
        return true;
    }
    pointTo(at);
    if (event.type() == QEvent::TabletPress) {
        _viewport.setFocus(Qt::MouseFocusReason);
        if (event.pointerType() == QPointingDevice::PointerType::Eraser)
            _model.beginOverride(BrushKey::blendType, int(ESBlendTypeErase));
        _downPressure = float(event.pressure());
        pressed(at);
    } else if (event.type() == QEvent::TabletMove) {
        _downPressure = std::max(_downPressure, float(event.pressure()));
    } else {
        released();
    }
    return false;
}

void CanvasPointer::pressed(QPointF at) {
    _down = _viewport.isOnCanvas(at);
    _marked = false;
    _downAt = _viewport.bufferPoint(at);
}

void CanvasPointer::released() {
    if (!_down)
        return;
    _down = false;
    // After the view has ended the stroke, too.
    QTimer::singleShot(0, this, [this] {
        if (!_marked && !_manyFingers && isIdle())
            leaveDab(_downAt);
        _manyFingers = false;
        _model.endOverride();
    });
}

// The view draws nothing for a click. A stroke there and back that places a dab a sample and has no tapers
// leaves one: a stroke's first dab is never drawn, its last one always is.
void CanvasPointer::leaveDab(QPointF at) {
    QDDrawView* view = _viewport.view();
    if (!view || view->isSmudgeType() || view->brushType() == kLiveFillBrush)
        return;
    view->setPointsDistanceEnabled(false);
    view->setStartRadius(0);
    view->setEndRadius(0);
    const auto viewPoint = [&](double x) { return at + QPointF(x, 0); };
    constexpr double kAccepted = 1.1;  // buffer pixels; a shorter move would be dropped
    view->drawingWithBeginPoint(viewPoint(0), _downPressure);
    view->drawingWithMoveToPoint(viewPoint(kAccepted), _downPressure);
    view->drawingWithEndPoint(viewPoint(0), _downPressure);
    _model.apply(*view, {BrushKey::pointsDistanceEnabled, BrushKey::startRadius, BrushKey::endRadius});
}

void CanvasPointer::drawViewDidDrawBegin(QDDrawCanvas& canvas, QPointF) {
    _recordedBefore = canvas.enableRecogition() ? canvas.curImageData() : StepPicture();
}

void CanvasPointer::drawViewDidDrawMove(QDDrawCanvas&, QPointF) {
    _marked = true;
}

void CanvasPointer::drawViewDidDrawEnd(QDDrawCanvas& canvas, QPointF) {
    // A press that slid away ends, too, but leaves nothing, as does a finger's stroke that a pinch takes
    // back: that one still moves when it ends.
    const bool withdrawn = _manyFingers && canvas.lineMove();
    if (!_marked || withdrawn)
        return;
    // A shape is a step, with a picture of its own.
    const StepPicture before = std::exchange(_recordedBefore, {});
    const bool isGone = canvas.enableRecogition() && !canvas.edited() && !before.isNull() &&
                        canvas.curImageData().isSameAs(before);
    emit(isGone ? noShapeFound() : strokeEnded());
}

// ---- Fingers

void CanvasPointer::filterTouch(const QTouchEvent& event) {
    if (event.device() && event.device()->type() == QInputDevice::DeviceType::TouchPad)
        return;  // which moves the mouse
    const QList<QEventPoint>& fingers = event.points();
    _manyFingers = (_manyFingers && event.type() != QEvent::TouchBegin) || fingers.size() > 1;
    if (event.type() == QEvent::TouchBegin && !_manyFingers) {
        _downPressure = kPress;
        pressed(_viewport.mapFromGlobal(fingers.first().globalPosition()));
    } else if (event.type() == QEvent::TouchEnd) {
        released();
    }
}

// ---- What the pointer shows

void CanvasPointer::setPicking(bool picking) {
    if (_picking == picking)
        return;
    _picking = picking;
    chooseCursor();
    emit pickingChanged(picking);
}

void CanvasPointer::pickAt(QPointF at) {
    QDDrawView* view = _viewport.view();
    const QPointF point = _viewport.bufferPoint(at);
    const QPoint pixel(int(std::floor(point.x())), int(std::floor(point.y())));
    if (!view || !view->displayImage().rect().contains(pixel))
        return;
    QColor color = view->displayImage().pixelColor(pixel);
    if (color.alpha() == 0)
        return;
    color.setAlpha(255);
    emit picked(color);
}

void CanvasPointer::pointTo(QPointF at) {
    if (_picking || _panning)
        _cursor.hideOutline();
    else
        _cursor.showAt(at);
    emit moved(_viewport.bufferPoint(at));
}

void CanvasPointer::chooseCursor() {
    const Shown wanted = _panning                         ? Shown::grab
                         : _spaceHeld                     ? Shown::hand
                         : (_picking || _cursor.isTiny()) ? Shown::cross
                                                          : Shown::dot;
    if (std::exchange(_shown, wanted) == wanted)
        return;  // with every move: the window system would be told every time
    switch (wanted) {
        case Shown::grab:
            return _viewport.setCursor(Qt::ClosedHandCursor);
        case Shown::hand:
            return _viewport.setCursor(Qt::OpenHandCursor);
        case Shown::cross:
            return _viewport.setCursor(Qt::CrossCursor);
        case Shown::dot:
            return _viewport.setCursor(dotCursor());
        case Shown::none:
            break;
    }
}

}  // namespace dabcanvas::dabpainter
