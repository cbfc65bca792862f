// SPDX-License-Identifier: MIT
#include "ReferenceImages.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace dabcanvas::dabpaint {

namespace {

constexpr int kTip = 96, kPaper = 96;  // pixels a side

QImage filled(const QPainterPath& path, const QColor& color) {
    QImage image(kTip, kTip, QImage::Format_RGBA8888_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(path, color);
    return image;
}

// Like no mirror image or turn of itself.
QImage flag() {
    QPainterPath path;
    path.addRect(22, 4, 12, 88);
    path.moveTo(34, 6);
    path.lineTo(84, 24);
    path.lineTo(34, 48);
    path.closeSubpath();
    return filled(path, Qt::black);
}

QImage leaf() {
    QPainterPath path;
    path.moveTo(8, 70);
    path.cubicTo(12, 20, 60, 8, 90, 26);
    path.cubicTo(78, 66, 46, 84, 8, 70);
    return filled(path, QColor(70, 140, 60));
}

QImage star() {
    QPainterPath path;
    for (int i = 0; i < 10; ++i) {
        const double turn = i * std::numbers::pi / 5, reach = i % 2 == 0 ? 46 : 19;
        const QPointF at(48 + reach * std::sin(turn), 48 - reach * std::cos(turn));
        i == 0 ? path.moveTo(at) : path.lineTo(at);
    }
    path.closeSubpath();
    return filled(path, QColor(210, 120, 30));
}

QImage disc() {
    QPainterPath path;
    path.addEllipse(QRectF(1, 1, kTip - 2, kTip - 2));
    return filled(path, Qt::black);
}

QImage square() {
    QPainterPath path;
    path.addRect(0, 0, kTip, kTip);
    return filled(path, Qt::black);
}

// A number 0..1 for every place of a lattice that repeats.
double latticeNoise(int x, int y, int period) {
    auto hash = std::uint32_t(x % period) * 374761393u + std::uint32_t(y % period) * 668265263u +
                std::uint32_t(period) * 2246822519u;
    hash = (hash ^ (hash >> 13)) * 1274126177u;
    return ((hash ^ (hash >> 16)) & 0xffff) / 65535.0;
}

double smoothNoise(double x, double y, int period) {
    const int left = int(x), top = int(y);
    const auto ease = [](double t) { return t * t * (3 - 2 * t); };
    const double across = ease(x - left), down = ease(y - top);
    const auto row = [&](int at) {
        return std::lerp(latticeNoise(left, at, period), latticeNoise(left + 1, at, period), across);
    };
    return std::lerp(row(top), row(top + 1), down);
}

double grain(int x, int y) {
    double height = 0.5;
    for (const auto& [period, strength] : {std::pair(12, 0.5), {24, 0.6}, {48, 0.5}})
        height +=
            strength * (smoothNoise(double(x) * period / kPaper, double(y) * period / kPaper, period) - 0.5);
    return height;
}

double linen(int x, int y) {
    const auto thread = [](int place) { return std::abs(std::sin(place * std::numbers::pi / 8)); };
    return (x / 8 + y / 8) % 2 == 0 ? thread(x) : thread(y);
}

double stripes(int x, int y) {
    return (x + y) % 16 < 8 ? 1 : 0.15;
}

QImage paper(double (*height)(int x, int y)) {
    QImage image(kPaper, kPaper, QImage::Format_RGBA8888_Premultiplied);
    for (int y = 0; y < kPaper; ++y) {
        for (int x = 0; x < kPaper; ++x) {
            const int grey = std::clamp(int(std::lround(255 * height(x, y))), 0, 255);
            image.setPixel(x, y, qRgb(grey, grey, grey));
        }
    }
    return image;
}

}  // namespace

QImage referenceImage(const QString& name) {
    constexpr struct {
        const char* name;
        QImage (*tip)();
        double (*height)(int x, int y);
    } kImages[] = {{"flag", flag, nullptr},   {"leaf", leaf, nullptr},      {"star", star, nullptr},
                   {"disc", disc, nullptr},   {"square", square, nullptr},  {"grain", nullptr, grain},
                   {"linen", nullptr, linen}, {"stripes", nullptr, stripes}};
    for (const auto& [known, tip, height] : kImages) {
        if (name == QLatin1String(known))
            return tip ? tip() : paper(height);
    }
    return {};
}

}  // namespace dabcanvas::dabpaint
