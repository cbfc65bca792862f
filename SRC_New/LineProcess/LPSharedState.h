// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <random>

#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"

/// Quick, as a dab may draw a dozen numbers; its upper bits are the random ones.
using LPGenerator =
    std::linear_congruential_engine<std::uint64_t, 6364136223846793005u, 1442695040888963407u, 0>;

/// The state of a stroke that a thread keeps, to take out and put back.
///
/// Records are separate, but the tapers, the segment's end values and the jitter's memory of the last place
/// are one set for all lines of a thread: one a thread and not one a process, on purpose, so that threads draw
/// independently. Where two canvases take turns on a thread, each keeps an LPSharedState: it puts its own in
/// before a run of calls and takes it out after; so a stroke may also go on on another thread. Cheap to copy; owns
/// nothing. Left out are the trace and the handed-out dabs, which no call needs from an earlier one, the debug flag,
/// and the C library's generators.
struct LPSharedState {
    /// As in LPSegment.h.
    float newSegPressure = 1.0f;
    float newSegAltitude = 1.0f;
    float newSegSpeed = 1.0f;
    float newSegValue = 1.0f;
    float newSegRadius = 0.0f;
    float minRadius = 0.0f;
    bool needStartDur = false;
    bool needEnd = false;
    /// Of Radian(), PositionTingle() and HSVTingle() in Tingle.h.
    float previousAngle = 0.0f;
    LPPosition lastPosition = {0.0f, 0.0f};
    float scatterStart[2] = {0.0f, 0.0f};  ///< where the copies at lastPosition start, each 0..1
    std::int64_t pIndex = 0;               ///< copies placed at lastPosition, less one
    std::int64_t debugDraws = 0;           ///< values HSVTingle() took from the table in debug mode
    /// What lines and dabs draw their random numbers from while this state is in, in place of rand() and drand48(),
    /// which then are neither read nor moved. Null: from those. The caller's; it runs on meanwhile.
    LPGenerator* generator = nullptr;
};

/// What the calling thread has, and puts another in its place.
DABCANVAS_STROKE_API LPSharedState lpSharedState();
DABCANVAS_STROKE_API void lpSetSharedState(const LPSharedState& state);
