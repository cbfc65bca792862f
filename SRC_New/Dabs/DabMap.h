// SPDX-License-Identifier: MIT
// Where a dab's tip lies on the buffer, and how it is read there; the same for every surface.
//
// A pixel's centre, (dx, dy) from the dab's, lies `along` the width and `across` it in pixels, mirrored as the tip is.
// A dab counts as much in a pixel as its box covers of it: exactly, along each edge by itself. What is thinner than a pixel
// is pale, never gone. The tip is read at the pixel's centre, brought to the box where that lies outside.
#pragma once

#include <algorithm>
#include <cmath>

#include "Dabs/Dab.h"
#include "Maths/Rect.h"

namespace dabcanvas {

struct DabMap {
    float halfWidth, halfHeight;  // pixels
    float alongX, alongY;         // along = alongX * dx + alongY * dy
    float acrossX, acrossY;       // across = acrossX * dx + acrossY * dy
    // A pixel's shadow on an axis of the dab is a trapezoid: half its foot, half its top, and its height.
    float foot, top, height;
    float slope;  // of what its sides take away, see shadow()
    float level;  // of detail, 0 for the tip as it is; may exceed the tip's last level

    DabMap(const Dab& dab, const Size& tip)
        : halfWidth(dab.halfSize), halfHeight(dab.halfSize * dab.roundness) {
        // Where turning cannot be seen, the pixels of a dab lying upright add up to it wherever it lies.
        constexpr float kTurnsFrom = 0.75f;
        const float radian = dab.halfSize < kTurnsFrom ? 0 : dab.radian;
        const bool isUpright = radian == 0;
        const float cosine = isUpright ? 1 : std::cos(radian), sine = isUpright ? 0 : std::sin(radian);
        alongX = dab.flipX * cosine;
        alongY = -dab.flipX * sine;
        acrossX = dab.flipY * sine;
        acrossY = dab.flipY * cosine;

        foot = (std::fabs(cosine) + std::fabs(sine)) / 2;
        top = std::fabs(std::fabs(cosine) - std::fabs(sine)) / 2;
        height = 1 / (foot + top);
        // Of the trapezoid; a steeper one counts as upright without exceeding 1.
        constexpr float kLeastSide = 1e-6f;
        slope = foot - top > kLeastSide ? height / (2 * (foot - top)) : 0;

        // Texels that a step of one pixel to the right and one down leads over, the longer of both; squared.
        const float width = texelsAPixel(tip.width, halfWidth), tall = texelsAPixel(tip.height, halfHeight);
        const float wide = width * width, high = tall * tall;
        const float right = wide * cosine * cosine + high * sine * sine;
        const float down = wide * sine * sine + high * cosine * cosine;
        level = std::max(0.5f * std::log2(std::max(right, down)), 0.0f);
        level += level > 0 ? softening() : 0;
    }

    // How much of a pixel the box covers, 0..1.
    float coverage(float along, float across) const {
        return (shadow(along + halfWidth) - shadow(along - halfWidth)) *
               (shadow(across + halfHeight) - shadow(across - halfHeight));
    }
    // Places in the tip, 0..1 from its left and top edge.
    float tipX(float along) const { return 0.5f + 0.5f * std::clamp(along / halfWidth, -1.0f, 1.0f); }
    float tipY(float across) const { return 0.5f + 0.5f * std::clamp(across / halfHeight, -1.0f, 1.0f); }

private:
    // The part of a pixel on the near side of an edge that runs so far beyond its centre, less one half.
    float shadow(float distance) const {
        const float near = std::min(std::fabs(distance), foot);
        const float side = std::max(near - top, 0.0f);
        return std::copysign(near * height - side * side * slope, distance);
    }

    // A few samples of a soft tip add up to more or less ink by where they lie, unless it is read a little coarser.
    float softening() const {
        constexpr float kMost = 0.5f, kFull = 4, kNone = 5.25f;  // levels; pixels
        const float size = 2 * std::min(halfWidth, halfHeight);
        return kMost * std::clamp((kNone - size) / (kNone - kFull), 0.0f, 1.0f);
    }

    static float texelsAPixel(int texels, float half) {
        constexpr float kThinnest = 1e-4f;
        return static_cast<float>(texels) / (2 * std::max(half, kThinnest));
    }
};

}  // namespace dabcanvas
