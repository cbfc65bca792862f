// SPDX-License-Identifier: MIT
#include "Viewport/SizeDrag.h"

#include <QApplication>
#include <QKeyEvent>
#include <cmath>

#include "QDEAGLView/QDDrawView.h"
#include "Viewport/BrushCursor.h"
#include "Viewport/CanvasViewport.h"
#include "Viewport/PointingEvent.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr double kTwice = 120;  // points that make it twice as large

}  // namespace

SizeDrag::SizeDrag(CanvasViewport& viewport, BrushCursor& cursor, BrushModel& brush, const QAction& key)
    : QObject(&viewport), _viewport(viewport), _cursor(cursor), _brush(brush), _key(viewport, key) {
    qApp->installEventFilter(this);  // before the pointer's own, which came earlier
}

bool SizeDrag::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            return watched->isWidgetType() && filterKey(*static_cast<QKeyEvent*>(event));
        case QEvent::ApplicationDeactivate:
            _key.forget();
            return false;
        default:
            break;
    }
    const QSinglePointEvent* pointing = asPointing(event);
    if (!pointing || !_key.isDown() || watched != _viewport.view())
        return false;
    dragTo(pointing->position());
    event->accept();
    return true;
}

bool SizeDrag::filterKey(const QKeyEvent& event) {
    const bool wasDown = _key.isDown(), isTaken = _key.filter(event);
    if (_key.isDown() && !wasDown) {
        _from.reset();
        _radius = _brush.value(BrushKey::radius).toFloat();
    }
    return isTaken;
}

void SizeDrag::dragTo(QPointF at) {
    if (!_from)
        _from = at;
    _cursor.showAt(*_from);
    const double times = std::exp2((at.x() - _from->x()) / kTwice);
    _brush.setValue(BrushKey::radius, std::round(_radius * float(times) * 2) / 2);
}

}  // namespace dabcanvas::dabpainter
