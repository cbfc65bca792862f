// SPDX-License-Identifier: MIT
#include "Input/PressureCurveEditor.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace dabcanvas::dabpainter {

namespace {

constexpr double kMargin = 12, kReach = 10;  // points
constexpr double kOut = 0.15;                // so far beside the field, a dragged point is taken away
constexpr double kStep = 0.01, kFarStep = 0.05;

}  // namespace

PressureCurveEditor::PressureCurveEditor(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(180, 180);
    setAccessibleName(tr("Pressure curve"));
    setAccessibleDescription(
        tr("Arrows move a point, Ctrl with left and right chooses one, Insert adds one, "
           "Delete takes it away"));
    setToolTip(accessibleDescription());
}

void PressureCurveEditor::setPoints(const PressurePoints& points) {
    _points = points;
    _chosen = std::min(_chosen, points.count() - 1);
    update();
}

void PressureCurveEditor::showPressure(std::optional<float> raw) {
    _raw = raw;
    update();
}

void PressureCurveEditor::changed() {
    update();
    emit edited();
}

// ---- Places

QRectF PressureCurveEditor::field() const {
    return QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
}

QPointF PressureCurveEditor::inField(QPointF point) const {
    const QRectF within = field();
    return {within.left() + point.x() * within.width(), within.bottom() - point.y() * within.height()};
}

QPointF PressureCurveEditor::atPlace(QPointF place) const {
    const QRectF within = field();
    return {(place.x() - within.left()) / within.width(), (within.bottom() - place.y()) / within.height()};
}

int PressureCurveEditor::pointAt(QPointF place) const {
    int nearest = -1;
    double least = kReach;
    for (int i = 0; i < _points.count(); ++i) {
        const QPointF away = inField(_points.all()[std::size_t(i)]) - place;
        const double distance = std::hypot(away.x(), away.y());
        if (distance < least) {
            least = distance;
            nearest = i;
        }
    }
    return nearest;
}

// ---- Editing

void PressureCurveEditor::choose(int point) {
    _chosen = std::clamp(point, 0, _points.count() - 1);
    update();
}

void PressureCurveEditor::addAfterChosen() {
    const auto& all = _points.all();
    const auto from = std::size_t(std::min(_chosen, _points.count() - 2));
    const double x = (all[from].x() + all[from + 1].x()) / 2;
    const int added = _points.add({x, _points.curve().at(float(x))});
    if (added < 0)
        return;
    choose(added);
    changed();
}

void PressureCurveEditor::removeChosen() {
    if (!_points.remove(_chosen))
        return;
    choose(_chosen);
    changed();
}

void PressureCurveEditor::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    const int hit = pointAt(event->position());
    const int taken = hit >= 0 ? hit : _points.add(atPlace(event->position()));
    _dragging = taken >= 0;
    if (!_dragging)
        return;
    choose(taken);
    if (hit < 0)
        changed();
}

void PressureCurveEditor::mouseMoveEvent(QMouseEvent* event) {
    if (!_dragging)
        return;
    const QPointF to = atPlace(event->position());
    const bool isOut = std::max({-to.x(), to.x() - 1, -to.y(), to.y() - 1}) > kOut;
    if (isOut && _chosen > 0 && _chosen + 1 < _points.count()) {
        _dragging = false;
        removeChosen();
        return;
    }
    _points.move(_chosen, to);
    changed();
}

void PressureCurveEditor::mouseReleaseEvent(QMouseEvent*) {
    _dragging = false;
}

void PressureCurveEditor::keyPressEvent(QKeyEvent* event) {
    const double step = event->modifiers() & Qt::ShiftModifier ? kFarStep : kStep;
    const bool chooses = event->modifiers() & Qt::ControlModifier;
    const auto moveBy = [&](double x, double y) {
        _points.move(_chosen, _points.all()[std::size_t(_chosen)] + QPointF(x, y));
        changed();
    };
    switch (event->key()) {
        case Qt::Key_Left:
            return chooses ? choose(_chosen - 1) : moveBy(-step, 0);
        case Qt::Key_Right:
            return chooses ? choose(_chosen + 1) : moveBy(step, 0);
        case Qt::Key_Up:
            return moveBy(0, step);
        case Qt::Key_Down:
            return moveBy(0, -step);
        case Qt::Key_Insert:
            return addAfterChosen();
        case Qt::Key_Delete:
        case Qt::Key_Backspace:
            return removeChosen();
        default:
            QWidget::keyPressEvent(event);
    }
}

// ---- Showing

void PressureCurveEditor::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF within = field();
    const QPalette& colors = palette();
    painter.fillRect(within, colors.base());
    QColor faint = colors.color(QPalette::Text);
    faint.setAlpha(50);
    painter.setPen(QPen(faint, 1));
    for (int quarter = 0; quarter <= 4; ++quarter) {
        painter.drawLine(inField({quarter / 4.0, 0}), inField({quarter / 4.0, 1}));
        painter.drawLine(inField({0, quarter / 4.0}), inField({1, quarter / 4.0}));
    }
    const PressureCurve curve = _points.curve();
    QPainterPath path(inField({0, curve.at(0)}));
    for (int x = 1; x <= int(within.width()); ++x)
        path.lineTo(inField({x / within.width(), curve.at(float(x / within.width()))}));
    painter.setPen(QPen(colors.color(QPalette::Text), 2));
    painter.drawPath(path);
    for (int i = 0; i < _points.count(); ++i) {
        const bool isChosen = i == _chosen && hasFocus();
        painter.setPen(QPen(colors.color(QPalette::Text), isChosen ? 2 : 1));
        painter.setBrush(isChosen ? colors.highlight() : colors.base());
        painter.drawEllipse(inField(_points.all()[std::size_t(i)]), isChosen ? 6 : 5, isChosen ? 6 : 5);
    }
    if (_raw) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(220, 60, 40));
        painter.drawEllipse(inField({*_raw, curve.at(*_raw)}), 5, 5);
    }
}

}  // namespace dabcanvas::dabpainter
