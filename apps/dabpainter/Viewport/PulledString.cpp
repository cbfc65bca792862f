// SPDX-License-Identifier: MIT
#include "Viewport/PulledString.h"

#include <QPainter>

#include "QDEAGLView/QDDrawView.h"
#include "Viewport/CanvasPointer.h"
#include "Viewport/CanvasViewport.h"

namespace dabcanvas::dabpainter {

PulledString::PulledString(CanvasViewport& viewport, const CanvasPointer& pointer)
    : QWidget(&viewport), _viewport(viewport) {
    letEventsThrough(*this);
    hide();
    connect(&pointer, &CanvasPointer::moved, this, [this](QPointF bufferPoint) {
        _pointer = bufferPoint;
        refresh();
    });
}

void PulledString::watchView() {
    setBrush({});
    const QDDrawView* view = _viewport.view();
    connect(view, &QDDrawView::strokeBegan, this, &PulledString::setBrush);
    connect(view, &QDDrawView::strokeMoved, this, &PulledString::setBrush);
    connect(view, &QDDrawView::strokeEnded, this, [this] { setBrush({}); });
    connect(view, &QDDrawView::strokeWithdrawn, this, [this] { setBrush({}); });
}

void PulledString::setBrush(std::optional<QPointF> place) {
    const QDDrawView* view = _viewport.view();
    const bool isPulled = view && view->pointerOptions().stabiliser.kind == Stabilising::string;
    _brush = isPulled ? place : std::nullopt;
    if (_brush.has_value() != isVisible()) {
        resize(_viewport.size());
        setVisible(_brush.has_value());
        raise();
    }
    refresh();
}

void PulledString::refresh() {
    const QRectF line =
        _brush ? QRectF(_viewport.pointOfBuffer(*_brush), _viewport.pointOfBuffer(_pointer)) : QRectF();
    const QRegion now = line.normalized().toAlignedRect().adjusted(-3, -3, 3, 3);
    update(_painted | now);
    _painted = now;
}

void PulledString::paintEvent(QPaintEvent*) {
    if (!_brush)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // Dark and light, so that one of them shows on anything.
    for (const QPen& pen : {QPen(QColor(255, 255, 255, 200), 2.5), QPen(QColor(30, 90, 200, 230), 1)}) {
        painter.setPen(pen);
        painter.drawLine(_viewport.pointOfBuffer(*_brush), _viewport.pointOfBuffer(_pointer));
    }
}

}  // namespace dabcanvas::dabpainter
