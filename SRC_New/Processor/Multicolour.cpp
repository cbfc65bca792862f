// SPDX-License-Identifier: MIT
#include "Processor/Multicolour.h"

#include <algorithm>
#include <cmath>

namespace dabcanvas {
namespace {

using Three = std::array<float, 3>;

float fraction(float value) {
    return value - std::floor(value);
}

std::array<float, 4> texelAt(const Multicolour::Read& read) {
    const auto& [level, u, v] = read;
    const int x = u >> 16, y = v >> 16;
    const int next = std::min(x + 1, level->size.width - 1), below = std::min(y + 1, level->size.height - 1);
    const float right = static_cast<float>(u & 65535) / 65536, down = static_cast<float>(v & 65535) / 65536;
    const std::uint8_t* texels[] = {level->at(x, y), level->at(next, y), level->at(x, below),
                                    level->at(next, below)};
    const float weights[] = {(1 - right) * (1 - down), right * (1 - down), (1 - right) * down, right * down};
    std::array<float, 4> sum{};
    for (std::size_t i = 0; i < 4; ++i) {
        for (std::size_t channel = 0; channel < 4; ++channel) {
            sum[channel] += weights[i] * static_cast<float>(texels[i][channel]);
        }
    }
    return sum;
}

Three hsvOf(const Three& rgb) {
    const auto& [r, g, b] = rgb;
    const float high = std::max({r, g, b}), span = high - std::min({r, g, b});
    float hue = 0;
    if (span > 0) {
        hue = high == r ? (g - b) / span : high == g ? 2 + (b - r) / span : 4 + (r - g) / span;
    }
    return {fraction(hue / 6), high > 0 ? span / high : 0, high};
}

Three rgbOf(const Three& hsv) {
    constexpr float kThirds[] = {0, 2.0f / 3, 1.0f / 3};
    Three rgb;
    for (std::size_t i = 0; i < 3; ++i) {
        const float ramp = std::clamp(std::fabs(fraction(hsv[0] + kThirds[i]) * 6 - 3) - 1, 0.0f, 1.0f);
        rgb[i] = hsv[2] * (1 + hsv[1] * (ramp - 1));
    }
    return rgb;
}

}  // namespace

Multicolour::Multicolour(const Dab& dab, const DabStyle& style)
    : _brush{std::clamp(dab.color.r, 0.0f, 1.0f), std::clamp(dab.color.g, 0.0f, 1.0f),
             std::clamp(dab.color.b, 0.0f, 1.0f)} {
    const auto swing = [&](float speed, float most) {
        const float by = (fraction(dab.random * speed) * 2 - 1) * most;
        return std::isfinite(by) ? by : 0.0f;
    };
    _swing = {swing(1, 0.5f * style.hueTingle), swing(7.31f, style.saturationTingle),
              swing(53.17f, style.brightnessTingle)};
}

std::array<std::uint16_t, 4> Multicolour::at(const Read& first, const Read& second, float part) const {
    std::array<float, 4> tip = texelAt(first);
    if (part > 0) {
        const std::array<float, 4> other = texelAt(second);
        for (std::size_t i = 0; i < 4; ++i) {
            tip[i] += part * (other[i] - tip[i]);
        }
    }
    Three own{};
    for (std::size_t i = 0; i < 3 && tip[3] > 0; ++i) {
        own[i] = std::clamp(tip[i] / tip[3], 0.0f, 1.0f);
    }
    const float black = 1 - std::max({own[0], own[1], own[2]});
    for (std::size_t i = 0; i < 3; ++i) {
        own[i] += black * _brush[i];
    }
    Three hsv = hsvOf(own);
    hsv[0] += _swing[0];
    hsv[1] = std::clamp(hsv[1] + _swing[1], 0.0f, 1.0f);
    hsv[2] = std::clamp(hsv[2] + _swing[2], 0.0f, 1.0f);
    const Three rgb = rgbOf(hsv);
    std::array<std::uint16_t, 4> colour{0, 0, 0, 65535};
    std::transform(rgb.begin(), rgb.end(), colour.begin(),
                   [](float value) { return static_cast<std::uint16_t>(value * 65535 + 0.5f); });
    return colour;
}

}  // namespace dabcanvas
