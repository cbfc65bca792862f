// SPDX-License-Identifier: MIT
// Qt's events, handed on to whoever decides which device paints. Pens are heard of by the window alone.
#include <QNativeGestureEvent>
#include <QQuickWindow>
#include <QTabletEvent>
#include <QTouchEvent>

#include "Display/DevicePointers.h"
#include "Quick/CanvasItem.h"
#include "Quick/ItemDisplay.h"
#include "Quick/TopmostItem.h"

namespace dabcanvas {

void CanvasItem::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(_display->pointers().mousePress(*event));
}

void CanvasItem::mouseDoubleClickEvent(QMouseEvent* event) {
    event->setAccepted(_display->pointers().mousePress(*event));
}

void CanvasItem::mouseMoveEvent(QMouseEvent* event) {
    event->setAccepted(_display->pointers().mouseMove(*event));
}

void CanvasItem::mouseReleaseEvent(QMouseEvent* event) {
    event->setAccepted(_display->pointers().mouseRelease(*event));
}

void CanvasItem::mouseUngrabEvent() {
    _display->pointers().forget(DevicePointers::Pointer::mouse);
}

void CanvasItem::touchEvent(QTouchEvent* event) {
    const bool isTaken = _display->pointers().touch(*event);
    event->setAccepted(isTaken);
}

void CanvasItem::touchUngrabEvent() {
    _display->pointers().forget(DevicePointers::Pointer::finger);
}

void CanvasItem::wheelEvent(QWheelEvent* event) {
    event->setAccepted(_display->pointers().wheel(*event));
}

bool CanvasItem::event(QEvent* event) {
    if (event->type() == QEvent::NativeGesture) {
        return _display->pointers().nativeGesture(static_cast<QNativeGestureEvent&>(*event));
    }
    return QQuickItem::event(event);
}

void CanvasItem::watch(QQuickWindow* window) {
    if (_window != nullptr) {
        _window->removeEventFilter(this);
    }
    _window = window;
    if (_window != nullptr) {
        _window->installEventFilter(this);
    }
}

bool CanvasItem::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease:
            return tablet(static_cast<QTabletEvent&>(*event));
        case QEvent::TouchUpdate:
            // Items hear of one a frame, which is too few for a line.
            if (auto& touch = static_cast<QTouchEvent&>(*event);
                touch.points().size() == 1 &&
                _display->pointers().isPainting(DevicePointers::Pointer::finger)) {
                _display->pointers().touch(touch);
            }
            return false;
        case QEvent::FocusOut:
        case QEvent::Hide:
            _display->pointers().forget();
            return false;
        default:
            return false;
    }
}

// What is taken here makes no mouse events.
bool CanvasItem::tablet(QTabletEvent& event) {
    const bool isOurs = _display->pointers().isPainting(DevicePointers::Pointer::pen);
    if (!isVisible() || !isEnabled() ||
        (!isOurs && !isTopmostAt(*this, *window()->contentItem(), event.position()))) {
        return false;
    }
    QTabletEvent local(event.type(), event.pointingDevice(), mapFromScene(event.position()),
                       event.globalPosition(), event.pressure(), static_cast<float>(event.xTilt()),
                       static_cast<float>(event.yTilt()), static_cast<float>(event.tangentialPressure()),
                       event.rotation(), static_cast<float>(event.z()), event.modifiers(), event.button(),
                       event.buttons());
    local.setTimestamp(event.timestamp());
    const bool isTaken = _display->pointers().tablet(local);
    event.setAccepted(isTaken);
    return isTaken;
}

}  // namespace dabcanvas
