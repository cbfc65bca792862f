// SPDX-License-Identifier: MIT
/// \file
/// Jitter: the varying attributes of one dab, worked out from the brush's base value, a jitter amount (0..1)
/// and the hold that pressure, altitude and speed have on the attribute.
///
///   point    the dab; its params are the inputs, with pressure -1 standing for none
///   index    number of the dab's point in the stroke, from 1 on
///   control  signed strengths of pressure, altitude and speed; 0 is none
///
/// Random   from the generator that LPSharedState brings, without one from drand48(), which nothing here seeds; or in
///          debug mode from fixed tables by the index.
/// Thread   the debug flag, the last direction and the last place are one per thread, on purpose, see LPSharedState.h.
/// Errors   every result is finite: where an input leads to none, the base comes back, or what is said below.
#pragma once

#include <cstdint>

#include "LineProcess/ColorTypes.h"
#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"

/// Any value but 0 turns debug mode on: strokes repeat.
DABCANVAS_STROKE_API void SetDebugModel(int model);

/// The tables' values at index modulo 1024.
DABCANVAS_STROKE_API float PreRandD(int index);
DABCANVAS_STROKE_API std::int32_t PreRandI(int index);

/// A radius between radius and minimum. Draws in debug mode as well.
DABCANVAS_STROKE_API float RadiusTingle(float radius, float minimum, float amount);

/// The direction of to - from in radians, -3 pi / 2 to pi / 2: the left half plane lies below -pi / 2. Two
/// equal points give the previous call's angle.
DABCANVAS_STROKE_API float Radian(LPPosition from, LPPosition to);

/// A rotation in radians: base + direction when follow is set, else base plus up to a full turn by the
/// control.
DABCANVAS_STROKE_API float RadianTingle(LPPoint point, float base, float direction, float amount, bool follow,
                                        std::int64_t index, LPControlParams control);

/// Without any control the base is kept; with control, no strength gives 0, half the base, full strength 1.
DABCANVAS_STROKE_API float RoundnessTingle(LPPoint point, float base, float amount, float spare,
                                           std::int64_t index, LPControlParams control);

/// How many dabs to draw at a point: 0 to 64, also for a larger count. 1 at the first point.
DABCANVAS_STROKE_API std::uint64_t DistributionCountTingle(std::uint64_t count, std::uint64_t index,
                                                           float amount, LPPoint point,
                                                           LPControlParams control);

/// Which of count tips to use: at random, or the first at full strength and the last at none. Always below
/// count, or 0.
DABCANVAS_STROKE_API std::uint64_t TextureIndexTingle(std::uint64_t count, bool random, std::uint64_t index,
                                                      LPPoint point, LPControlParams control);

/// Opacity by mode: 1 fades out and 2 fades in over fadeCount dabs (at once when that is 0); 3, 5, 7 and 9
/// grow with speed and pressure, speed and altitude, pressure, altitude; 4, 6, 8 and 10 fall. Other modes keep
/// it. values are the dab's inputs; a pressure of -1, which is none, counts as full.
DABCANVAS_STROKE_API float OpacityTingle(std::int32_t mode, std::uint64_t fadeCount, std::int64_t index,
                                         float opacity, float amount, float minimum, LPControlParams values);

/// A flow of 0..1, fading out over fadeCount dabs when that is above 1, else scaled by the control between
/// minimum and maximum. Tilt lowers it where the altitude's strength is positive.
DABCANVAS_STROKE_API float FlowTingle(LPPoint point, float flow, float amount, float fadeCount, float minimum,
                                      float maximum, std::int64_t index, LPControlParams control);

/// The place of one copy of the dab, at most distribution times its radius away. Copies of one point spread
/// evenly: over the disc around it with twoAxes, else across the stroke, whose direction is an angle in
/// radians, counter-clockwise, in coordinates that run downwards. A call at the place of the previous call
/// counts as its next copy.
DABCANVAS_STROKE_API LPPosition PositionTingle(LPPoint point, float distribution, bool twoAxes,
                                               std::int64_t index, float direction, LPControlParams control);

/// A mix of the two colours: amount draws it at random toward the second, and the less strength the control
/// gives, the more of the second there is.
DABCANVAS_STROKE_API RgbType ColorTingle(LPPoint point, RgbType first, RgbType second, float amount,
                                         std::int64_t index, LPControlParams control);

/// Turns the hue by up to half of hueAmount circles either way, wrapping, and shifts saturation and brightness
/// by up to their amounts within 0..1. Greys have no hue and stay grey. Without amounts the colour is kept.
DABCANVAS_STROKE_API RgbType HSVTingle(RgbType colour, float hueAmount, float saturationAmount,
                                       float brightnessAmount);
