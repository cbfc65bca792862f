// SPDX-License-Identifier: MIT
#include "Viewport/SymmetryGuide.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "QDEAGLView/QDDrawView.h"
#include "Viewport/CanvasViewport.h"
#include "Viewport/PointingEvent.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kRing = 6;  // points

double half(double place) {
    return std::round(place * 2) / 2;
}

}  // namespace

SymmetryGuide::SymmetryGuide(CanvasViewport& viewport) : QWidget(&viewport), _viewport(viewport) {
    letEventsThrough(*this);
    hide();
    qApp->installEventFilter(this);  // before the pointer's own, which came earlier
    connect(&viewport, &CanvasViewport::zoomChanged, this, qOverload<>(&QWidget::update));
}

void SymmetryGuide::watchView() {
    connect(_viewport.view(), &QDDrawView::canvasSizeChanged, this, &SymmetryGuide::centreInTheMiddle);
    raise();
    centreInTheMiddle();
}

QPointF SymmetryGuide::middle() const {
    const QDDrawView* view = _viewport.view();
    return view ? QPointF(view->bufferSize().width() / 2, view->bufferSize().height() / 2) : QPointF();
}

void SymmetryGuide::setKind(SymmetryKind kind) {
    _symmetry.kind = kind;
    apply();
}

void SymmetryGuide::setRays(int rays, bool mirrored) {
    _symmetry.rays = std::clamp(rays, kFewestRays, kMostRays);
    _symmetry.mirrored = mirrored;
    apply();
}

void SymmetryGuide::setCentre(QPointF bufferPoint) {
    _symmetry.centreX = half(bufferPoint.x());
    _symmetry.centreY = half(bufferPoint.y());
    apply();
}

void SymmetryGuide::centreInTheMiddle() {
    setCentre(middle());
}

void SymmetryGuide::apply() {
    if (QDDrawView* view = _viewport.view())
        view->setSymmetry(_symmetry);
    resize(_viewport.size());
    setVisible(_symmetry.kind != SymmetryKind::none);
    update();
    emit symmetryChanged();
}

// ---- Moving the centre

void SymmetryGuide::setMoving(bool moving) {
    moving = moving && _symmetry.kind != SymmetryKind::none;
    _isDragged = false;
    if (_moving == moving)
        return;
    _moving = moving;
    update();
    emit movingChanged(moving);
}

bool SymmetryGuide::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &_viewport && event->type() == QEvent::Resize)
        resize(_viewport.size());
    const QSinglePointEvent* pointing = asPointing(event);
    if (!pointing || !_moving || !watched || watched != _viewport.view())
        return false;
    drag(*pointing);
    event->accept();
    return true;
}

void SymmetryGuide::drag(const QSinglePointEvent& event) {
    const bool wasDragged = _isDragged;
    _isDragged = event.buttons() & Qt::LeftButton;
    if (_isDragged)
        setCentre(_viewport.bufferPoint(event.position()));
    else if (wasDragged)
        setMoving(false);
}

// ---- Showing

// Of the lines from the centre, in radians.
std::vector<double> SymmetryGuide::directions() const {
    const bool isRadial = _symmetry.kind == SymmetryKind::radial;
    std::vector<double> all;
    if (_symmetry.kind == SymmetryKind::vertical || _symmetry.kind == SymmetryKind::both)
        all = {kTurn / 4, kTurn * 3 / 4};
    if (_symmetry.kind == SymmetryKind::horizontal || _symmetry.kind == SymmetryKind::both)
        all.insert(all.end(), {0, kTurn / 2});
    const int lines = isRadial ? _symmetry.rays * (_symmetry.mirrored ? 2 : 1) : 0;
    for (int line = 0; line < lines; ++line)
        all.push_back(kTurn / 4 + kTurn * line / lines);
    return all;
}

// Along a row or a column of the screen's pixels as one of them, however the canvas is zoomed.
void SymmetryGuide::paintLine(QPainter& painter, QPointF from, QPointF to) const {
    constexpr double kStraight = 0.01;
    const double ratio = devicePixelRatioF();
    const auto onPixel = [ratio](double place) { return (std::floor(place * ratio) + 0.5) / ratio; };
    const bool isColumn = std::abs(from.x() - to.x()) < kStraight,
               isRow = std::abs(from.y() - to.y()) < kStraight;
    if (isColumn)
        from.setX(onPixel(from.x())), to.setX(from.x());
    if (isRow)
        from.setY(onPixel(from.y())), to.setY(from.y());
    painter.setRenderHint(QPainter::Antialiasing, !isColumn && !isRow);
    // Dark and light, so that one of them shows on anything.
    painter.setPen(QPen(QColor(255, 255, 255, 170), 0));
    painter.drawLine(from, to);
    painter.setPen(QPen(QColor(30, 90, 200, 220), 0, Qt::DashLine));
    painter.drawLine(from, to);
}

void SymmetryGuide::paintEvent(QPaintEvent*) {
    const QDDrawView* view = _viewport.view();
    if (!view)
        return;
    QPainter painter(this);
    const QSizeF canvas = view->bufferSize();
    const QPointF centre(_symmetry.centreX, _symmetry.centreY);
    QPainterPath sheet;
    sheet.addPolygon(view->bufferToView().map(QPolygonF(QRectF(QPointF(), canvas))));
    painter.setClipPath(sheet);
    const double far = 2 * std::hypot(canvas.width(), canvas.height());
    for (const double radian : directions()) {
        const QPointF to = centre + far * QPointF(std::cos(radian), -std::sin(radian));
        paintLine(painter, _viewport.pointOfBuffer(centre), _viewport.pointOfBuffer(to));
    }
    painter.setClipping(false);
    painter.setRenderHint(QPainter::Antialiasing);
    const double ring = _moving ? 1.5 * kRing : kRing;
    for (const QPen& pen : {QPen(QColor(255, 255, 255, 220), 3), QPen(QColor(30, 90, 200), 1.5)}) {
        painter.setPen(pen);
        painter.drawEllipse(_viewport.pointOfBuffer(centre), ring, ring);
    }
}

}  // namespace dabcanvas::dabpainter
