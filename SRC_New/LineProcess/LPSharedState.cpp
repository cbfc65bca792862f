// SPDX-License-Identifier: MIT
#include "LineProcess/LPSharedState.h"

#include "LineProcess/LPSegment.h"
#include "LineProcess/TingleInternal.h"

LPSharedState lpSharedState() {
    LPSharedState state;
    state.newSegPressure = newSegPressure;
    state.newSegAltitude = newSegAltitude;
    state.newSegSpeed = newSegSpeed;
    state.newSegValue = newSegValue;
    state.newSegRadius = newSegRadius;
    state.minRadius = minRadius;
    state.needStartDur = needStartDur;
    state.needEnd = needEnd;
    const dabcanvas::TingleState& tingle = dabcanvas::tingleState;
    state.previousAngle = tingle.previousAngle;
    state.lastPosition = tingle.lastPosition;
    state.scatterStart[0] = tingle.scatterStart[0];
    state.scatterStart[1] = tingle.scatterStart[1];
    state.pIndex = tingle.pIndex;
    state.debugDraws = tingle.debugDraws;
    state.generator = tingle.generator;
    return state;
}

void lpSetSharedState(const LPSharedState& state) {
    newSegPressure = state.newSegPressure;
    newSegAltitude = state.newSegAltitude;
    newSegSpeed = state.newSegSpeed;
    newSegValue = state.newSegValue;
    newSegRadius = state.newSegRadius;
    minRadius = state.minRadius;
    needStartDur = state.needStartDur;
    needEnd = state.needEnd;
    dabcanvas::tingleState = {state.previousAngle,
                              state.lastPosition,
                              {state.scatterStart[0], state.scatterStart[1]},
                              state.pIndex,
                              state.debugDraws,
                              state.generator,
                              dabcanvas::tingleState.debug};
}
