// SPDX-License-Identifier: MIT
// The ellipse, or circle, nearest to a path, and how far round it the path goes.
#pragma once

#include "Recognition/StrokePath.h"

#include <optional>

namespace dabcanvas {

struct Ellipse {
    Vec2 centre = Vec2::Zero();
    double a = 0;      // half axes, above 0, a along `angle`
    double b = 0;      // never longer than a after fitting
    double angle = 0;  // of a's axis, from x towards y
};

// An ellipse ready to be compared with many points.
class EllipseFrame {
public:
    explicit EllipseFrame(const Ellipse& ellipse);
    Vec2 inward(const Vec2& point) const;  // into the frame of its axes
    // Cosine and sine of the parameter of the outline's point nearest to `local`, a point in that frame.
    Vec2 nearest(const Vec2& local) const;
    Vec2 at(const Vec2& parameter) const { return {_ellipse.a * parameter.x(), _ellipse.b * parameter.y()}; }

private:
    Ellipse _ellipse;
    double _cosine;
    double _sine;
};

// How a path runs along an ellipse.
struct EllipseTour {
    double rms = 0;  // of the distances
    double furthest = 0;
    double start = 0;  // parameters of the path's ends; end - start tells direction and sweep
    double end = 0;
    double backward = 0;  // how much of the turning went the other way, in radians

    double sweep() const { return std::abs(end - start); }
};

// By least squares of the distances. Nothing where the points determine none, as on a line.
std::optional<Ellipse> fitEllipse(const Path& path);
std::optional<Ellipse> fitCircle(const Path& path);
EllipseTour tourOf(const Ellipse& ellipse, const Path& path);

}  // namespace dabcanvas
