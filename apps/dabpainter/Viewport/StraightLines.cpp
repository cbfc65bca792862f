// SPDX-License-Identifier: MIT
#include "Viewport/StraightLines.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QTabletEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "QDEAGLView/QDDrawView.h"
#include "Viewport/CanvasViewport.h"
#include "Viewport/PointingEvent.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr double kStep = 8;  // buffer pixels between the moves that a line is made of
constexpr float kMousePressure = 1;

bool isPress(const QEvent& event) {
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::TabletPress;
}
bool isRelease(const QEvent& event) {
    return event.type() == QEvent::MouseButtonRelease || event.type() == QEvent::TabletRelease;
}

}  // namespace

StraightLines::StraightLines(CanvasViewport& viewport) : QWidget(&viewport), _viewport(viewport) {
    letEventsThrough(*this);
    hide();
    qApp->installEventFilter(this);
}

void StraightLines::watchView() {
    finish();
    _last.reset();
    connect(_viewport.view(), &QDDrawView::strokeEnded, this, [this](QPointF place) { _last = place; });
}

bool StraightLines::eventFilter(QObject* watched, QEvent* event) {
    if (_line && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        finish();
        return _givenUp = true;
    }
    const QSinglePointEvent* pointing = asPointing(event);
    if (!pointing || !watched || watched != _viewport.view())
        return false;
    const auto* tablet = dynamic_cast<const QTabletEvent*>(pointing);
    const float pressure = tablet ? float(tablet->pressure()) : kMousePressure;
    if (isPress(*event))
        return filterPress(*pointing, pressure);
    const bool wasGivenUp = _givenUp;
    if (isRelease(*event))
        _givenUp = false;
    if (!_line)
        return wasGivenUp;
    if (!isRelease(*event))
        _line = Line{pointing->position(), std::max(_line->pressure, pressure)};
    else
        draw(*_viewport.view());
    isRelease(*event) ? finish() : update();
    event->accept();
    return true;
}

bool StraightLines::filterPress(const QSinglePointEvent& event, float pressure) {
    _givenUp = false;
    const bool isLine = _on && _last && event.modifiers() == Qt::ShiftModifier &&
                        !_viewport.view()->isDrawing() && event.button() == Qt::LeftButton;
    if (!isLine)
        return false;
    _line = Line{event.position(), pressure};
    resize(_viewport.size());
    raise();
    show();
    return true;
}

void StraightLines::draw(QDDrawView& view) const {
    const QPointF from = *_last, way = _viewport.bufferPoint(_line->to) - from;
    const int steps = std::max(2, int(std::hypot(way.x(), way.y()) / kStep));
    view.drawingWithBeginPoint(from, _line->pressure);
    for (int i = 1; i < steps; ++i)
        view.drawingWithMoveToPoint(from + way * i / steps, _line->pressure);
    view.drawingWithEndPoint(from + way, _line->pressure);
}

void StraightLines::finish() {
    _line.reset();
    hide();
}

void StraightLines::paintEvent(QPaintEvent*) {
    if (!_line || !_last)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // Dark and light, so that one of them shows on anything.
    for (const QPen& pen : {QPen(QColor(0, 0, 0, 170), 2.5), QPen(QColor(255, 255, 255, 230), 1)}) {
        painter.setPen(pen);
        painter.drawLine(_viewport.pointOfBuffer(*_last), _line->to);
    }
}

}  // namespace dabcanvas::dabpainter
