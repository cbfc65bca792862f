// SPDX-License-Identifier: MIT
// Splits a path into straight legs.
#pragma once

#include "Recognition/StrokePath.h"

#include <array>
#include <vector>

namespace dabcanvas {

// A straight line, through `point` along `direction` (a unit vector).
struct StraightLine {
    Vec2 point = Vec2::Zero();
    Vec2 direction = Vec2::UnitX();

    double distance(const Vec2& other) const {
        const Vec2 apart = other - point;
        return apart.x() * direction.y() - apart.y() * direction.x();
    }
    Vec2 foot(const Vec2& other) const { return point + (other - point).dot(direction) * direction; }
};

// Moments of a path's points, so that the line nearest to any run of them is a matter of a few sums.
class PathMoments {
public:
    explicit PathMoments(const Path& path);
    // Of the points first to last, both included: the sum of squared distances from their line.
    double residual(int first, int last) const;
    StraightLine line(int first, int last) const;

private:
    struct Sums {
        double x = 0, y = 0, xx = 0, xy = 0, yy = 0;
    };
    Sums between(int first, int last) const;
    std::vector<Sums> _sums;  // of the points before each
};

// The best splits of a path into 1 to kMostLegs legs: those with the least squared distance from their lines.
class LegFit {
public:
    static constexpr int kMostLegs = 8;

    explicit LegFit(const Path& path);

    // Indices of the path's points where the legs meet, its ends included: legs + 1 of them.
    std::vector<int> breaks(int legs) const;
    // Root of the mean squared distance.
    double rms(int legs) const;
    const PathMoments& moments() const { return _moments; }

private:
    PathMoments _moments;
    int _nodes;
    // cost[legs][end]: of the path up to node `end` in that many legs; from[legs][end]: where the last of them begins.
    std::array<std::vector<double>, kMostLegs + 1> _cost;
    std::array<std::vector<int>, kMostLegs + 1> _from;
};

}  // namespace dabcanvas
