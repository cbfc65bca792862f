// SPDX-License-Identifier: MIT
#include "BrushSample.h"

#include <QFont>
#include <QGuiApplication>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "ESRender/ESImageRender.h"
#include "LogCatcher.h"
#include "ToolCanvas.h"

namespace dabcanvas::dabpaint {

namespace {

constexpr std::int32_t kPreviewBrush = 4;
constexpr double kPace = 9;       // mean distance between samples, in pixels
constexpr double kLargest = 0.6;  // brush size in sample heights
constexpr int kLabel = 26, kLabelText = 15, kGap = 8;

using std::numbers::pi;

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

QImage ground(const QDDrawCanvas& canvas, const QSize& size) {
    if (canvas.isSmudgeType())
        return stripes(size, 1);
    switch (canvas.blendType()) {
        case ESBlendTypeErase:
        case ESBlendTypeTarnish:
        case ESBlendTypeBrightness:
        case ESBlendTypeReset:
            return stripes(size, 1);
        case ESBlendTypeMultiply:
            return stripes(size, 5);
        case ESBlendTypeBehind:
            return stripes(size, 2, Qt::transparent);
        default:
            return {};
    }
}

void prepareGround(QDDrawCanvas& canvas, const QSize& size) {
    canvas.clearWithColor(ESColor::grey(1), false);
    if (const QImage image = ground(canvas, size); !image.isNull())
        canvas.setImageInBufferRect(image, QRectF(QPointF(), QSizeF(size)));
}

void fitBrush(QDDrawCanvas& canvas, double height) {
    const float most = float(kLargest * height);
    if (canvas.radius() <= most)
        return;
    const float subRadius = canvas.slRadius() * most / canvas.radius();
    canvas.setRadius(most);
    canvas.setSlRadius(subRadius);
}

// A wave from left to right, entered slowly at both ends.
std::vector<RecordedSample> wave(const QSize& size) {
    const double width = size.width(), height = size.height(), margin = std::min(width, height) * 0.3;
    const int last = std::max(12, int(width / kPace));
    std::vector<RecordedSample> samples;
    for (int i = 0; i <= last; ++i) {
        const double time = double(i) / last;
        const double share = time - 0.6 * std::sin(time * 2 * pi) / (2 * pi);
        // The pen lifts a little before the end, as pressure arrives with a lag.
        const double pressure = std::sin(std::min(time * 1.06, 1.0) * pi);
        samples.push_back({margin + share * (width - 2 * margin),
                           height * (0.5 - 0.2 * std::sin(share * 2 * pi)), float(pressure), -1});
    }
    return samples;
}

// The outline of a leaf.
std::vector<RecordedSample> outline(const QSize& size) {
    const double width = size.width(), height = size.height();
    const int last = std::max(24, int(2 * width / kPace));
    std::vector<RecordedSample> samples;
    for (int i = 0; i <= last; ++i) {
        const double turn = double(i) / last * 2 * pi;
        const double across = std::sin(turn) * std::abs(std::sin(turn));
        samples.push_back({width * (0.5 - 0.4 * std::cos(turn)),
                           height * (0.5 - 0.1 * std::cos(turn) - 0.34 * across), 0.7f, -1});
    }
    return samples;
}

}  // namespace

Result<QImage> brushSample(const Brush& brush, const std::vector<BrushPlan::Step>& settings,
                           const QSize& size) {
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
    fitBrush(canvas, size.height());
    prepareGround(canvas, size);
    paintSamples(canvas, canvas.brushType() == kPreviewBrush ? outline(size) : wave(size), [] {});
    const QImage painted = canvas.image();
    if (painted.isNull())
        return Problem{0, {}, QStringLiteral("the canvas could not be read back")};
    QImage shown(size, QImage::Format_RGB32);
    shown.fill(Qt::white);  // also under what was erased
    QPainter(&shown).drawImage(0, 0, painted);
    return shown;
}

QImage sampleSheet(const std::vector<NamedSample>& samples) {
    // Only text needs Qt's platform, and no window of it.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    int count = 1;
    char name[] = "dabpaint";
    char* arguments[] = {name, nullptr};
    const LogCatcher log;  // what the platform says of its surroundings is not about presets
    const QGuiApplication platform(count, arguments);

    const QSize one = samples.front().image.size();
    const int width = one.width() + kGap, height = one.height() + kLabel + kGap;
    const int all = int(samples.size());
    // About sixteen to nine.
    const int columns = std::clamp(int(std::lround(std::sqrt(16.0 / 9.0 * all * height / width))), 1, all);
    const int rows = (all + columns - 1) / columns;
    QImage sheet(columns * width + kGap, rows * height + kGap, QImage::Format_RGB32);
    sheet.fill(QColor(0xe4, 0xe4, 0xe2));
    QPainter painter(&sheet);
    QFont font = painter.font();
    font.setPixelSize(kLabelText);
    painter.setFont(font);
    painter.setPen(QColor(0x30, 0x30, 0x30));
    for (int i = 0; i < all; ++i) {
        const QPoint at(kGap + i % columns * width, kGap + i / columns * height);
        painter.drawImage(at, samples[std::size_t(i)].image);
        const QRect label(at.x() + kGap, at.y() + one.height(), one.width() - 2 * kGap, kLabel);
        painter.drawText(label, Qt::AlignVCenter | Qt::AlignLeft,
                         painter.fontMetrics().elidedText(samples[std::size_t(i)].name.simplified(),
                                                          Qt::ElideRight, label.width()));
    }
    return sheet;
}

}  // namespace dabcanvas::dabpaint
