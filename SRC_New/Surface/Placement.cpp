// SPDX-License-Identifier: MIT
#include "Surface/Placement.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "Maths/Rounding.h"

namespace dabcanvas {
namespace {

// Less than half a step of an 8-bit colour, and as close as single precision comes on the largest buffers.
constexpr double kSame = 1.0 / 512;

bool isWhole(double value) {
    return std::fabs(value - std::nearbyint(value)) < kSame;
}

// Far off any buffer, and far from where integers or single precision end.
int pixelAt(double edge) {
    constexpr double kFar = 1e6;
    return std::isnan(edge) ? 0 : static_cast<int>(std::clamp(edge, -kFar, kFar));
}

bool isSame(double length, int texels) {
    return std::fabs(length - texels) < kSame;
}

}  // namespace

Placement::Placement(Point centre, double width, double height, double radian)
    : _centre(centre), _width(width), _height(height) {
    radian = std::remainder(radian, 2 * std::numbers::pi);
    const double quarters = std::nearbyint(radian / (std::numbers::pi / 2));
    const double off = radian - quarters * (std::numbers::pi / 2);
    const bool isQuarterTurn = std::fabs(off) * std::hypot(_width, _height) / 2 < kSame;
    if (isQuarterTurn) {
        constexpr double kCosines[] = {1, 0, -1, 0};
        const auto quarter = static_cast<std::size_t>(static_cast<int>(quarters) & 3);
        _cosine = kCosines[quarter];
        _sine = kCosines[(quarter + 3) % 4];
    } else {
        _cosine = std::cos(radian);
        _sine = std::sin(radian);
    }
    const Point half{std::fabs(_width * _cosine) / 2 + std::fabs(_height * _sine) / 2,
                     std::fabs(_width * _sine) / 2 + std::fabs(_height * _cosine) / 2};
    _onPixelEdges = isQuarterTurn && isWhole(_centre.x - half.x) && isWhole(_centre.y - half.y) &&
                    isWhole(_centre.x + half.x) && isWhole(_centre.y + half.y);
}

Rect Placement::touched() const {
    const double rim = _onPixelEdges ? 0 : 0.5;
    const double halfWidth = _width / 2 + rim;
    const double halfHeight = _height / 2 + rim;
    const Point half{std::fabs(halfWidth * _cosine) + std::fabs(halfHeight * _sine),
                     std::fabs(halfWidth * _sine) + std::fabs(halfHeight * _cosine)};
    const auto lower = [this](double edge) {
        return pixelAt(_onPixelEdges ? std::nearbyint(edge) : std::floor(edge));
    };
    const auto upper = [this](double edge) {
        return pixelAt(_onPixelEdges ? std::nearbyint(edge) : std::ceil(edge));
    };
    return Rect::between(lower(_centre.x - half.x), lower(_centre.y - half.y), upper(_centre.x + half.x),
                         upper(_centre.y + half.y));
}

std::array<Point, 4> Placement::corners(double rim, bool flipX, bool flipY) const {
    const double x = (_width / 2 + rim) * (flipX ? -1 : 1);
    const double y = (_height / 2 + rim) * (flipY ? -1 : 1);
    const auto turned = [this](double right, double up) {
        return Point{right * _cosine - up * _sine, right * _sine + up * _cosine};
    };
    return {turned(-x, -y), turned(x, -y), turned(x, y), turned(-x, y)};
}

Size Placement::reducedSize(const Size& texels) const {
    const auto side = [](int most, double pixels) { return std::clamp(nearestInt(pixels), 1, most); };
    return {side(texels.width, _width), side(texels.height, _height)};
}

Placement::Reading Placement::readingOf(const Size& texels) const {
    const bool sameWidth = isSame(_width, texels.width);
    const bool sameHeight = isSame(_height, texels.height);
    if ((_width < texels.width && !sameWidth) || (_height < texels.height && !sameHeight)) {
        return Reading::averaged;
    }
    return sameWidth && sameHeight && _onPixelEdges ? Reading::texelOnPixel : Reading::interpolated;
}

}  // namespace dabcanvas
