// SPDX-License-Identifier: MIT
#include "Viewport/BrushCursor.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "Viewport/CanvasViewport.h"
#include "Viewport/TipExtent.h"

namespace dabcanvas::dabpainter {

namespace {

// Half width and half height of an ellipse, and its angle.
struct Outline {
    double a = 0, b = 0, radian = 0;
    // Counter-clockwise as seen, and so with y downwards.
    QPointF at(double t) const {
        const double x = a * std::cos(t), y = b * std::sin(t);
        return {x * std::cos(radian) + y * std::sin(radian), -x * std::sin(radian) + y * std::cos(radian)};
    }
};

Outline outlineOf(const BrushModel& model, double across) {
    const double roundness =
        std::max(model.value(BrushKey::roundness).toDouble(), model.value(BrushKey::minRoundness).toDouble());
    // A tip that turns with the stroke or by chance has no one angle; its length says most.
    const bool turns =
        model.value(BrushKey::moveRadianEnable).toBool() || model.value(BrushKey::startRadianEnable).toBool();
    return {across / 2, across / 2 * (turns ? 1 : std::clamp(roundness, 0.05, 1.0)),
            model.value(BrushKey::radian).toDouble()};
}

}  // namespace

BrushCursor::BrushCursor(const BrushModel& model, CanvasViewport& viewport)
    : QWidget(&viewport), _model(model), _viewport(viewport) {
    letEventsThrough(*this);
    resize(viewport.size());
    viewport.installEventFilter(this);  // it covers all of it
    connect(&model, &BrushModel::changed, this, [this](BrushKey key) {
        if (isOfTipExtent(key))
            _extent.reset();
        refresh();
    });
    connect(&viewport, &CanvasViewport::zoomChanged, this, &BrushCursor::refresh);
}

double BrushCursor::outlineSize() const {
    const auto number = [this](BrushKey key) { return _model.value(key).toDouble(); };
    const auto control = _model.value(BrushKey::radiusControl).value<LPControlParams>();
    // Without influences dabs are drawn at the middle of smallest and largest.
    const bool influenced = control.pressure != 0 || control.altitude != 0 || control.speed != 0;
    const double share = influenced ? number(BrushKey::maxRadius)
                                    : (number(BrushKey::minRadius) + number(BrushKey::maxRadius)) / 2;
    if (!_extent)
        _extent = tipExtent(_model);
    return number(BrushKey::radius) * share * *_extent * _viewport.scale();
}

bool BrushCursor::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Resize)
        resize(_viewport.size());
    return false;
}

void BrushCursor::showAt(QPointF at) {
    _at = at;
    _shown = true;
    refresh();
}

void BrushCursor::hideOutline() {
    _shown = false;
    refresh();
}

void BrushCursor::refresh() {
    const QRegion now = _shown && !isTiny() ? surroundings() : QRegion();
    update(_painted | now);
    _painted = now;
    emit outlineChanged();
}

// Small rectangles along the outline.
QRegion BrushCursor::surroundings() const {
    const Outline outline = outlineOf(_model, outlineSize());
    const int parts = std::clamp(int(outline.a / 4), 4, 48);
    QRegion region;
    for (int i = 0; i < parts; ++i) {
        QRectF box;
        for (int k = 0; k <= 4; ++k) {
            const QPointF p = _at + outline.at(2 * std::numbers::pi * (i + k / 4.0) / parts);
            box |= QRectF(p, QSizeF(0.01, 0.01));
        }
        region |= box.toAlignedRect().adjusted(-3, -3, 3, 3);
    }
    return region & rect();
}

void BrushCursor::paintEvent(QPaintEvent* event) {
    if (!_shown || isTiny())
        return;
    const Outline outline = outlineOf(_model, outlineSize());
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(_at);
    painter.rotate(-outline.radian * 180 / std::numbers::pi);
    // Dark and light, so that one of them shows on anything.
    const QRectF ellipse(-outline.a, -outline.b, 2 * outline.a, 2 * outline.b);
    painter.setPen(QPen(QColor(0, 0, 0, 170), 1));
    painter.drawEllipse(ellipse.adjusted(-0.5, -0.5, 0.5, 0.5));
    painter.setPen(QPen(QColor(255, 255, 255, 210), 1));
    painter.drawEllipse(ellipse.adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace dabcanvas::dabpainter
