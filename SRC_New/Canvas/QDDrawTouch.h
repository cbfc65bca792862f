// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <algorithm>
#include <cmath>
#include <numbers>

/// What stroke entry needs to know of a pointer event, whichever device it came from.
struct QDDrawTouch {
    QPointF locationInWindow;  ///< view points from the top left of the window that shows the canvas
    float pressure = 1;        ///< 0..1
    float altitude = -1;       ///< tilt of a pen: 0 upright to 1 at 60 degrees, -1 for none
    double time = -1;          ///< seconds, by the clock of the stroke's first event; -1: now
};

namespace dabcanvas {

/// The altitude of a pen that leans so far from upright, in radians: 1 from 60 degrees on, as far as pens tell.
inline float altitudeOfLean(double radians) {
    return static_cast<float>(std::clamp(radians / (std::numbers::pi / 3), 0.0, 1.0));
}

/// The same of one that leans so far to the right and towards the user.
inline float altitudeOfTilts(double tiltX, double tiltY) {
    // The tangent comes back from beyond a right angle, where a pen cannot be.
    constexpr double kRightAngle = std::numbers::pi / 2;
    const double tangentX = std::tan(std::clamp(tiltX, -kRightAngle, kRightAngle));
    const double tangentY = std::tan(std::clamp(tiltY, -kRightAngle, kRightAngle));
    return altitudeOfLean(std::atan(std::hypot(tangentX, tangentY)));
}

}  // namespace dabcanvas
