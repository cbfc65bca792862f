// SPDX-License-Identifier: MIT
/// \file
/// Turns the pointer samples of a stroke into evenly spaced dabs.
///
/// Use      lpStartLine...() at pointer-down, lpAppendingLine...() at every move, and once more with end true
///          at pointer-up; after each, fetch the dabs. Select the record with lpSetParaObj() just before
///          every call, as it is the whole thread's.
/// Samples  positions in the record's own unit (the canvas passes buffer pixels), within 1e18 of 0; pressure
///          0..1, or exactly -1 throughout when the device gives none; altitude 0..1. A coordinate, pressure
///          or altitude that is not finite is read as its previous value.
/// Thread   the handed-out dabs and all that a stroke keeps outside of its record are one per thread, on purpose:
///          strokes on different threads are independent. LPSharedState.h takes a stroke along.
/// Spacing  is pointsDistance times the dab's radius. Deliberate: on curves that are nearly straight, but not quite, it
///          may be up to twice that, see lpLengthOfQuadraticBezierGivenParam() in LPGeometry.h.
/// Cost     a call works on its new segment alone, however long the stroke.
#pragma once

#include <cstdint>

#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"

/// The dabs of the last call, null when there were none, and how many.
DABCANVAS_STROKE_API extern constinit thread_local LPPoint* _lpPoints;
DABCANVAS_STROKE_API extern constinit thread_local std::int32_t _lpNumberOfPoints;

/// Begin a stroke. Produces no dab; the first comes with the first accepted move. The short forms stand for
/// full pressure and altitude 1.
DABCANVAS_STROKE_API void lpStartLine(LPPosition position);
DABCANVAS_STROKE_API void lpStartLineWithPressure(LPPosition position, float pressure);
DABCANVAS_STROKE_API void lpStartLineWithParams(LPPosition position, float pressure, float altitude);

/// Add one sample; end marks the last one, which tapers to endRadius and ends the stroke at the sample itself.
/// Return how many dabs lpGetLastLineSegmentPoints1V() hands out. On 0 its pointer must not be read: after
/// a sample that was only gathered it is the array of an earlier call. Null with a count above 0 means that
/// there was no memory for the copy.
/// Deliberate: the short forms append with altitude 0, though they start with 1.
DABCANVAS_STROKE_API std::int32_t lpAppendingLine(LPPosition position, bool end);
DABCANVAS_STROKE_API std::int32_t lpAppendingLineWithPressure(LPPosition position, float pressure, bool end);
DABCANVAS_STROKE_API std::int32_t lpAppendingLineWithParams(LPPosition position, float pressure,
                                                            float altitude, bool end);

/// Stores the last call's dabs in *out, unless out is null, and returns their number. The array is a fresh
/// one each time, the caller's to free() exactly once.
DABCANVAS_STROKE_API std::int32_t lpGetLastLineSegmentPoints1V(LPPoint** out);
