// SPDX-License-Identifier: MIT
#include "Viewport/TurnDrag.h"

#include <QApplication>
#include <QKeyEvent>
#include <cmath>

#include "QDEAGLView/QDDrawView.h"
#include "Viewport/CanvasViewport.h"
#include "Viewport/PointingEvent.h"

namespace dabcanvas::dabpainter {

TurnDrag::TurnDrag(CanvasViewport& viewport, const QAction& key)
    : QObject(&viewport), _viewport(viewport), _key(viewport, key) {
    qApp->installEventFilter(this);
}

bool TurnDrag::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            return watched->isWidgetType() && _key.filter(*static_cast<QKeyEvent*>(event));
        case QEvent::ApplicationDeactivate:
            _key.forget();
            _from.reset();
            return false;
        default:
            break;
    }
    const QSinglePointEvent* pointing = asPointing(event);
    if (!pointing || !(_key.isDown() || _from) || watched != _viewport.view())
        return false;
    drag(*pointing);
    event->accept();
    return true;
}

// Until the button goes up, however long the key is down.
void TurnDrag::drag(const QSinglePointEvent& event) {
    const QPointF middle = QRectF(_viewport.rect()).center(), at = event.position();
    const auto angle = [&](QPointF point) {
        return std::atan2(middle.y() - point.y(), point.x() - middle.x());
    };
    if (_from)
        _viewport.turnBy(angle(at) - angle(*_from));
    _from = event.buttons() & Qt::LeftButton ? std::optional(at) : std::nullopt;
}

}  // namespace dabcanvas::dabpainter
