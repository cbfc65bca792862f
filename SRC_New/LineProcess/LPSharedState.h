// SPDX-License-Identifier: MIT
// The process-wide state of a stroke, to take out and put back.
//
// Records are separate, but the tapers, the segment's end values and the jitter's memory of the last place
// are one set for all. Where two canvases draw at the same time, each keeps an LPSharedState: it puts its own
// in before a run of calls and takes it out after. Cheap to copy; owns nothing. The random generators are
// left out, as they are meant to run on, and so are the trace and the handed-out dabs, which no call needs
// from an earlier one.
#pragma once

#include <cstdint>

#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"

struct LPSharedState {
    // As in LPSegment.h.
    float newSegPressure = 1.0f;
    float newSegAltitude = 1.0f;
    float newSegSpeed = 1.0f;
    float newSegValue = 1.0f;
    float newSegRadius = 0.0f;
    float minRadius = 0.0f;
    bool needStartDur = false;
    bool needEnd = false;
    // Of Radian(), PositionTingle() and HSVTingle() in Tingle.h.
    float previousAngle = 0.0f;
    LPPosition lastPosition = {0.0f, 0.0f};
    float scatterStart[2] = {0.0f, 0.0f};  // where the copies at lastPosition start, each 0..1
    std::int64_t pIndex = 0;               // copies placed at lastPosition, less one
    std::int64_t debugDraws = 0;           // values HSVTingle() took from the table in debug mode
};

DABCANVAS_STROKE_API LPSharedState lpSharedState();
DABCANVAS_STROKE_API void lpSetSharedState(const LPSharedState& state);
