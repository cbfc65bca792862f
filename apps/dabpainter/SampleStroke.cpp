// SPDX-License-Identifier: MIT
#include "SampleStroke.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QResizeEvent>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "BrushPresentation.h"
#include "ESRender/ESImageRender.h"
#include "QDEAGLView/QDDrawCanvas.h"
#include "Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kHeight = 92;
constexpr int kDelay = 60;  // milliseconds of rest before painting
constexpr int kSlice = 10;  // milliseconds of painting between events
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

SampleStroke::SampleStroke(const BrushModel& model, QWidget* parent) : QWidget(parent), _model(model) {
    setFixedHeight(kHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setToolTip(tr("A stroke with the present brush"));
    for (const BrushProperty& property : brushProperties())
        _toTake.push_back(property.key);
    _wait.setSingleShot(true);
    _wait.setInterval(kDelay);
    connect(&_wait, &QTimer::timeout, this, &SampleStroke::begin);
    connect(&_paint, &QTimer::timeout, this, &SampleStroke::paintSome);
    connect(&model, &BrushModel::changed, this, &SampleStroke::brushChanged);
}

SampleStroke::~SampleStroke() = default;

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
    if (_next > 0 && _canvas)
        _canvas->drawingWithEndPoint(QPointF());  // cleared away with the rest
    _next = 0;
    _paint.stop();
}

bool SampleStroke::prepareCanvas() {
    const QSize wanted = size() * devicePixelRatioF();
    if (_unavailable || wanted.isEmpty())
        return false;
    if (_canvas && _canvas->bufferSize().toSize() == wanted)
        return true;
    _canvas = QDDrawCanvas::initWithFrame(QRectF(QPointF(0, 0), wanted));
    if (!_canvas) {
        _unavailable = true;  // said in the log; painting itself may still be possible
        return false;
    }
    _canvas->setProfiling(true);  // so that slices measure what the driver does, too
    _toTake.clear();
    for (const BrushProperty& property : brushProperties())
        _toTake.push_back(property.key);
    return true;
}

void SampleStroke::begin() {
    abandon();
    if (!prepareCanvas())
        return;
    takeBrush();
    paintBackground();
    _next = 0;
    enterSample(_next++);
    _paint.start(0);
}

// As the brush is, but no larger than there is room for.
void SampleStroke::takeBrush() {
    _toTake.push_back(BrushKey::radius);
    _toTake.push_back(BrushKey::slRadius);
    _model.apply(*_canvas, _toTake);
    _toTake.clear();
    const float dots = float(devicePixelRatioF());
    const float radius = _model.value(BrushKey::radius).toFloat() * dots;
    const float scatter = std::clamp(_model.value(BrushKey::distribution).toFloat(), 0.0f, 3.0f);
    const float most = kLargest * float(_canvas->bufferSize().height()) / (1 + scatter);
    const float shrink = std::min(1.0f, most / radius);
    _canvas->setRadius(radius * shrink);
    _canvas->setSlRadius(_model.value(BrushKey::slRadius).toFloat() * dots * shrink);
}

void SampleStroke::paintBackground() {
    const QColor color = _model.value(BrushKey::renderColor).value<ESColor>().toQColor();
    const int blend = _model.value(BrushKey::blendType).toInt();

    if (blend == ESBlendTypeBehind)
        _canvas->clear();
    else if (_canvas->isSmudgeType() || blend == ESBlendTypeTarnish || blend == ESBlendTypeBrightness ||
             blend == ESBlendTypeMultiply)
        _canvas->setImageInBufferRect(stripes(_canvas->bufferSize().toSize()),
                                      QRectF(QPointF(0, 0), _canvas->bufferSize()));
    else
        _canvas->clearWithColor(ESColor::grey(color.lightnessF() > 0.75f ? 0.35f : 1.0f), false);
}

void SampleStroke::enterSample(int i) {
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

void SampleStroke::paintSome() {
    QElapsedTimer spent;
    spent.start();
    while (_next <= kSamples && spent.elapsed() < kSlice)
        enterSample(_next++);
    if (_next <= kSamples)
        return;
    _next = 0;
    _paint.stop();
    _shown = _canvas->image();
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
