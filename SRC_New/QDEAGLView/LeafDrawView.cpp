// SPDX-License-Identifier: MIT
#include "QDEAGLView/LeafDrawView.h"

#include <QPaintEvent>
#include <QPainter>
#include <cmath>

#include "Canvas/CanvasLog.h"

std::unique_ptr<LeafDrawView> LeafDrawView::initWithFrame(const QRectF& frame, QWidget* parent) {
    for (const double number : {frame.x(), frame.y(), frame.width(), frame.height()}) {
        if (!(std::abs(number) <= QWIDGETSIZE_MAX)) {
            qCWarning(lcDabcanvas, "a preview cannot be %g x %g view points large at (%g, %g)", frame.width(),
                      frame.height(), frame.x(), frame.y());
            return nullptr;
        }
    }
    return std::unique_ptr<LeafDrawView>(new LeafDrawView(frame, parent));
}

LeafDrawView::LeafDrawView(const QRectF& frame, QWidget* parent)
    : QWidget(parent), LeafDrawing(frame.size()), _buffer(frame.size()) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(frame.toRect());
}

QTransform LeafDrawView::transform() const {
    return _transform.value_or(
        _buffer.isEmpty() ? QTransform()
                          : QTransform::fromScale(width() / _buffer.width(), height() / _buffer.height()));
}

void LeafDrawView::setTransform(const QTransform& bufferToView) {
    _transform = bufferToView;
    update();
}

void LeafDrawView::redisplayRect(const QRectF& rect) {
    update(transform().mapRect(rect).toAlignedRect().adjusted(-1, -1, 1, 1));
}

void LeafDrawView::paintEvent(QPaintEvent* event) {
    if (!showsImage()) {
        return;  // what lies below shows
    }
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setTransform(transform(), true);
    if (!shownArea().isEmpty()) {
        painter.setClipPath(shownArea(), Qt::IntersectClip);
    }
    painter.drawImage(QRectF(QPointF(), _buffer), cgImage());
}
