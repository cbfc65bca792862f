// SPDX-License-Identifier: MIT
// How near to regular a shape must be drawn to be made regular. All of it stands here.
#pragma once

#include <numbers>

namespace ShapeTidying {
constexpr double degrees(double value) {
    return value * std::numbers::pi / 180;
}

// Lines level, upright or at 45 degrees. A hand strays by one to three degrees from a line that it means to be level;
// past four, people turn a line on purpose.
inline constexpr double kLevelLine = degrees(3);
// The same for a shape with several sides or axes, which know its direction better than one line does.
inline constexpr double kLevelShape = degrees(3);
// An ellipse's axes are the less sure the rounder it is.
inline constexpr double kLevelEllipse = degrees(5);

// Corners of triangles and of fold lines that are right angles: a hand's angles are off by up to eight degrees,
// and 75 and 105 degrees are seldom meant.
inline constexpr double kRightCorner = degrees(6);
// Of a fold line whose every corner is that near: one that is meant would show in the others too.
inline constexpr double kRightCornerOfFold = degrees(9);
// Sides that are equal, as the longer divided by the shorter. A hand's squares are up to a tenth longer one way.
inline constexpr double kEqualSides = 1.1;
inline constexpr double kEqualSidesOfTriangle = 1.06;
// An ellipse this round is a circle: people draw circles no rounder.
inline constexpr double kRoundness = 0.9;
// An arc is of a circle unless an ellipse is this much nearer to it, and the circle visibly off.
inline constexpr double kArcOfCircle = 0.55;
inline constexpr double kArcOfCircleDistance = 0.006;
// Both barbs of an arrow are made alike when their lengths and angles differ by no more.
inline constexpr double kEqualBarbs = 1.25;
inline constexpr double kEqualBarbAngles = degrees(16);

// What is tidied may lie this much further from the stroke than before, in the stroke's diagonals, on average.
inline constexpr double kMostMoved = 0.015;
// No point of an ellipse or arc lies further from the stroke, in its diagonals: gaps that a hand leaves are smaller.
inline constexpr double kFurthestBeyond = 0.2;
}  // namespace ShapeTidying
