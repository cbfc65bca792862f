// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <optional>
#include <vector>

#include "Maths/Export.h"

namespace dabcanvas {

/// Which fingers paint.
enum class TouchPolicy {
    fingersPaint,
    pensOnly,     ///< fingers move the view, where that can be moved
    pensOnceSeen  ///< fingers paint until a pen comes near for the first time, then they move the view
};

/// What a device's pressure counts as: a curve through points that rises, or stays level, from one to the next.
class DABCANVAS_CANVAS_API PressureCurve {
public:
    PressureCurve() = default;  ///< as it is
    /// Monotone cubics after Fritsch and Carlson (1980): no value lies beyond those of the points beside it. From two
    /// points on, each 0..1, with rising x and y that does not fall; below the first and above the last the curve is
    /// level. None for any others.
    static std::optional<PressureCurve> through(const std::vector<QPointF>& points);

    /// Of a pressure 0..1; -1, no pressure, stays so.
    float at(float pressure) const;
    /// What it goes through; none of a pressure that counts as it is.
    const std::vector<QPointF>& points() const { return _points; }
    friend bool operator==(const PressureCurve&, const PressureCurve&) = default;

private:
    std::vector<QPointF> _points;
    std::vector<double> _slopes;
};

/// What steadies a hand.
enum class Stabilising {
    none,
    average,  ///< follows the pointer as a weight in oil does: by 1 - 1/e of the way within `seconds`
    string    ///< is pulled along by a string `length` long, and does not move while that is slack
};

/// Steadies a hand. What comes out depends on the way and the time of the pointer, not on how often it is told of.
struct StabiliserOptions {
    Stabilising kind = Stabilising::none;
    double seconds = 0.08;     ///< up to 2
    double length = 24;        ///< view points, as seen: longer on a canvas that is shown smaller; up to 1000
    bool finishesLine = true;  ///< at its end the stroke goes on to where the pointer is

    friend bool operator==(const StabiliserOptions&, const StabiliserOptions&) = default;
};

/// What a canvas makes of its devices' samples before they become a stroke. All of it is off at first, and none of it
/// touches strokes that are drawn by calls.
struct PointerOptions {
    TouchPolicy touch = TouchPolicy::fingersPaint;
    PressureCurve pressure;
    StabiliserOptions stabiliser;

    friend bool operator==(const PointerOptions&, const PointerOptions&) = default;
};

}  // namespace dabcanvas
