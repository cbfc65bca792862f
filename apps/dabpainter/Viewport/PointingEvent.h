// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QPointerEvent>

namespace dabcanvas::dabpainter {

// A press, move or release of mouse or pen; null for any other event.
inline QSinglePointEvent* asPointing(QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease:
            return static_cast<QSinglePointEvent*>(event);
        default:
            return nullptr;
    }
}

}  // namespace dabcanvas::dabpainter
