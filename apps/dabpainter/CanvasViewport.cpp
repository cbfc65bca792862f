// SPDX-License-Identifier: MIT
#include "CanvasViewport.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "QDEAGLView/QDDrawView.h"
#include "Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr double kFitMargin = 16;

// A canvas smaller than the room stays in its middle; a larger one may be moved until half the room is empty.
double bounded(double position, double size, double room) {
    if (size <= room)
        return (room - size) / 2;
    return std::clamp(position, room / 2 - size, room / 2);
}

// Whole points that are whole screen pixels too, so that nothing is drawn between pixels.
int snapped(double position, double dots) {
    int grid = 1;
    while (grid < 4 && grid * dots != std::floor(grid * dots))
        ++grid;
    return int(std::lround(position / grid)) * grid;
}

}  // namespace

CanvasViewport::CanvasViewport(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(200, 150);
    setAttribute(Qt::WA_AcceptTouchEvents);
}

void CanvasViewport::setView(std::unique_ptr<QDDrawView> view) {
    delete _view;
    _view = view.release();
    _view->setParent(this);
    _view->lower();
    _view->show();
    fit();
}

QSizeF CanvasViewport::canvasSize() const {
    return _view->bufferSize() * _zoom / devicePixelRatioF();
}

double CanvasViewport::scale() const {
    return _view ? _view->width() / _view->bufferSize().width() : 1;
}

QPointF CanvasViewport::bufferPoint(QPointF at) const {
    if (!_view)
        return {};
    const QPointF inView = at - _view->pos();
    return {inView.x() * _view->bufferSize().width() / _view->width(),
            inView.y() * _view->bufferSize().height() / _view->height()};
}

QPointF CanvasViewport::pointOfBuffer(QPointF bufferPoint) const {
    if (!_view)
        return {};
    return QPointF(bufferPoint.x() * _view->width() / _view->bufferSize().width(),
                   bufferPoint.y() * _view->height() / _view->bufferSize().height()) +
           _view->pos();
}

void CanvasViewport::zoomAbout(double zoom, QPointF anchor) {
    if (!_view)
        return;
    _fitting = false;
    const double before = _zoom;
    // No side of the widget below a point or beyond what a widget may have.
    const double longest = std::max(_view->bufferSize().width(), _view->bufferSize().height());
    _zoom = std::clamp(zoom, kLeastZoom, std::min(kMostZoom, (QWIDGETSIZE_MAX - 1) / longest));
    _topLeft = anchor + (_topLeft - anchor) * (_zoom / before);
    place();
    emit zoomChanged(_zoom);
}

void CanvasViewport::fit() {
    if (!_view)
        return;
    const QSizeF room = QSizeF(size()) - QSizeF(2 * kFitMargin, 2 * kFitMargin);
    const QSizeF buffer = _view->bufferSize() / devicePixelRatioF();
    const double fitting = std::min(room.width() / buffer.width(), room.height() / buffer.height());
    zoomAbout(std::min(1.0, fitting), rect().center());
    _fitting = true;
}

void CanvasViewport::pan(QPointF by) {
    if (!_view)
        return;
    _topLeft += by;
    place();
}

void CanvasViewport::place() {
    const QSizeF canvas = canvasSize();
    _topLeft = {bounded(_topLeft.x(), canvas.width(), width()),
                bounded(_topLeft.y(), canvas.height(), height())};
    const double dots = devicePixelRatioF();
    const QSize shown(std::max(1, int(std::lround(canvas.width()))),
                      std::max(1, int(std::lround(canvas.height()))));
    _view->setGeometry(QRect(QPoint(snapped(_topLeft.x(), dots), snapped(_topLeft.y(), dots)), shown));
    update();
}

void CanvasViewport::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.fillRect(rect(), palette().color(QPalette::Window).darker(130));
    if (!_view)
        return;
    const QRect canvas = _view->geometry();
    painter.setBrushOrigin(canvas.topLeft());
    painter.fillRect(canvas & rect(), checkerBrush());
    painter.setPen(palette().color(QPalette::Window).darker(200));
    painter.drawRect(canvas.adjusted(-1, -1, 0, 0));
}

void CanvasViewport::resizeEvent(QResizeEvent*) {
    adapt();
}

void CanvasViewport::adapt() {
    if (!_view)
        return;
    if (_fitting)
        fit();
    else
        place();
}

void CanvasViewport::showEvent(QShowEvent*) {
    // On a screen of another density a zoom of 1 is another size.
    if (QWindow* handle = window()->windowHandle())
        connect(handle, &QWindow::screenChanged, this, &CanvasViewport::adapt, Qt::UniqueConnection);
    adapt();
}

}  // namespace dabcanvas::dabpainter
