// SPDX-License-Identifier: MIT
#include "Colour/ColorWheel.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "Colour/ColorChoice.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr double kHalfHeight = std::numbers::sqrt3 / 2, kGreySide = -0.5;
constexpr double kInner = 0.82;  // of the ring, of its outer radius
constexpr double kGap = 3;       // points from ring to triangle
constexpr double kMark = 5;      // radius, points
constexpr int kHues = 360;

double turned(double radian) {
    const double degrees = radian * 180 / std::numbers::pi;
    return degrees < 0 ? degrees + 360 : degrees;
}

// 0 to the right, then counter-clockwise: red is a little above.
double hueAt(QPointF fromCentre) {
    return turned(std::atan2(-fromCentre.y(), fromCentre.x()));
}

double coverage(double distanceInside) {
    return std::clamp(distanceInside + 0.5, 0.0, 1.0);
}

const std::vector<QRgb>& ringHues() {
    static const auto hues = [] {
        std::vector<QRgb> all;
        for (int i = 0; i < kHues; ++i)
            all.push_back(colorOf(purest(360.0 * i / kHues)).rgb());
        return all;
    }();
    return hues;
}

QRgb covered(QRgb color, double share) {
    return qPremultiply(qRgba(qRed(color), qGreen(color), qBlue(color), int(std::lround(share * 255))));
}

// How far a place lies to the left of the way from a to b.
double leftOf(QPointF place, QPointF a, QPointF b) {
    const QPointF way = b - a, from = place - a;
    return (way.y() * from.x() - way.x() * from.y()) / std::hypot(way.x(), way.y());
}

// An image pixel by pixel, whatever fraction of a pixel its widget begins at.
void drawSharp(QPainter& painter, QPointF at, const QImage& image) {
    const QTransform device = painter.deviceTransform();
    const QPointF pixel = device.map(at);
    painter.drawImage(device.inverted().map(QPointF(std::round(pixel.x()), std::round(pixel.y()))), image);
}

// On whatever colour: dark around light.
void drawMark(QPainter& painter, QPointF at, const QColor& color) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(color);
    painter.setPen(QPen(QColor(0, 0, 0, 190), 3));
    painter.drawEllipse(at, kMark, kMark);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.drawEllipse(at, kMark, kMark);
}

double stepOf(const QKeyEvent& event, double step) {
    return event.modifiers() & Qt::ShiftModifier ? 10 * step : step;
}

}  // namespace

// ---- Where shades lie

ShadeMap::ShadeMap(double hue) : _hue(hue), _pureEven(evenLightness(purest(hue).lightness)) {
    const double y = kHalfHeight * (1 - 2 * _pureEven);
    _pure = {std::sqrt(1 - y * y), y};
}

QPointF ShadeMap::white() const {
    return {kGreySide, -kHalfHeight};
}

QPointF ShadeMap::black() const {
    return {kGreySide, kHalfHeight};
}

double ShadeMap::width(double even) const {
    return (_pure.x() - kGreySide) * (even < _pureEven ? even / _pureEven : (1 - even) / (1 - _pureEven));
}

QPointF ShadeMap::placeOf(const OkLch& shade) const {
    const double even = evenLightness(shade.lightness), most = mostChroma(shade.lightness, _hue);
    const double share = most > 0 ? std::min(shade.chroma / most, 1.0) : 0;
    return {kGreySide + share * width(even), kHalfHeight * (1 - 2 * even)};
}

OkLch ShadeMap::shadeAt(QPointF place) const {
    const double even = std::clamp((1 - place.y() / kHalfHeight) / 2, 0.0, 1.0), across = width(even);
    const double share = across > 0 ? std::clamp((place.x() - kGreySide) / across, 0.0, 1.0) : 0;
    const double lightness = lightnessOfEven(even);
    return {lightness, share * mostChroma(lightness, _hue), _hue};
}

bool ShadeMap::contains(QPointF place, double margin) const {
    return std::min({leftOf(place, white(), black()), leftOf(place, black(), _pure),
                     leftOf(place, _pure, white())}) > -margin;
}

// ---- As images

QImage hueRingImage(int pixels, double innerShare) {
    const std::vector<QRgb>& hues = ringHues();
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    const double radius = pixels / 2.0, inner = radius * innerShare;
    for (int y = 0; y < pixels; ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < pixels; ++x) {
            const QPointF from(x + 0.5 - radius, y + 0.5 - radius);
            const double distance = std::hypot(from.x(), from.y());
            const double share = coverage(radius - 0.5 - distance) * coverage(distance - inner);
            row[x] = share > 0 ? covered(hues[std::size_t(hueAt(from) / 360 * kHues) % kHues], share) : 0;
        }
    }
    return image;
}

QImage shadeImage(const ShadeMap& map, int pixels) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    const double radius = pixels / 2.0;
    for (int y = 0; y < pixels; ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        const double up = (y + 0.5) / radius - 1;
        const OkLch edge = map.shadeAt({2, up});
        const ShadeRow shades(edge.lightness, map.hue());
        const double across = map.width(evenLightness(edge.lightness));
        for (int x = 0; x < pixels; ++x) {
            const QPointF place((x + 0.5) / radius - 1, up);
            const double inside =
                std::min({leftOf(place, map.white(), map.black()), leftOf(place, map.black(), map.pure()),
                          leftOf(place, map.pure(), map.white())});
            const double share = coverage(inside * radius);
            if (share <= 0) {
                row[x] = 0;
                continue;
            }
            const double way = across > 0 ? std::clamp((place.x() - kGreySide) / across, 0.0, 1.0) : 0;
            row[x] = covered(shades.at(way * edge.chroma), share);
        }
    }
    return image;
}

// ---- The triangle

ShadeTriangle::ShadeTriangle(ColorChoice& choice, QWidget* parent) : QWidget(parent), _choice(choice) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Lightness and chroma"));
    setToolTip(tr("Lightness and chroma: drag, or the arrow keys"));
    connect(&choice, &ColorChoice::changed, this, [this] {
        describe();
        update();
    });
    describe();
}

void ShadeTriangle::describe() {
    const OkLch shade = _choice.shade();
    setAccessibleDescription(
        tr("Lightness %1 %, chroma %2").arg(qRound(shade.lightness * 100)).arg(qRound(shade.chroma * 1000)));
}

QPointF ShadeTriangle::toMap(QPointF at) const {
    return (at - QRectF(rect()).center()) / (width() / 2.0);
}

void ShadeTriangle::paintEvent(QPaintEvent*) {
    const ShadeMap map(_choice.shade().hue);
    const int pixels = int(std::floor(width() * devicePixelRatioF()));
    if (_image.width() != pixels || _imageHue != map.hue()) {
        _image = shadeImage(map, pixels);
        _imageHue = map.hue();
    }
    _image.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(this);
    drawSharp(painter, {}, _image);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto point = [this](QPointF place) { return QRectF(rect()).center() + place * width() / 2.0; };
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawPolygon(QPolygonF({point(map.white()), point(map.black()), point(map.pure())}));
    }
    drawMark(painter, point(map.placeOf(_choice.shade())), _choice.color());
}

void ShadeTriangle::take(QPointF at) {
    const OkLch shade = ShadeMap(_choice.shade().hue).shadeAt(toMap(at));
    _choice.setTone(shade.lightness, shade.chroma);
}

// What lies beside the triangle is the ring's.
void ShadeTriangle::mousePressEvent(QMouseEvent* event) {
    const double margin = 2 * kMark / width();
    if (event->button() != Qt::LeftButton ||
        !ShadeMap(_choice.shade().hue).contains(toMap(event->position()), margin))
        return event->ignore();
    _held = true;
    take(event->position());
}

void ShadeTriangle::mouseMoveEvent(QMouseEvent* event) {
    if (!_held)
        return event->ignore();
    take(event->position());
}

void ShadeTriangle::mouseReleaseEvent(QMouseEvent* event) {
    if (!std::exchange(_held, false))
        event->ignore();
}

void ShadeTriangle::keyPressEvent(QKeyEvent* event) {
    const OkLch shade = _choice.shade();
    const double step = stepOf(*event, 0.01), chroma = step * kMostChroma;
    switch (event->key()) {
        case Qt::Key_Up:
            return _choice.setLightness(shade.lightness + step);
        case Qt::Key_Down:
            return _choice.setLightness(shade.lightness - step);
        case Qt::Key_Right:
            return _choice.setChroma(shade.chroma + chroma);
        case Qt::Key_Left:
            return _choice.setChroma(shade.chroma - chroma);
        default:
            return QWidget::keyPressEvent(event);
    }
}

void ShadeTriangle::focusInEvent(QFocusEvent*) {
    update();
}

void ShadeTriangle::focusOutEvent(QFocusEvent*) {
    update();
}

// ---- The ring

ColorWheel::ColorWheel(ColorChoice& choice, QWidget* parent)
    : QWidget(parent), _choice(choice), _triangle(new ShadeTriangle(choice, this)) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Hue"));
    setToolTip(tr("Hue: drag, or the arrow keys"));
    connect(&choice, &ColorChoice::changed, this, [this] {
        describe();
        update();
    });
    describe();
}

void ColorWheel::describe() {
    setAccessibleDescription(tr("%1 degrees").arg(qRound(_choice.shade().hue)));
}

double ColorWheel::radius() const {
    return std::min(width(), height()) / 2.0;
}

void ColorWheel::resizeEvent(QResizeEvent*) {
    const double inner = std::max(4.0, radius() * kInner - kGap);
    const int side = 2 * int(inner);
    _triangle->setGeometry(int(centre().x() - side / 2.0), int(centre().y() - side / 2.0), side, side);
}

void ColorWheel::paintEvent(QPaintEvent*) {
    const int pixels = int(std::floor(2 * radius() * devicePixelRatioF()));
    if (_image.width() != pixels)
        _image = hueRingImage(pixels, kInner);
    _image.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(this);
    drawSharp(painter, centre() - QPointF(radius(), radius()), _image);
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawEllipse(centre(), radius() - 1, radius() - 1);
    }
    const double radian = _choice.shade().hue * std::numbers::pi / 180, middle = radius() * (1 + kInner) / 2;
    drawMark(painter, centre() + middle * QPointF(std::cos(radian), -std::sin(radian)),
             colorOf(purest(_choice.shade().hue)));
}

void ColorWheel::take(QPointF at) {
    _choice.setHue(hueAt(at - centre()));
}

void ColorWheel::mousePressEvent(QMouseEvent* event) {
    const QPointF from = event->position() - centre();
    const double distance = std::hypot(from.x(), from.y());
    if (event->button() != Qt::LeftButton || distance > radius() || distance < radius() * kInner - kGap)
        return event->ignore();
    _held = true;
    setFocus(Qt::MouseFocusReason);
    take(event->position());
}

void ColorWheel::mouseMoveEvent(QMouseEvent* event) {
    if (_held)
        take(event->position());
}

void ColorWheel::mouseReleaseEvent(QMouseEvent*) {
    _held = false;
}

void ColorWheel::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool further = key == Qt::Key_Up || key == Qt::Key_Right;
    if (!further && key != Qt::Key_Down && key != Qt::Key_Left)
        return QWidget::keyPressEvent(event);
    _choice.setHue(_choice.shade().hue + (further ? 1 : -1) * stepOf(*event, 1));
}

}  // namespace dabcanvas::dabpainter
