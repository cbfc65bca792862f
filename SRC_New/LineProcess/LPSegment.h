// SPDX-License-Identifier: MIT
/// \file
/// Builds one segment of a stroke: walks it and places a dab every step. lpAppendingLineWithParams() in
/// LPStroke.h is what clients call; these are its parts.
///
/// State    the current record (LPProperties.h) gives the settings and where the walk left off; the globals
///          below give the segment's end values and the tapers. All are one per thread, see LPSharedState.h.
/// Settings that are not finite count as their defaults, a negative spacing as 0. No setting makes a walk
///          endless: a step is at least minPointsDistance and 0.001, or 0.01 where the former is not above 0,
///          and a segment has at most some 2^17 steps.
#pragma once

#include <cstdint>

#include "LineProcess/LPTrace.h"
#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"

/// Values at the end of the segment being built.
DABCANVAS_STROKE_API extern constinit thread_local float newSegPressure;
DABCANVAS_STROKE_API extern constinit thread_local float newSegAltitude;
DABCANVAS_STROKE_API extern constinit thread_local float newSegSpeed;
/// Not used here.
DABCANVAS_STROKE_API extern constinit thread_local float newSegValue;
DABCANVAS_STROKE_API extern constinit thread_local float newSegRadius;
DABCANVAS_STROKE_API extern constinit thread_local bool needStartDur;  ///< the start taper is active
/// This is the last segment and it has a taper.
DABCANVAS_STROKE_API extern constinit thread_local bool needEnd;
/// Floor of the radius under jitter, in drawing units.
DABCANVAS_STROKE_API extern constinit thread_local float minRadius;

/// Works out the dab that lies distance into a segment of segmentLength and appends it to the trace when its
/// radius is above 0. Returns the radius in any case, 0 standing for one that is not finite.
DABCANVAS_STROKE_API float lpDoStroke(float distance, float segmentLength, const LPPosition* at,
                                      LPTrace* trace);

/// Append the dabs of a straight segment or a curve and return how many.
DABCANVAS_STROKE_API std::int32_t lpDoSegment(const LPPosition* from, const LPPosition* to, LPTrace* trace);
DABCANVAS_STROKE_API std::int32_t lpDoBezierCurve(const LPPosition* p0, const LPPosition* p1,
                                                  const LPPosition* p2, LPTrace* trace);

/// The stroke's first dab and its first segment. Returns the number of dabs in the trace.
DABCANVAS_STROKE_API std::int32_t lpDoStartStroke(const LPPosition* from, const LPPosition* to,
                                                  LPTrace* trace);
