// SPDX-License-Identifier: MIT
/// \file
/// The record that configures a line and carries the state of its stroke, and its numbered properties.
///
/// Use      one record a line (the canvas has two). Select a record with lpSetParaObj() just before every
///          call: another caller on the thread may have moved the selection.
/// Memory   the client allocates the record, by its size, and sets every property that it relies on; the
///          state fields are reset when a stroke starts. Neither is ever freed here.
/// Thread   the selection and the default record are one per thread, on purpose: strokes on different threads
///          are independent. No locks; a record belongs to one thread at a time.
#pragma once

#include <cstddef>
#include <cstdint>

#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"

/// The settings of a line and the state of its stroke. Lengths are in the caller's drawing unit. The number in brackets
/// is the property id.
struct LPLineParams {
    float radius;                        ///< [1] base dab radius
    std::uint8_t pointsDistanceEnabled;  ///< [2] 1: dabs are spaced along the path; 0: one dab a sample
    float pointsDistance;                ///< [3] dab spacing as a fraction of the dab's radius
    float radiusTingle;                  ///< [5] random radius jitter, 0..1
    LPControlParams radiusControl;       ///< [7, 8, 6] pressure's, altitude's and speed's hold on the radius
    float minRadius;                     ///< [9] smallest radius, as a fraction of radius
    float maxRadius;                     ///< [10] largest radius, as a fraction of radius
    std::int32_t smoothEnabled;          ///< [11] low byte not 0: curves; 0: straight segments
    float speedSencitive;                ///< [13] weight of the new speed against the previous one
    float sensitivity;                   ///< [14] mean distance a sample at which the speed value is 0
    float startRadius;                   ///< [15] relative radius at the start of the stroke
    float endRadius;                     ///< [16] relative radius at the end of the stroke
    std::int32_t trackNum;               ///< [17] samples to gather before a segment is built
    float strokeControlValue;            ///< [18] length of the taper at the start

    std::int32_t stage;       ///< 0 started, 1 first segment built, 2 running, 3 ended
    LPPosition lastInput;     ///< last sample, accepted or only gathered
    LPPosition prevInput;     ///< last accepted sample, the next curve's control point
    LPPosition segmentStart;  ///< where the next segment begins
    float carry;              ///< distance walked since the last dab
    float strokeLength;       ///< length of all finished segments
    std::int32_t dabCount;    ///< dab places visited
    float lastRadius;         ///< radius of the last dab handed out
    float segPressure;        ///< values at the start of the next segment
    float segAltitude;
    float segSpeed;
    std::int32_t pendingInputs;  ///< samples gathered since the last segment, their path and their sums
    float pendingDistance;
    float pendingPressureSum;
    float pendingAltitudeSum;
    float prevSegmentDistance;  ///< pendingDistance of the previous segment

    float minPointsDistance;  ///< [20] lower bound of the dab spacing
};

static_assert(sizeof(LPLineParams) == 144 && offsetof(LPLineParams, pointsDistanceEnabled) == 4 &&
                  offsetof(LPLineParams, pointsDistance) == 8 &&
                  offsetof(LPLineParams, radiusControl) == 16 && offsetof(LPLineParams, minRadius) == 28 &&
                  offsetof(LPLineParams, smoothEnabled) == 36 && offsetof(LPLineParams, trackNum) == 56 &&
                  offsetof(LPLineParams, stage) == 64 && offsetof(LPLineParams, segmentStart) == 84 &&
                  offsetof(LPLineParams, dabCount) == 100 && offsetof(LPLineParams, pendingInputs) == 120 &&
                  offsetof(LPLineParams, minPointsDistance) == 140,
              "clients allocate and address the record by this layout");

/// The default record, and the current one, which at first it is.
DABCANVAS_STROKE_API extern thread_local LPLineParams _lpDefaultParaObj;
DABCANVAS_STROKE_API extern thread_local LPLineParams* _lpParaObj;

/// Makes the record current, null meaning the default one. Returns the one that was current before.
DABCANVAS_STROKE_API LPLineParams* lpSetParaObj(LPLineParams* record);

/// Where the current record keeps the property; null for an id that has none (4, 12, 19, below 1, above 20).
DABCANVAS_STROKE_API void* lpGetPropertyPointer(int id);

/// Store into the property's place and return that place; an id without a property is refused with null.
/// No property is a double: lpSetPropertyd() covers the next field too, though never what follows the record.
DABCANVAS_STROKE_API void* lpSetPropertyi(int id, std::int32_t value);
DABCANVAS_STROKE_API void* lpSetPropertyf(int id, float value);
DABCANVAS_STROKE_API void* lpSetPropertyd(int id, double value);
DABCANVAS_STROKE_API void* lpSetPropertyb(int id, bool value);

/// Read 32, 32, 64 or 8 bits at the property's place; 0 for an id without a property.
DABCANVAS_STROKE_API std::int32_t lpGetPropertyi(int id);
DABCANVAS_STROKE_API float lpGetPropertyf(int id);
DABCANVAS_STROKE_API double lpGetPropertyd(int id);
DABCANVAS_STROKE_API bool lpGetPropertyb(int id);
