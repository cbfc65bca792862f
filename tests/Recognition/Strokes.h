// SPDX-License-Identifier: MIT
// Strokes for the recogniser's tests: outlines drawn by a hand that can be shaky, slow or turned.
#pragma once

#include "Recognition/ShapeRecord.h"

#include <cmath>
#include <numbers>
#include <vector>

using Stroke = std::vector<ShapePoint>;

// Along straight lines between the corners, a point every `step`.
inline Stroke drawn(const Stroke& corners, double step = 4) {
    Stroke stroke;
    for (std::size_t i = 1; i < corners.size(); ++i) {
        const double dx = corners[i].x - corners[i - 1].x;
        const double dy = corners[i].y - corners[i - 1].y;
        const int count = std::max(1, static_cast<int>(std::hypot(dx, dy) / step));
        for (int j = 0; j < count; ++j) {
            stroke.push_back({corners[i - 1].x + dx * j / count, corners[i - 1].y + dy * j / count});
        }
    }
    stroke.push_back(corners.back());
    return stroke;
}

// The spiral-shaped curve whose radii go from (a, b) to `growth` times that between two angles, in degrees.
inline Stroke round(double a, double b, double from, double to, double growth = 1) {
    Stroke stroke;
    const int count = static_cast<int>(std::abs(to - from) / 4);
    for (int i = 0; i <= count; ++i) {
        const double t = (from + (to - from) * i / count) * std::numbers::pi / 180;
        const double r = 1 + (growth - 1) * i / count;
        stroke.push_back({a * r * std::cos(t), b * r * std::sin(t)});
    }
    return stroke;
}

// Turned by degrees, scaled, moved.
inline Stroke placed(Stroke stroke, double degrees, double scale = 1, ShapePoint to = {300, 200}) {
    const double c = std::cos(degrees * std::numbers::pi / 180) * scale;
    const double s = std::sin(degrees * std::numbers::pi / 180) * scale;
    for (ShapePoint& p : stroke) {
        p = {to.x + p.x * c - p.y * s, to.y + p.x * s + p.y * c};
    }
    return stroke;
}

// What a hand makes of it: a slow wobble and a quick tremor, both as parts of `size`.
inline Stroke shaky(Stroke stroke, double size, double wobble = 0.006, double tremor = 0.002) {
    for (std::size_t i = 0; i < stroke.size(); ++i) {
        const double t = static_cast<double>(i) / static_cast<double>(stroke.size());
        stroke[i].x += size * (wobble * std::sin(7 * t + 1) + tremor * std::sin(97 * t));
        stroke[i].y += size * (wobble * std::cos(9 * t) + tremor * std::cos(113 * t + 2));
    }
    return stroke;
}
