// SPDX-License-Identifier: MIT
// A stroke made ready for measuring: evenly spaced points in a frame of its own, whatever its size and sampling.
#pragma once

#include "Recognition/ShapeRecord.h"

#include <Eigen/Core>

#include <span>
#include <vector>

namespace dabcanvas {

using Vec2 = Eigen::Vector2d;
using Path = std::vector<Vec2>;

struct StrokePath {
    static constexpr int kPoints = 129;

    // kPoints of them, evenly spaced along the stroke; the stroke's bounding box is centred on (0, 0) and has a
    // diagonal of 1. Empty: there was nothing to measure.
    Path points;
    double length = 0;  // along the stroke, in its diagonals
    Vec2 centre = Vec2::Zero();
    double scale = 0;  // points of the caller = points * scale + centre

    bool isEmpty() const { return points.empty(); }
    ShapePoint outward(const Vec2& point) const {
        const Vec2 there = point * scale + centre;
        return {there.x(), there.y()};
    }

    // Leaves out what is not finite and repeats, evens out the pixel grid and tremor, and cuts off the hooks that pens
    // make where they touch down and lift.
    static StrokePath of(std::span<const ShapePoint> stroke);
};

// `count` points, evenly spaced along `path`, its ends included. `path` has a length above 0.
Path evenlySpaced(const Path& path, int count);
double lengthOf(const Path& path);

}  // namespace dabcanvas
