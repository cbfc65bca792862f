// SPDX-License-Identifier: MIT
// How near to regular a shape must be drawn to be made regular. All of it stands here.
#pragma once

#include <numbers>

namespace dabcanvas {

namespace ShapeTidying {
constexpr double degrees(double value) {
    return value * std::numbers::pi / 180;
}

// Lines level, upright or at 45 degrees. A hand strays by one to three degrees from a line that it means to be level;
// past four, people turn a line on purpose.
inline constexpr double kLevelLine = degrees(3);
// The same for rectangles, parallelograms and fold lines: a hand's upright rectangles lean by up to four.
inline constexpr double kLevelShape = degrees(4);
// A triangle has three sides that may be near level by chance.
inline constexpr double kLevelTriangle = degrees(2.5);
// An ellipse's axes are the less sure the rounder it is.
inline constexpr double kLevelEllipse = degrees(5);

// Corners that are right angles. Those of a hand's triangles and brackets are off by some five degrees; 80 and 100
// degrees are seldom meant.
inline constexpr double kRightCorner = degrees(5);
// Where all corners of a fold line are nearly right, each tells of the others.
inline constexpr double kRightCorners = degrees(9);
// Sides that are equal, as the longer divided by the shorter. A hand's squares are up to a tenth longer one way.
inline constexpr double kEqualSides = 1.1;
inline constexpr double kEqualSidesOfTriangle = 1.05;
// An ellipse this round is a circle: people draw circles no rounder.
inline constexpr double kRoundness = 0.9;
// An arc is of a circle unless an ellipse is this much nearer to it, and the circle visibly off.
inline constexpr double kArcOfCircle = 0.55;
inline constexpr double kArcOfCircleDistance = 0.006;
// Both barbs of an arrow are made alike when their lengths and angles differ by no more.
inline constexpr double kEqualBarbs = 1.15;
inline constexpr double kEqualBarbAngles = degrees(10);

// What is tidied may lie this much further from the stroke than before, in the stroke's diagonals, on average.
inline constexpr double kMostMoved = 0.015;
// No point of an ellipse or arc lies further from the stroke, in its diagonals: gaps that a hand leaves are smaller.
inline constexpr double kFurthestBeyond = 0.2;
}  // namespace ShapeTidying

}  // namespace dabcanvas
