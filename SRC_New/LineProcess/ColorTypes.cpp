// SPDX-License-Identifier: MIT
#include "LineProcess/ColorTypes.h"

#include <algorithm>

RgbType RgbTypeMake(float r, float g, float b) {
    return {r, g, b};
}

HsvType HsvTypeMake(float h, float s, float v) {
    return {h, s, v};
}

HsvType Rgb_to_Hsv(RgbType colour) {
    const float r = colour.r;
    const float g = colour.g;
    const float b = colour.b;
    const float mn = std::min(r, std::min(g, b));
    const float mx = std::max(r, std::max(g, b));
    if (mx == mn) {
        return {0.0f, 0.0f, mx};
    }
    const float d = mx - mn;
    float h = 0.0f;
    if (r == mn) {
        h = (3.0f - (g - b) / d) / 6.0f;
    } else if (g == mn) {
        h = (5.0f - (b - r) / d) / 6.0f;
    } else {
        h = (1.0f - (r - g) / d) / 6.0f;
    }
    return {h, d / mx, mx};
}

RgbType Hsv_to_Rgb(HsvType colour) {
    float x = colour.h * 6.0f;
    if (x == 0.0f) {
        // Deliberate: a hue of exactly 0 is converted as if it lay a little further on.
        x = 0.01f;
    }
    if (!(x >= 0.0f && x < 7.0f)) {
        return {0.0f, 0.0f, 0.0f};
    }
    const int i = static_cast<int>(x);
    float f = x - static_cast<float>(i);
    if (i % 2 == 0) {
        f = 1.0f - f;
    }
    const float v = colour.v;
    const float m = v * (1.0f - colour.s);
    const float n = v * (1.0f - colour.s * f);
    switch (i) {
        case 1:
            return {n, v, m};
        case 2:
            return {m, v, n};
        case 3:
            return {m, n, v};
        case 4:
            return {n, m, v};
        case 5:
            return {v, m, n};
        default:
            return {v, n, m};
    }
}
