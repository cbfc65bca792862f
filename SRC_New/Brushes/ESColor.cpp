// SPDX-License-Identifier: MIT
#include "Brushes/ESColor.h"

#include <algorithm>

namespace {

float unit(float value) {
    return value > 0 ? std::min(value, 1.0f) : 0.0f;
}  // false for a NaN

}  // namespace

ESColor ESColor::grey(float grey, float alpha) {
    ESColor color;
    color._count = 2;
    color._components = {unit(grey), unit(alpha)};
    return color;
}

ESColor ESColor::rgba(float red, float green, float blue, float alpha) {
    ESColor color;
    color._count = 4;
    color._components = {unit(red), unit(green), unit(blue), unit(alpha)};
    return color;
}

ESColor::ESColor(const QColor& color) {
    if (color.isValid()) {
        const QColor rgb = color.toRgb();
        *this = rgba(rgb.redF(), rgb.greenF(), rgb.blueF(), rgb.alphaF());
    }
}

QColor ESColor::toQColor() const {
    return _count == 0 ? QColor() : QColor::fromRgbF(red(), green(), blue(), alpha());
}
