// SPDX-License-Identifier: MIT
/// \file
/// Plane geometry of strokes: points, straight segments and quadratic curves.
///
/// Every operation rounds to single precision unless said otherwise; results are the same on every run.
/// Curves   p0, p1 (the control point) and p2; the parameter t runs from 0 to 1.
#pragma once

#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"

/// How far it is from a to b.
DABCANVAS_STROKE_API float lpEuclidDistanceOfTwoPosition(const LPPosition* a, const LPPosition* b);
/// The place halfway from a to b.
DABCANVAS_STROKE_API void lpGetMidPosition(const LPPosition* a, const LPPosition* b, LPPosition* out);

/// Of the vectors from o to a and from o to b.
DABCANVAS_STROKE_API float lpDotProduct(const LPPosition* o, const LPPosition* a, const LPPosition* b);
DABCANVAS_STROKE_API float lpCrossProduct(const LPPosition* o, const LPPosition* a, const LPPosition* b);

/// Whether the three lie on one line with p1 not outside p0..p2, within 0.101 of either product.
DABCANVAS_STROKE_API bool lp3PositionInLineWithOrder(const LPPosition* p0, const LPPosition* p1,
                                                     const LPPosition* p2);

/// f is a fraction of the segment, in spite of the name; outside 0..1 it extends the segment.
DABCANVAS_STROKE_API void lpGetPositionInSegmentGivenLength(const LPPosition* a, const LPPosition* b,
                                                            LPPosition* out, float f);
/// The place on the curve at t.
DABCANVAS_STROKE_API void lpGetPositionInBezierGivenT(const LPPosition* p0, const LPPosition* p1,
                                                      const LPPosition* p2, LPPosition* out, float t);

/// The three numbers that the arc length depends on: the squared speed at t is A t^2 + B t + C.
DABCANVAS_STROKE_API void lpGetParaOfBezierLength(const LPPosition* p0, const LPPosition* p1,
                                                  const LPPosition* p2, float* A, float* B, float* C);

/// Arc length from 0 to t. Always finite, also where a curve turns back on itself.
/// Deliberate: integrated below A = 0.0025 only. From there on a closed form counts, whose guard against dividing by 0
/// takes up to half of a nearly straight curve's length away. At that border the spacing of dabs jumps, up to twice as
/// wide; for samples 120 apart that lie by turns 0.025 off a line, 1.8 times.
DABCANVAS_STROKE_API float lpLengthOfQuadraticBezierGivenParam(float A, float B, float C, float t);

/// The parameter, from tStart on, at which the arc length equals length: within 0.01 of it, or within
/// 0.001 of the parameter.
DABCANVAS_STROKE_API float lpGetTInBezierGivenLengthAndParam(float A, float B, float C, float length,
                                                             float tStart);
