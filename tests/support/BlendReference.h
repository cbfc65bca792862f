// SPDX-License-Identifier: MIT
// What the blend modes and wet edges are, in double precision, for every kind of surface to be held against.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <functional>

#include "Surface/BlendType.h"

namespace dabcanvas::reference {

using Colour = std::array<double, 4>;  // premultiplied, 0..1

// What each mode promises, of a background and what lies on it.
inline Colour blended(std::uint32_t mode, const Colour& back, const Colour& line) {
    const double below = 1 - line[3], beside = 1 - back[3];
    const double alpha = back[3] * below + line[3];
    Colour result{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double white = beside + back[i], lineWhite = below + line[i];
        const double mixed = mode == ESBlendTypeTarnish ? std::min(white, lineWhite) : white * lineWhite;
        switch (mode) {
            case ESBlendTypeReplace:
                result[i] = line[i];
                break;
            case ESBlendTypeBehind:
                result[i] = line[i] * beside + back[i];
                break;
            case ESBlendTypeErase:
                result[i] = back[i] * below;
                break;
            case ESBlendTypeTarnish:
            case ESBlendTypeMultiply:
                result[i] = std::clamp(mixed - (1 - alpha), 0.0, alpha);
                break;
            case ESBlendTypeBrightness:
                result[i] = std::max(back[i], line[i]);
                break;
            case ESBlendTypeReset:
                result[i] = back[i];
                break;
            default:
                result[i] = back[i] * below + line[i];
        }
    }
    result[3] = mode == ESBlendTypeReplace ? line[3]
                : mode == ESBlendTypeErase ? back[3] * below
                : mode == ESBlendTypeReset ? back[3]
                                           : alpha;
    return result;
}

// What of a pixel stays that lies at (x, y) of a layer, whose alpha the function tells, as wet edges dry.
inline double driedPart(const std::function<double(int x, int y)>& alphaAt, int x, int y, double wetEdge,
                        int width) {
    // Two means one after the other, of width / 2 pixels to both sides and of the rest of it, are a cut-off tent.
    const int near = width / 2;
    const auto weight = [&](int away) { return std::min(2 * near + 1, width + 1 - std::abs(away)); };
    double sum = 0, weights = 0;
    for (int down = -width; down <= width; ++down) {
        for (int right = -width; right <= width; ++right) {
            const int here = weight(right) * weight(down);
            sum += here * alphaAt(x + right, y + down);
            weights += here;
        }
    }
    const double inside = std::clamp(2 * sum / weights / std::pow(alphaAt(x, y), 0.75) - 1, 0.0, 1.0);
    return 1 - wetEdge * inside * inside * (3 - 2 * inside);
}

}  // namespace dabcanvas::reference
