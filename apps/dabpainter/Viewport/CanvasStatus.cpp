// SPDX-License-Identifier: MIT
#include "Viewport/CanvasStatus.h"

#include <QLabel>
#include <QStatusBar>
#include <cmath>
#include <numbers>

#include "QDEAGLView/QDDrawView.h"
#include "Viewport/CanvasPointer.h"
#include "Viewport/CanvasViewport.h"

namespace dabcanvas::dabpainter {

CanvasStatus::CanvasStatus(QStatusBar& bar, const CanvasViewport& viewport, const CanvasPointer& pointer)
    : QObject(&bar),
      _bar(bar),
      _viewport(viewport),
      _size(addLabel({})),
      _zoom(addLabel(QStringLiteral("3200 %"))),
      _turn(addLabel({})),
      _position(addLabel(QStringLiteral("-16384, -16384"))),
      _pressure(addLabel({}, 1)),
      _shapes(new QLabel(tr("Shapes"))),
      _driver(new QLabel) {
    for (QLabel* label : {_shapes, _driver}) {
        label->setContentsMargins(6, 0, 6, 0);
        bar.addPermanentWidget(label);
    }
    _shapes->setVisible(false);
    _driver->setToolTip(tr("What paints this picture"));
    connect(&pointer, &CanvasPointer::moved, this, &CanvasStatus::showPosition);
    connect(&pointer, &CanvasPointer::left, _position, &QLabel::clear);
    connect(&pointer, &CanvasPointer::pressureChanged, this, [this](float pressure) {
        _pressure->setText(pressure < 0 ? QString() : tr("Pressure %1 %").arg(std::lround(pressure * 100)));
    });
    connect(&viewport, &CanvasViewport::zoomChanged, this, &CanvasStatus::showCanvas);
}

// Wide enough for what comes, so that nothing moves about.
QLabel* CanvasStatus::addLabel(const QString& longest, int stretch) {
    auto* label = new QLabel;
    label->setContentsMargins(6, 0, 6, 0);
    if (!longest.isEmpty())
        label->setMinimumWidth(label->fontMetrics().horizontalAdvance(longest) + 16);
    _bar.addWidget(label, stretch);
    return label;
}

void CanvasStatus::showCanvas() {
    QDDrawView* view = _viewport.view();
    const QSize size = view ? view->bufferSize().toSize() : QSize();
    _size->setText(tr("%1 × %2 px").arg(size.width()).arg(size.height()));
    const double percent = _viewport.zoom() * 100;
    _zoom->setText(QStringLiteral("%1 %").arg(percent, 0, 'f', percent < 10 ? 1 : 0));
    _turn->setText(view ? turnOf(*view) : QString());
    _turn->setVisible(!_turn->text().isEmpty());
    _driver->setText(view ? view->rendererName() : QString());
}

// Nothing of a canvas that is shown as it is.
QString CanvasStatus::turnOf(const QDDrawView& view) const {
    const double degrees = std::round(view.viewRotation() * 180 / std::numbers::pi);
    const QString turned = degrees == 0 ? QString() : tr("%1°").arg(degrees);
    if (!view.isViewMirrored())
        return turned;
    return turned.isEmpty() ? tr("Mirrored") : tr("Mirrored, %1").arg(turned);
}

void CanvasStatus::showShapes(bool on) {
    _shapes->setVisible(on);
}

void CanvasStatus::showPosition(QPointF bufferPoint) {
    _position->setText(
        QStringLiteral("%1, %2").arg(int(std::floor(bufferPoint.x()))).arg(int(std::floor(bufferPoint.y()))));
}

}  // namespace dabcanvas::dabpainter
