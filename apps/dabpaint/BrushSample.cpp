// SPDX-License-Identifier: MIT
#include "BrushSample.h"

#include <QPainter>
#include <algorithm>

#include "ESRender/ESImageRender.h"
#include "ToolCanvas.h"

namespace dabcanvas::dabpaint {

namespace {

constexpr std::int32_t kPreviewBrush = 4;

// Stripes of the hues, every one or one in so many of those, on white or on nothing.
QImage stripes(const QSize& size, int every, const QColor& between = Qt::white) {
    QImage image(size, QImage::Format_RGBA8888_Premultiplied);
    image.fill(between);
    const int width = std::max(1, size.height() / 5);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int stripe = (x + y / 2) / width;
            if (stripe % every == 0)
                image.setPixelColor(x, y, QColor::fromHsv(stripe * 47 % 360, every > 1 ? 80 : 140, 232));
        }
    }
    return image;
}

QImage bands(const QSize& size) {
    constexpr QRgb kColors[] = {0xff16202e, 0xff7a2f2a, 0xff2f6f9a, 0xff5c9a58, 0xffe2b33c, 0xffefe6d2};
    constexpr int kCount = int(std::size(kColors));
    QImage image(size, QImage::Format_RGBA8888_Premultiplied);
    for (int x = 0; x < size.width(); ++x) {
        for (int y = 0; y < size.height(); ++y)
            image.setPixel(x, y, kColors[x * kCount / size.width()]);
    }
    return image;
}

// Null for white.
QImage groundImage(const QDDrawCanvas& canvas, const QSize& size, SampleGround ground) {
    if (ground == SampleGround::bands)
        return bands(size);
    if (canvas.isSmudgeType())
        return stripes(size, 1);
    switch (canvas.blendType()) {
        case ESBlendTypeErase:
        case ESBlendTypeTarnish:
        case ESBlendTypeBrightness:
        case ESBlendTypeReset:
            return stripes(size, 1);
        case ESBlendTypeMultiply:
            return ground == SampleGround::plain ? QImage() : stripes(size, 5);
        case ESBlendTypeBehind:
            return stripes(size, 2, Qt::transparent);
        default:
            return {};
    }
}

void prepareGround(QDDrawCanvas& canvas, const QSize& size, SampleGround ground) {
    canvas.clearWithColor(ESColor::grey(1), false);
    if (const QImage image = groundImage(canvas, size, ground); !image.isNull())
        canvas.setImageInBufferRect(image, QRectF(QPointF(), QSizeF(size)));
}

void fitBrush(QDDrawCanvas& canvas, double largest) {
    const float most = float(largest);
    if (canvas.radius() <= most)
        return;
    const float subRadius = canvas.slRadius() * most / canvas.radius();
    canvas.setRadius(most);
    canvas.setSlRadius(subRadius);
}

}  // namespace

Result<QImage> brushSample(const Brush& brush, const std::vector<BrushPlan::Step>& settings,
                           const QSize& size, const BrushView& view) {
    auto made = makeCanvas(size);
    if (!made)
        return made.problem();
    QDDrawCanvas& canvas = **made;
    canvas.setRandomSeed(1);  // the canvas's own fixed numbers would tie a dab's tip to its colour
    brush.applyTo(canvas);
    for (const auto& [property, value] : settings) {
        if (!canvas.setBrushValue(*property, *value))
            return Problem{0,
                           {},
                           QStringLiteral("the canvas does not take this value of %1")
                               .arg(QLatin1String(property->name))};
    }
    fitBrush(canvas, view.largest * size.height());
    prepareGround(canvas, size, view.ground);
    const bool encloses = canvas.brushType() == kPreviewBrush && view.kind == SampleKind::wave;
    const SampleKind kind = encloses ? SampleKind::outline : view.kind;
    const double width = canvas.radius() * (1 + canvas.distribution());
    for (const auto& samples : sampleStrokes(kind, size, width))
        paintSamples(canvas, samples, [] {});
    const QImage painted = canvas.image();
    if (painted.isNull())
        return Problem{0, {}, QStringLiteral("the canvas could not be read back")};
    QImage shown(size, QImage::Format_RGB32);
    shown.fill(Qt::white);  // also under what was erased
    QPainter(&shown).drawImage(0, 0, painted);
    return shown;
}

}  // namespace dabcanvas::dabpaint
