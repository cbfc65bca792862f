// SPDX-License-Identifier: MIT
// What Qt tells of mouse, pen and fingers, as pointer events of the canvas.
#include <QMouseEvent>
#include <QPointer>
#include <QPointingDevice>
#include <QTabletEvent>
#include <QTouchEvent>
#include <QtMath>
#include <utility>

#include "QDEAGLView/QDDrawView.h"

namespace {

// A second finger within this time, or as long as the first one drew no line, makes a pinch of both.
constexpr ulong kPinchMilliseconds = 400;

}  // namespace

QPointF QDDrawView::localPointWithTouch(const QDDrawTouch& touch) const {
    return mapFrom(window(), touch.locationInWindow);
}

QDDrawTouch QDDrawView::touchAt(QPointF position, double pressure) const {
    return {mapTo(window(), position), static_cast<float>(pressure)};
}

// ---- Which device is heard

void QDDrawView::pressed(Pointer pointer, const QDDrawTouch& touch) {
    if (_pointer != Pointer::none && _pointer != pointer) {
        return;
    }
    const QPointer<QDDrawView> alive(this);
    pointer == Pointer::finger ? touchesBeganWithEvent(touch) : mouseDown(touch);
    if (!alive) {
        return;  // a callback destroyed the view
    }
    _pointer = normalMoing() || digitPenMoving() ? pointer : Pointer::none;
}

void QDDrawView::dragged(Pointer pointer, const QDDrawTouch& touch) {
    if (_pointer == pointer) {
        pointer == Pointer::finger ? touchesMovedWithEvent(touch) : mouseDragged(touch);
    }
}

void QDDrawView::released(Pointer pointer, const QDDrawTouch& touch) {
    if (_pointer == pointer) {
        _pointer = Pointer::none;
        pointer == Pointer::finger ? touchesEndedWithEvent(touch) : mouseUp(touch);
    }
}

// False when a callback destroyed the view.
bool QDDrawView::forgetPointer() {
    const QPointer<QDDrawView> alive(this);
    _pointer = Pointer::none;
    endPointerStroke();
    return !alive.isNull();
}

// ---- Mouse

// Pens and fingers come by themselves; the mouse events that are made of theirs must not paint again.
bool QDDrawView::isOurs(const QMouseEvent& event) const {
    return event.source() == Qt::MouseEventNotSynthesized &&
           event.pointerType() != QPointingDevice::PointerType::Finger &&
           event.pointerType() != QPointingDevice::PointerType::Pen &&
           event.pointerType() != QPointingDevice::PointerType::Eraser;
}

void QDDrawView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
    } else if (isOurs(*event)) {
        pressed(Pointer::mouse, touchAt(event->position(), 1));
    }
}

void QDDrawView::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) == 0) {
        if (_pointer == Pointer::mouse && !forgetPointer()) {  // its release went elsewhere
            return;
        }
        QWidget::mouseMoveEvent(event);
    } else if (isOurs(*event)) {
        dragged(Pointer::mouse, touchAt(event->position(), 1));
    }
}

void QDDrawView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        QWidget::mouseReleaseEvent(event);
    } else if (isOurs(*event)) {
        released(Pointer::mouse, touchAt(event->position(), 1));
    }
}

// ---- Pen

void QDDrawView::tabletEvent(QTabletEvent* event) {
    QDDrawTouch touch = touchAt(event->position(), event->pressure());
    if (event->device()->hasCapability(QInputDevice::Capability::XTilt)) {
        touch.altitude = dabcanvas::altitudeOfTilts(qDegreesToRadians(double{event->xTilt()}),
                                                    qDegreesToRadians(double{event->yTilt()}));
    }
    const auto id = static_cast<std::int64_t>(event->pointingDevice()->uniqueId().numericId());
    const bool ofStroke = _pointer == Pointer::pen && id == _penId;
    if (event->type() == QEvent::TabletPress && event->button() == Qt::LeftButton) {
        if (_pointer != Pointer::pen || ofStroke) {
            _penId = id;
            pressed(Pointer::pen, touch);
        }
    } else if (event->type() == QEvent::TabletMove && ofStroke) {
        if ((event->buttons() & Qt::LeftButton) != 0) {
            dragged(Pointer::pen, touch);
        } else {
            forgetPointer();  // its release went elsewhere
        }
    } else if (event->type() == QEvent::TabletRelease && event->button() == Qt::LeftButton) {
        if (ofStroke) {
            released(Pointer::pen, touch);
        }
    } else {
        event->ignore();  // hovering, and other buttons
        return;
    }
    event->accept();
}

// ---- Fingers

bool QDDrawView::touchEvent(QTouchEvent& event) {
    const QPointer<QDDrawView> alive(this);
    if (event.device() != nullptr && event.device()->type() == QInputDevice::DeviceType::TouchPad) {
        return false;  // which moves the mouse
    }
    if (event.type() == QEvent::TouchBegin) {
        _fingersIgnored = false;  // the end of earlier ones may have been lost
    }
    if (event.type() == QEvent::TouchCancel) {
        if (_pointer == Pointer::finger) {
            _pointer = Pointer::none;
            touchesCancelledWithEvent(touchAt(lastPoint(), 0));
        }
        if (alive) {
            _fingersIgnored = false;
        }
        return true;
    }
    if (event.points().size() > 1 && !std::exchange(_fingersIgnored, true) && _pointer == Pointer::finger) {
        _pointer = Pointer::none;
        // Nothing of a pinch is painted; a line that has long been drawn is kept.
        const bool pinch = event.timestamp() - _fingerDown < kPinchMilliseconds || !isLining();
        pinch ? withdrawPointerStroke() : endPointerStroke();
    }
    if (alive && !_fingersIgnored && !event.points().isEmpty()) {
        const QEventPoint& finger = event.points().first();
        const bool measures = event.pointingDevice() != nullptr &&
                              event.pointingDevice()->hasCapability(QInputDevice::Capability::Pressure);
        const QDDrawTouch touch =
            touchAt(mapFromGlobal(finger.globalPosition()), measures ? finger.pressure() : 1);
        switch (finger.state()) {
            case QEventPoint::State::Pressed:
                _fingerDown = static_cast<ulong>(event.timestamp());
                pressed(Pointer::finger, touch);
                break;
            case QEventPoint::State::Updated:
                dragged(Pointer::finger, touch);
                break;
            case QEventPoint::State::Released:
                released(Pointer::finger, touch);
                break;
            default:
                break;
        }
    }
    if (alive && event.type() == QEvent::TouchEnd) {
        _fingersIgnored = false;
    }
    event.setAccepted(
        true);  // with its points, which accept() leaves out: Qt sends on only those that were taken
    return true;
}

// ---- What ends a stroke besides its pointer

void QDDrawView::hideEvent(QHideEvent* event) {
    const MustStay stays(*this);
    forgetPointer();
    QWidget::hideEvent(event);
}

bool QDDrawView::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TouchCancel:
            return touchEvent(static_cast<QTouchEvent&>(*event)) || QWidget::event(event);
        case QEvent::WindowDeactivate:
        case QEvent::WindowBlocked:
            if (!forgetPointer()) {
                return true;
            }
            break;
        case QEvent::EnabledChange:
            if (!isEnabled() && !forgetPointer()) {  // its events come no more
                return true;
            }
            break;
        default:
            break;
    }
    return QWidget::event(event);
}
