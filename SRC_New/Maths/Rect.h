// SPDX-License-Identifier: MIT
/// \file
/// Whole pixels: sizes and rectangles with a top-left origin. Plain C++, for everything that paint lies in.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace dabcanvas {

/// How many pixels wide and high.
struct Size {
    int width = 0, height = 0;

    friend bool operator==(const Size&, const Size&) = default;
};

/// The pixels from (x, y) up to, but not with, (right(), bottom()). One without pixels is empty, wherever it lies.
struct Rect {
    int x = 0, y = 0, width = 0, height = 0;

    /// All of a size from the origin on; and what lies between four edges, empty where two of them cross.
    static Rect of(const Size& size) { return {0, 0, size.width, size.height}; }
    static Rect between(int left, int top, int right, int bottom) {
        return {left, top, (std::max)(right - left, 0), (std::max)(bottom - top, 0)};
    }
    /// Every pixel that the edges enclose, at least in part. Edges far off any buffer are taken as nearer; an edge that
    /// is no number makes it empty.
    static Rect covering(double left, double top, double right, double bottom) {
        static constexpr double kFar = 1 << 28;
        if (!(left < right && top < bottom)) {
            return {};
        }
        const auto whole = [](double edge) { return static_cast<int>(std::clamp(edge, -kFar, kFar)); };
        return between(whole(std::floor(left)), whole(std::floor(top)), whole(std::ceil(right)),
                       whole(std::ceil(bottom)));
    }

    /// The first column and the first row beyond it.
    int right() const { return x + width; }
    int bottom() const { return y + height; }
    /// Whether it has no pixel, and how many it has.
    bool isEmpty() const { return width <= 0 || height <= 0; }
    std::int64_t area() const { return isEmpty() ? 0 : std::int64_t{width} * height; }

    /// What both have.
    Rect intersected(const Rect& other) const {
        return between((std::max)(x, other.x), (std::max)(y, other.y), (std::min)(right(), other.right()),
                       (std::min)(bottom(), other.bottom()));
    }
    /// The smallest one around both; an empty one adds nothing.
    Rect united(const Rect& other) const {
        if (isEmpty() || other.isEmpty()) {
            return isEmpty() ? other : *this;
        }
        return between((std::min)(x, other.x), (std::min)(y, other.y), (std::max)(right(), other.right()),
                       (std::max)(bottom(), other.bottom()));
    }
    /// Whether all of the other lies in it, as an empty one does.
    bool contains(const Rect& other) const { return united(other) == *this; }
    /// Whether they have a pixel in common.
    bool meets(const Rect& other) const { return !intersected(other).isEmpty(); }
    /// With so many pixels more on each side.
    Rect grownBy(int pixels) const {
        return {x - pixels, y - pixels, width + 2 * pixels, height + 2 * pixels};
    }

    friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace dabcanvas
