// SPDX-License-Identifier: MIT
#include "Selection/FloatingPicture.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace dabcanvas::dabpainter {

namespace {

constexpr QImage::Format kFormat = QImage::Format_RGBA8888_Premultiplied;
constexpr double kQuarter = std::numbers::pi / 2;
constexpr double kRounding = 1e-6;  // what turning leaves beside a whole pixel

double away(double length) {
    return std::abs(length) >= 1 ? length : std::copysign(1.0, length);
}

QPointF turned(QPointF point, double radian) {
    const double c = std::cos(radian), s = std::sin(radian);
    return {point.x() * c - point.y() * s, point.x() * s + point.y() * c};
}

int quarters(double radian) {
    return int(std::lround(radian / kQuarter)) & 3;
}

}  // namespace

FloatingPicture::FloatingPicture(const QImage& picture, QPoint corner)
    : _picture(picture.convertToFormat(kFormat)),
      _centre(QPointF(corner) + QPointF(picture.width(), picture.height()) / 2),
      _size(picture.size()) {
    _picture.setDevicePixelRatio(1);
}

QTransform FloatingPicture::toBuffer() const {
    QTransform transform = QTransform::fromTranslate(_centre.x(), _centre.y());
    transform.rotateRadians(_radian);
    transform.scale(_size.width() / _picture.width(), _size.height() / _picture.height());
    transform.translate(-_picture.width() / 2.0, -_picture.height() / 2.0);
    return transform;
}

QPointF FloatingPicture::at(QPointF side) const {
    return _centre + turned({side.x() * _size.width() / 2, side.y() * _size.height() / 2}, _radian);
}

bool FloatingPicture::contains(QPointF bufferPoint) const {
    const QPointF from = turned(bufferPoint - _centre, -_radian);
    return std::abs(from.x()) <= std::abs(_size.width()) / 2 &&
           std::abs(from.y()) <= std::abs(_size.height()) / 2;
}

FloatingPicture FloatingPicture::scaled(double scale) const {
    FloatingPicture other = *this;
    other._centre *= scale;
    other._size *= scale;
    return other;
}

QRect FloatingPicture::bounds() const {
    const QPointF corners[] = {at({-1, -1}), at({1, -1}), at({1, 1}), at({-1, 1})};
    const auto [left, right] = std::minmax({corners[0].x(), corners[1].x(), corners[2].x(), corners[3].x()});
    const auto [top, bottom] = std::minmax({corners[0].y(), corners[1].y(), corners[2].y(), corners[3].y()});
    return QRect(QPoint(int(std::floor(left + kRounding)), int(std::floor(top + kRounding))),
                 QPoint(int(std::ceil(right - kRounding)) - 1, int(std::ceil(bottom - kRounding)) - 1));
}

// ---- Drawing

bool FloatingPicture::isUpright() const {
    return std::abs(_radian - std::round(_radian / kQuarter) * kQuarter) < 1e-9;
}

bool FloatingPicture::isExact() const {
    const QPointF corner = at({-1, -1});
    const auto isWhole = [](double value) { return std::abs(value - std::round(value)) < kRounding; };
    return isUpright() && std::abs(_size.width()) == _picture.width() &&
           std::abs(_size.height()) == _picture.height() && isWhole(corner.x()) && isWhole(corner.y());
}

QImage FloatingPicture::exactly() const {
    const QImage mirrored = _picture.mirrored(_size.width() < 0, _size.height() < 0);
    return quarters(_radian) == 0 ? mirrored
                                  : mirrored.transformed(QTransform().rotate(90.0 * quarters(_radian)));
}

QImage FloatingPicture::drawn(const QRect& area) const {
    QImage drawn(area.size(), kFormat);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.translate(-area.topLeft());
    if (isExact()) {
        painter.drawImage(bounds().topLeft(), exactly());
        return drawn;
    }
    // An interpolated picture that is made smaller than half would miss pixels: those are averaged before.
    const auto side = [](double wanted, int there) {
        return std::clamp(int(std::ceil(std::abs(wanted))), 1, there);
    };
    const QSize size(side(_size.width(), _picture.width()), side(_size.height(), _picture.height()));
    const QImage source = size == _picture.size()
                              ? _picture
                              : _picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setTransform(toBuffer(), true);
    painter.drawImage(QRectF(QPointF(), QSizeF(_picture.size())), source);
    return drawn;
}

// ---- Placing

void FloatingPicture::moveBy(QPointF by) {
    _centre += QPointF(std::round(by.x()), std::round(by.y()));
}

void FloatingPicture::stretch(QPoint side, QPointF to, Stretch how) {
    if (isUpright())
        to = QPointF(std::round(to.x()), std::round(to.y()));
    const QPointF fixed = how.aboutCentre ? _centre : at(-QPointF(side));
    const double times = how.aboutCentre ? 2 : 1;
    const QPointF way = turned(to - fixed, -_radian) * times;
    const QSizeF before = _size;
    // Along the diagonal, or the one side that is pulled.
    const QPointF diagonal(side.x() * before.width(), side.y() * before.height());
    const double factor =
        QPointF::dotProduct(way, diagonal) / std::max(QPointF::dotProduct(diagonal, diagonal), 1e-9);
    if (side.x() != 0)
        _size.setWidth(away(how.keepsAspect ? before.width() * factor : way.x() * side.x()));
    if (side.y() != 0)
        _size.setHeight(away(how.keepsAspect ? before.height() * factor : way.y() * side.y()));
    if (how.keepsAspect && side.x() == 0)
        _size.setWidth(away(before.width() * std::abs(factor)));
    if (how.keepsAspect && side.y() == 0)
        _size.setHeight(away(before.height() * std::abs(factor)));
    if (!how.aboutCentre)
        _centre = fixed + turned({side.x() * _size.width() / 2, side.y() * _size.height() / 2}, _radian);
}

void FloatingPicture::turnTo(double radian) {
    _radian = std::remainder(radian, 2 * std::numbers::pi);
    if (isUpright())
        toWholePixels();
}

// Turned by a quarter, a picture of an odd side would lie between pixels. It goes one way then, and back with the next one.
void FloatingPicture::toWholePixels() {
    const bool isOdd = quarters(_radian) % 2 != 0;
    const auto whole = [&](double value) {
        return isOdd ? std::floor(value + 0.5 + kRounding) : std::ceil(value - 0.5 - kRounding);
    };
    const QPointF corner = at({-1, -1});
    _centre += QPointF(whole(corner.x()), whole(corner.y())) - corner;
}

}  // namespace dabcanvas::dabpainter
