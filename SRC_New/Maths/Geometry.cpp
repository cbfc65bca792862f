// SPDX-License-Identifier: MIT
#include "Maths/Geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "Maths/Rotation.h"

QSizeF CGSizeApplyScale(const QSizeF& size, const QSizeF& scale) {
    return {size.width() / scale.width(), size.height() / scale.height()};
}

QPointF CGPointApplyScale(const QPointF& point, const QSizeF& scale) {
    return {point.x() / scale.width(), point.y() / scale.height()};
}

QRectF CGRectApplyScale(const QRectF& rect, const QSizeF& scale) {
    return {CGPointApplyScale(rect.topLeft(), scale), CGSizeApplyScale(rect.size(), scale)};
}

QSizeF CGSizeApplyRotation(const QSizeF& halfSize, float angle) {
    const dabcanvas::Extent extent = dabcanvas::turned({halfSize.width(), halfSize.height()}, angle);
    return {extent.width, extent.height};
}

QPointF offsetWithCenter(const QPointF& center, const QPointF& point, double radian) {
    const QPointF arm = center - point;
    const double c = std::cos(radian);
    const double s = std::sin(radian);
    return QPointF(arm.x() * c + arm.y() * s, arm.y() * c - arm.x() * s) - arm;
}

namespace {

template <typename Real>
Real radian(Real x1, Real y1, Real x2, Real y2) {
    const Real dx = x2 - x1;
    const Real dy = y2 - y1;
    if (dx == 0 && dy == 0) {
        return 0;  // 0 / 0 has no angle
    }
    const Real angle = std::atan(dy / dx);
    return dx < 0 ? angle - std::numbers::pi_v<Real> : angle;
}

}  // namespace

float RadianF(float x1, float y1, float x2, float y2) {
    return radian(x1, y1, x2, y2);
}

long double RadianLD(long double x1, long double y1, long double x2, long double y2) {
    return radian(x1, y1, x2, y2);
}
