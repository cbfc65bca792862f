// SPDX-License-Identifier: MIT
#include "Tools/ValueSlider.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kSteps = 400, kWheelSteps = 8;
constexpr int kHeight = 24, kPad = 7, kRound = 3;

}  // namespace

ValueSlider::ValueSlider(const BrushPresentation& shown, bool logarithmic, QWidget* parent)
    : QSlider(Qt::Horizontal, parent), _shown(shown), _logarithmic(logarithmic) {
    setRange(0, kSteps);
    setSingleStep(4);
    setPageStep(40);
    setFocusPolicy(Qt::TabFocus);  // a click leaves the keyboard to the canvas
    setAccessibleName(shown.label);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(this, &QSlider::valueChanged, this, [this](int position) {
        _number = numberAt(position);
        setAccessibleDescription(numberText());
        update();
        emit edited(stored());
    });
}

void ValueSlider::setStored(double stored) {
    setNumber(stored * _shown.scale);
}

void ValueSlider::setNumber(double number) {
    const QSignalBlocker quiet(this);
    _number = number;
    setValue(positionOf(_number));
    setAccessibleDescription(numberText());
    update();
}

double ValueSlider::numberAt(int position) const {
    const double share = double(position) / kSteps;
    const double number = _logarithmic ? _shown.low * std::pow(_shown.high / _shown.low, share)
                                       : _shown.low + share * (_shown.high - _shown.low);
    const double places = std::pow(10.0, _shown.decimals);
    return std::round(number * places) / places;
}

int ValueSlider::positionOf(double number) const {
    const double held = std::clamp(number, _shown.low, _shown.high);
    const double share = _logarithmic ? std::log(held / _shown.low) / std::log(_shown.high / _shown.low)
                                      : (held - _shown.low) / (_shown.high - _shown.low);
    return int(std::lround(kSteps * share));
}

QString ValueSlider::numberText() const {
    // Above a hundred nobody asks for tenths.
    return locale().toString(_number, 'f', _number < 99.95 ? _shown.decimals : 0) + _shown.suffix;
}

// ---- Look

QSize ValueSlider::sizeHint() const {
    return minimumSizeHint() + QSize(90, 0);
}

QSize ValueSlider::minimumSizeHint() const {
    const int text = fontMetrics().horizontalAdvance(_shown.label + QStringLiteral("  8888") + _shown.suffix);
    return QSize(text + 2 * kPad, std::max(kHeight, fontMetrics().height() + 6));
}

void ValueSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Normal : QPalette::Disabled;
    const QRectF box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath frame;
    frame.addRoundedRect(box, kRound, kRound);
    painter.fillPath(frame, palette().color(group, QPalette::Base));
    QColor bar = palette().color(group, QPalette::Highlight);
    bar.setAlphaF(0.35f);  // the text lies above it
    painter.save();
    painter.setClipPath(frame);
    const double end = box.left() + box.width() * value() / kSteps;
    painter.fillRect(QRectF(box.left(), box.top(), end - box.left(), box.height()), bar);
    painter.fillRect(QRectF(end - 1, box.top(), 2, box.height()),
                     palette().color(group, QPalette::Highlight));
    painter.restore();
    painter.setPen(
        QPen(palette().color(group, hasFocus() ? QPalette::Highlight : QPalette::Mid), hasFocus() ? 2 : 1));
    painter.drawPath(frame);
    painter.setPen(palette().color(group, QPalette::Text));
    const QRect inside = rect().adjusted(kPad, 0, -kPad, 0);
    painter.drawText(inside, Qt::AlignLeft | Qt::AlignVCenter, _shown.label);
    painter.drawText(inside, Qt::AlignRight | Qt::AlignVCenter, numberText());
}

// ---- Pointer

void ValueSlider::moveTo(double x) {
    setValue(int(std::lround(kSteps * std::clamp(x / std::max(1, width()), 0.0, 1.0))));
}

void ValueSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    _beforePress = _number;
    setSliderDown(true);
    moveTo(event->position().x());
}

void ValueSlider::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown())
        moveTo(event->position().x());
}

void ValueSlider::mouseReleaseEvent(QMouseEvent*) {
    setSliderDown(false);
}

// Its first press has moved the slider.
void ValueSlider::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    setNumber(_beforePress);
    emit edited(stored());
    beginTyping();
}

void ValueSlider::wheelEvent(QWheelEvent* event) {
    const int turned = event->angleDelta().y() != 0 ? event->angleDelta().y() : event->angleDelta().x();
    if (turned != 0)
        setValue(value() + (turned > 0 ? 1 : -1) * std::max(1, std::abs(turned) * kWheelSteps / 120));
    event->accept();
}

// ---- Typing

void ValueSlider::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_F2:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return beginTyping();
        default:
            QSlider::keyPressEvent(event);
    }
}

void ValueSlider::beginTyping() {
    _focusBefore = QApplication::focusWidget();
    _field = makeNumberBox(_shown, this);
    _field->setButtonSymbols(QAbstractSpinBox::NoButtons);
    _field->setAlignment(Qt::AlignRight);
    _field->setAccessibleName(_shown.label);
    _field->setValue(_number);
    _typedFrom = _field->value();  // as rounded for reading
    const int room = fontMetrics().horizontalAdvance(QStringLiteral("88888.8") + _shown.suffix) + 2 * kPad;
    _field->setGeometry(rect().adjusted(std::max(0, width() - room), 0, 0, 0));
    _field->installEventFilter(this);
    _field->show();
    _field->setFocus();
    _field->selectAll();
}

void ValueSlider::endTyping(bool takes) {
    QDoubleSpinBox* field = std::exchange(_field, nullptr);
    field->interpretText();
    const double typed = field->value();
    if (field->hasFocus() && _focusBefore)
        _focusBefore->setFocus();
    field->hide();
    field->deleteLater();
    if (!takes || typed == _typedFrom)
        return;
    setNumber(typed);
    emit edited(stored());
}

bool ValueSlider::eventFilter(QObject* watched, QEvent* event) {
    if (watched != _field)
        return false;
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            endTyping(true);
        return false;
    }
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Escape)
        return false;
    event->accept();
    if (event->type() == QEvent::KeyPress)
        endTyping(key != Qt::Key_Escape);
    return true;
}

}  // namespace dabcanvas::dabpainter
