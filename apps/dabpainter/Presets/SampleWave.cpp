// SPDX-License-Identifier: MIT
#include "Presets/SampleWave.h"

#include <QElapsedTimer>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "Canvas/QDDrawCanvas.h"
#include "ESRender/ESImageRender.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kSamples = 64;
constexpr float kLargest = 0.5f;  // brush size in canvas heights

// Something to smudge, or to change: stripes of the hues.
QImage stripes(const QSize& size) {
    QImage image(size, QImage::Format_RGBA8888_Premultiplied);
    const int width = std::max(1, size.height() / 4);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int stripe = (x + y / 2) / width;
            image.setPixelColor(x, y, QColor::fromHsv(stripe * 47 % 360, 150, 235));
        }
    }
    return image;
}

}  // namespace

SampleWave::SampleWave() = default;
SampleWave::~SampleWave() = default;

bool SampleWave::prepare(QSize size) {
    if (_unavailable || size.isEmpty())
        return false;
    if (_canvas && _canvas->bufferSize().toSize() == size)
        return true;
    _next = 0;
    _canvas = QDDrawCanvas::initWithFrame(QRectF(QPointF(0, 0), size));
    if (!_canvas) {
        _unavailable = true;  // said in the log; painting itself may still be possible
        return false;
    }
    _canvas->setProfiling(true);  // so that slices measure what the driver does, too
    return true;
}

void SampleWave::begin(float dots) {
    abandon();
    fitBrush(dots);
    paintBackground();
    enterSample(_next++);
}

void SampleWave::fitBrush(float dots) {
    const float radius = _canvas->radius() * dots, slRadius = _canvas->slRadius() * dots;
    const float scatter = std::clamp(_canvas->distribution(), 0.0f, 3.0f);
    const float most = kLargest * float(_canvas->bufferSize().height()) / (1 + scatter);
    const float shrink = std::min(1.0f, most / radius);
    _canvas->setRadius(radius * shrink);
    _canvas->setSlRadius(slRadius * shrink);
}

void SampleWave::paintBackground() {
    const QColor color = _canvas->renderColor().toQColor();
    const int blend = _canvas->blendType();
    if (blend == ESBlendTypeBehind)
        _canvas->clear();
    else if (_canvas->isSmudgeType() || blend == ESBlendTypeTarnish || blend == ESBlendTypeBrightness ||
             blend == ESBlendTypeMultiply)
        _canvas->setImageInBufferRect(stripes(_canvas->bufferSize().toSize()),
                                      QRectF(QPointF(0, 0), _canvas->bufferSize()));
    else  // what is erased is shown as light as white
        _canvas->clearWithColor(
            ESColor::grey(color.lightnessF() > 0.75f || blend == ESBlendTypeErase ? 0.35f : 1.0f), false);
}

void SampleWave::enterSample(int i) {
    const double width = _canvas->bufferSize().width(), height = _canvas->bufferSize().height();
    const double share = i / double(kSamples);
    const double margin = height * 0.3;
    const QPointF at(margin + share * (width - 2 * margin),
                     height * (0.5 - 0.22 * std::sin(share * 2 * std::numbers::pi)));
    const float pressure = float(std::sin(share * std::numbers::pi));
    if (i == 0)
        _canvas->drawingWithBeginPoint(at, 0.0f, 0.0f, false);
    else if (i < kSamples)
        _canvas->drawingWithMoveToPoint(at, pressure, 0.0f, false);
    else
        _canvas->drawingWithEndPoint(at, 0.0f, 0.0f, false);
}

bool SampleWave::paint(int milliseconds) {
    QElapsedTimer spent;
    spent.start();
    while (_next > 0 && _next <= kSamples && spent.elapsed() < milliseconds)
        enterSample(_next++);
    if (_next > 0 && _next <= kSamples)
        return false;
    _next = 0;
    return true;
}

void SampleWave::abandon() {
    if (_next > 0 && _canvas)
        _canvas->drawingWithEndPoint(QPointF());  // cleared away with the rest
    _next = 0;
}

QImage SampleWave::image() const {
    return _canvas ? _canvas->image() : QImage();
}

}  // namespace dabcanvas::dabpainter
