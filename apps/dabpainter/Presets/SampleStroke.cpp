// SPDX-License-Identifier: MIT
#include "Presets/SampleStroke.h"

#include <QPainter>
#include <QResizeEvent>
#include <algorithm>

#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kHeight = 92;
constexpr int kDelay = 60;  // milliseconds of rest before painting
constexpr int kSlice = 10;  // milliseconds of painting between events

}  // namespace

SampleStroke::SampleStroke(const BrushModel& model, QWidget* parent) : QWidget(parent), _model(model) {
    setFixedHeight(kHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setToolTip(tr("A stroke with the present brush"));
    takeEverything();
    _wait.setSingleShot(true);
    _wait.setInterval(kDelay);
    connect(&_wait, &QTimer::timeout, this, &SampleStroke::begin);
    connect(&_paint, &QTimer::timeout, this, &SampleStroke::paintSome);
    connect(&model, &BrushModel::changed, this, &SampleStroke::brushChanged);
}

QSize SampleStroke::sizeHint() const {
    return QSize(280, kHeight);
}

void SampleStroke::brushChanged(BrushKey key) {
    if (std::find(_toTake.begin(), _toTake.end(), key) == _toTake.end())
        _toTake.push_back(key);
    abandon();
    if (isVisible() && !_wait.isActive())
        _wait.start();  // not again with every change, so that the sample follows a slider
}

void SampleStroke::showEvent(QShowEvent*) {
    _wait.start();
}

void SampleStroke::resizeEvent(QResizeEvent*) {
    abandon();
    _wait.start();
}

void SampleStroke::abandon() {
    _wave.abandon();
    _paint.stop();
}

void SampleStroke::takeEverything() {
    _toTake.clear();
    for (const BrushProperty& property : brushProperties())
        _toTake.push_back(property.key);
}

void SampleStroke::begin() {
    abandon();
    const QDDrawCanvas* before = _wave.canvas();
    if (!_wave.prepare(size() * devicePixelRatioF()))
        return;
    if (_wave.canvas() != before)
        takeEverything();
    // The wave has made these fit.
    _toTake.push_back(BrushKey::radius);
    _toTake.push_back(BrushKey::slRadius);
    _model.apply(*_wave.canvas(), _toTake);
    _toTake.clear();
    _wave.begin(float(devicePixelRatioF()));
    _paint.start(0);
}

void SampleStroke::paintSome() {
    if (!_wave.paint(kSlice))
        return;
    _paint.stop();
    _shown = _wave.image();
    _shown.setDevicePixelRatio(devicePixelRatioF());
    update();
}

void SampleStroke::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (_shown.isNull())
        return;
    painter.fillRect(rect(), checkerBrush());
    painter.drawImage(0, 0, _shown);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace dabcanvas::dabpainter
