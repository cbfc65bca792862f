// SPDX-License-Identifier: MIT
// Dabs, and the pictures that tests draw them with.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <utility>
#include <vector>

#include "Surface/PaintSurface.h"

namespace dabcanvas {

inline constexpr RgbType kOrange{1, 128 / 255.0f, 26 / 255.0f};

// Upright and opaque.
inline Dab dabAt(float x, float y, float width) {
    Dab dab{};
    dab.x = x;
    dab.y = y;
    dab.halfSize = width / 2;
    dab.roundness = dab.flipX = dab.flipY = dab.flow = 1;
    dab.color = kOrange;
    return dab;
}

// Premultiplied RGBA, by the place in the picture, -1..1 each way.
using Pixel = std::array<double, 4>;
inline Picture pictureOf(const Size& size, Pixel (*pixelAt)(double x, double y)) {
    auto bytes = std::make_shared<std::vector<std::uint8_t>>();
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            for (const double channel :
                 pixelAt((x + 0.5) * 2 / size.width - 1, (y + 0.5) * 2 / size.height - 1)) {
                bytes->push_back(static_cast<std::uint8_t>(channel * 255 + 0.5));
            }
        }
    }
    return {PixelView::topRowFirst(bytes->data(), size), 1, bytes};
}
inline Pixel softDisc(double x, double y) {
    const double distance = std::min(std::hypot(x, y), 1.0);
    return {0, 0, 0, (1 - distance) * (1 - distance)};
}
inline Pixel hardDisc(double x, double y) {
    return {0, 0, 0, std::hypot(x, y) < 1 ? 1.0 : 0.0};
}
inline Pixel square(double, double) {
    return {0, 0, 0, 1};
}
// Lopsided, and of every colour.
inline Pixel motley(double x, double y) {
    const double alpha = x + y < 0.4 ? 0.5 + 0.5 * x * x : 0.1;
    return {alpha * (x > 0 ? 1 : 0.2), alpha * (y + 1) / 2, x < -0.5 ? 0 : alpha * 0.7, alpha};
}
inline Pixel grain(double x, double y) {
    const double value = 0.5 + 0.5 * std::sin(9 * x + 2) * std::cos(7 * y);
    return {value, value, value * value, 1};
}

inline std::shared_ptr<const TipSet> tipsOf(TipSet tips) {
    return std::make_shared<const TipSet>(std::move(tips));
}

}  // namespace dabcanvas
