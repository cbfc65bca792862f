// SPDX-License-Identifier: MIT
#include "Colour/ColorSliders.h"

#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QSpinBox>
#include <algorithm>
#include <cmath>

#include "Colour/ColorChoice.h"
#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kStops = 48;
constexpr double kEnd = 4;  // points at either end, for half the handle

}  // namespace

// ---- One slider

GradientSlider::GradientSlider(int most, QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    setRange(0, most);
    setPageStep(most / 10);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void GradientSlider::setRamp(std::function<QColor(double)> ramp) {
    _ramp = std::move(ramp);
    update();
}

QRectF GradientSlider::groove() const {
    return QRectF(rect()).adjusted(kEnd, 3, -kEnd, -3);
}

int GradientSlider::valueAt(double x) const {
    const double share = (x - groove().left()) / groove().width();
    return int(std::lround(std::clamp(share, 0.0, 1.0) * maximum()));
}

void GradientSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF bar = groove();
    QLinearGradient gradient(bar.topLeft(), bar.topRight());
    for (int i = 0; _ramp && i <= kStops; ++i)
        gradient.setColorAt(double(i) / kStops, _ramp(double(i) / kStops));
    painter.setPen(
        QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), hasFocus() ? 2 : 1));
    painter.setBrush(gradient);
    painter.drawRoundedRect(bar, 3, 3);
    const double x = bar.left() + bar.width() * value() / std::max(1, maximum());
    const QRectF handle(x - 2.5, 1, 5, height() - 2);
    painter.setPen(QPen(QColor(0, 0, 0, 190), 1));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(handle, 2, 2);
}

void GradientSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    setSliderDown(true);
    setValue(valueAt(event->position().x()));
}

void GradientSlider::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown())
        setValue(valueAt(event->position().x()));
}

void GradientSlider::mouseReleaseEvent(QMouseEvent*) {
    setSliderDown(false);
}

// ---- The three

ColorSliders::ColorSliders(ColorChoice& choice, QWidget* parent) : QWidget(parent), _choice(choice) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    _parts = {addPart(0, tr("Lightness"), 100, 10, tr(" %")),
              addPart(1, tr("Chroma"), qRound(kMostChroma * 1000), 1, QString()),
              addPart(2, tr("Hue"), 360, 4, QStringLiteral("°"))};
    _parts[2].box->setWrapping(true);
    grid->setRowStretch(3, 1);
    _parts[0].slider->setRamp([this](double share) {
        const OkLch now = _choice.shade();
        return colorOf(insideGamut({share, now.chroma, now.hue}));
    });
    _parts[1].slider->setRamp([this](double share) {
        const OkLch now = _choice.shade();
        return colorOf(insideGamut({now.lightness, share * kMostChroma, now.hue}));
    });
    _parts[2].slider->setRamp([this](double share) {
        const OkLch now = _choice.shade();
        return colorOf(insideGamut({now.lightness, now.chroma, share * 360}));
    });
    connect(&choice, &ColorChoice::changed, this, &ColorSliders::showChoice);
    showChoice();
}

ColorSliders::Part ColorSliders::addPart(int row, const QString& name, int most, int steps,
                                         const QString& suffix) {
    auto* label = new QLabel(name);
    const Part part{new GradientSlider(most * steps), new QSpinBox};
    part.box->setRange(0, most);
    part.box->setSuffix(suffix);
    part.box->setKeyboardTracking(false);
    part.box->setAccessibleName(name);
    part.slider->setAccessibleName(name);
    guardFromWheel(part.box);
    guardFromWheel(part.slider);
    label->setBuddy(part.box);
    auto* grid = static_cast<QGridLayout*>(layout());
    grid->addWidget(label, row, 0);
    grid->addWidget(part.slider, row, 1);
    grid->addWidget(part.box, row, 2);
    connect(part.slider, &QSlider::valueChanged, this,
            [this, row, part](int value) { take(row, double(value) / part.slider->maximum()); });
    connect(part.box, &QSpinBox::valueChanged, this,
            [this, row, most](int value) { take(row, double(value) / most); });
    return part;
}

void ColorSliders::take(int part, double share) {
    if (part == 0)
        _choice.setLightness(share);
    else if (part == 1)
        _choice.setChroma(share * kMostChroma);
    else
        _choice.setHue(share * 360);
    showChoice();  // also where that is as far as it goes
}

void ColorSliders::showChoice() {
    const OkLch shade = _choice.shade();
    const std::array shares{shade.lightness, shade.chroma / kMostChroma, shade.hue / 360};
    for (std::size_t i = 0; i < _parts.size(); ++i) {
        const auto& [slider, box] = _parts[i];
        const QSignalBlocker quietSlider(slider), quietBox(box);
        slider->setValue(qRound(shares[i] * slider->maximum()));
        box->setValue(qRound(shares[i] * box->maximum()));
        slider->update();
    }
}

}  // namespace dabcanvas::dabpainter
