// SPDX-License-Identifier: MIT
#include "Viewport/ColorPicker.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "Brush/BrushModel.h"
#include "QDEAGLView/QDDrawView.h"
#include "Viewport/CanvasViewport.h"
#include "Viewport/ShownColor.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr double kOuter = 40, kInner = 27;  // radii of the ring, in points
constexpr double kLeastSquare = 6;          // points across; below, the pixels taken are not outlined
constexpr int kDelay = 200;                 // milliseconds: who presses Ctrl for a shortcut is to see nothing

}  // namespace

ColorPicker::ColorPicker(CanvasViewport& viewport, const BrushModel& brush)
    : QWidget(&viewport), _viewport(viewport), _brush(brush) {
    letEventsThrough(*this);
    hide();
    _timer.setSingleShot(true);
    _timer.setInterval(kDelay);
    connect(&_timer, &QTimer::timeout, this, [this] {
        setHeld(true);
        showAt(_at);
    });
}

bool ColorPicker::isIdle() const {
    return _viewport.view() && !_viewport.view()->isDrawing();
}

void ColorPicker::setOn(bool on) {
    if (std::exchange(_on, on) == on)
        return;
    if (!isActive())
        hide();
    emit onChanged(on);
    emit activeChanged();
}

void ColorPicker::setHoldable(bool holdable) {
    _holdable = holdable;
    setHeld(_held && holdable);
}

void ColorPicker::setHeld(bool held) {
    _timer.stop();
    if (std::exchange(_held, held) == held)
        return;
    if (!isActive())
        hide();
    emit activeChanged();
}

// ---- What the pointer and the keyboard do

void ColorPicker::hover(QPointF at, Qt::KeyboardModifiers modifiers) {
    if (_pressed)
        return;
    setHeld(_holdable && modifiers == Qt::ControlModifier && isIdle());
    if (isActive())
        showAt(at);
}

bool ColorPicker::press(QPointF at, Qt::KeyboardModifiers modifiers) {
    hover(at, modifiers);
    if (!isActive() || !isIdle())
        return false;
    _before = present();
    _pressed = true;
    drag(at);
    return true;
}

void ColorPicker::drag(QPointF at) {
    showAt(at);
    if (_new.isValid())
        emit picked(_new);
}

void ColorPicker::release(Qt::KeyboardModifiers modifiers) {
    _pressed = false;
    _before = QColor();
    setOn(false);
    hover(_at, modifiers);
    if (!isActive())
        hide();
    emit activeChanged();
}

void ColorPicker::giveUp() {
    if (_before.isValid())
        emit picked(_before);
    leave();
}

void ColorPicker::leave() {
    _pressed = false;
    _before = QColor();
    setHeld(false);
    hide();
}

// With another key, Ctrl was meant for that.
void ColorPicker::watchKey(const QKeyEvent& event, QPointF pointer) {
    if (event.isAutoRepeat() || _pressed)
        return;
    const bool isMeant = _holdable && event.type() == QEvent::KeyPress && event.key() == Qt::Key_Control &&
                         event.modifiers() == Qt::ControlModifier && _viewport.underMouse() &&
                         !QApplication::activeModalWidget() && !QApplication::activePopupWidget() && isIdle();
    if (!isMeant)
        return setHeld(false);
    _at = pointer;
    if (!_held)
        _timer.start();
}

// ---- What is shown

QColor ColorPicker::present() const {
    return _brush.value(BrushKey::renderColor).value<ESColor>().toQColor();
}

QColor ColorPicker::colorAt(QPointF at) const {
    QDDrawView* view = _viewport.view();
    if (!view)
        return {};
    const QPointF point = _viewport.bufferPoint(at);
    return shownColor(view->displayImage(), QPoint(int(std::floor(point.x())), int(std::floor(point.y()))),
                      _side);
}

QRect ColorPicker::ringRect() const {
    const double reach = std::max(kOuter, _side * _viewport.scale()) + 4;
    return QRectF(_at.x() - reach, _at.y() - reach, 2 * reach, 2 * reach).toAlignedRect();
}

void ColorPicker::showAt(QPointF at) {
    update(ringRect());
    _at = at;
    _new = colorAt(at);
    if (!_new.isValid())
        return hide();
    if (isHidden()) {
        resize(_viewport.size());
        raise();
        show();
    }
    update(ringRect());
}

void ColorPicker::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto disc = [this](double radius) {
        return QRectF(_at.x() - radius, _at.y() - radius, 2 * radius, 2 * radius);
    };
    QPainterPath ring;
    ring.addEllipse(disc(kOuter));
    ring.addEllipse(disc(kInner));
    const auto fillHalf = [&](const QRectF& half, const QColor& color) {
        painter.setClipRect(half);
        painter.fillPath(ring, color);
    };
    fillHalf(disc(kOuter).adjusted(0, 0, 0, -kOuter), _new);
    fillHalf(disc(kOuter).adjusted(0, kOuter, 0, 0), _before.isValid() ? _before : present());
    painter.setClipping(false);
    // Dark and light, so that one of them shows on anything.
    for (const auto& [radius, color] : {std::pair(kOuter + 0.5, QColor(0, 0, 0, 170)),
                                        {kOuter - 0.5, QColor(255, 255, 255, 220)},
                                        {kInner + 0.5, QColor(255, 255, 255, 220)},
                                        {kInner - 0.5, QColor(0, 0, 0, 170)}}) {
        painter.setPen(QPen(color, 1));
        painter.drawEllipse(disc(radius));
    }
    const double square = _side * _viewport.scale();
    if (square < kLeastSquare)
        return;
    const QPointF pixel = _viewport.bufferPoint(_at);
    const QPointF middle =
        _viewport.pointOfBuffer({std::floor(pixel.x()) + 0.5, std::floor(pixel.y()) + 0.5});
    painter.translate(middle);
    painter.rotate(_viewport.view() ? -_viewport.view()->viewRotation() * 180 / std::numbers::pi : 0);
    painter.setPen(QPen(QColor(0, 0, 0, 170), 3));
    painter.drawRect(QRectF(-square / 2, -square / 2, square, square));
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(QRectF(-square / 2, -square / 2, square, square));
}

}  // namespace dabcanvas::dabpainter
