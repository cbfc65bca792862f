// SPDX-License-Identifier: MIT
// Qt's events, handed on to whoever decides which device paints.
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QTabletEvent>
#include <QTouchEvent>
#include <QWheelEvent>

#include "Display/DevicePointers.h"
#include "QDEAGLView/QDDrawView.h"

using dabcanvas::Alive;

void QDDrawView::mousePressEvent(QMouseEvent* event) {
    if (!pointers().mousePress(*event)) {
        QWidget::mousePressEvent(event);
    }
}

void QDDrawView::mouseMoveEvent(QMouseEvent* event) {
    if (!pointers().mouseMove(*event)) {
        QWidget::mouseMoveEvent(event);
    }
}

void QDDrawView::mouseReleaseEvent(QMouseEvent* event) {
    if (!pointers().mouseRelease(*event)) {
        QWidget::mouseReleaseEvent(event);
    }
}

void QDDrawView::tabletEvent(QTabletEvent* event) {
    event->setAccepted(pointers().tablet(*event));
}

void QDDrawView::wheelEvent(QWheelEvent* event) {
    event->setAccepted(pointers().wheel(*event));
}

void QDDrawView::hideEvent(QHideEvent* event) {
    const MustStay stays(*this);
    pointers().forget();
    QWidget::hideEvent(event);
}

bool QDDrawView::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TouchCancel:
            if (auto& touch = static_cast<QTouchEvent&>(*event); pointers().touch(touch)) {
                // With its points, which accept() leaves out: Qt sends on only those that were taken.
                touch.setAccepted(true);
                return true;
            }
            break;
        case QEvent::NativeGesture:
            if (pointers().nativeGesture(static_cast<QNativeGestureEvent&>(*event))) {
                return true;
            }
            break;
        case QEvent::WindowDeactivate:
        case QEvent::WindowBlocked:
            if (!pointers().forget()) {
                return true;
            }
            break;
        case QEvent::EnabledChange:
            if (!isEnabled() && !pointers().forget()) {  // its events come no more
                return true;
            }
            break;
        default:
            break;
    }
    return QWidget::event(event);
}
