// SPDX-License-Identifier: MIT
// The ellipse, or circle, nearest to a path, and how far round it the path goes.
#pragma once

#include "Recognition/StrokePath.h"

#include <optional>

struct Ellipse {
    Vec2 centre = Vec2::Zero();
    double a = 0;      // half axes, above 0, a along `angle`
    double b = 0;      // never longer than a after fitting
    double angle = 0;  // of a's axis, from x towards y

    Vec2 inward(const Vec2& point) const;  // into the frame of its axes
    Vec2 outward(const Vec2& point) const;
    Vec2 at(double t) const { return outward({a * std::cos(t), b * std::sin(t)}); }
    // The parameter of the point nearest to `point`, from -pi to pi.
    double nearest(const Vec2& point) const;
};

// How a path runs along an ellipse.
struct EllipseTour {
    double rms = 0;  // of the distances
    double furthest = 0;
    double start = 0;  // parameters of the path's ends; start - end tells direction and sweep
    double end = 0;
    double backward = 0;  // how much of the turning went the other way, in radians

    double sweep() const { return std::abs(end - start); }
};

// By least squares of the distances. Nothing where the points determine none, as on a line.
std::optional<Ellipse> fitEllipse(const Path& path);
std::optional<Ellipse> fitCircle(const Path& path);
EllipseTour tourOf(const Ellipse& ellipse, const Path& path);
