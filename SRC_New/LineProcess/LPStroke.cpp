// SPDX-License-Identifier: MIT
#include "LineProcess/LPStroke.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "LineProcess/LPGeometry.h"
#include "LineProcess/LPProperties.h"
#include "LineProcess/LPSegment.h"
#include "LineProcess/LPSettings.h"
#include "LineProcess/LPTrace.h"

constinit thread_local LPPoint* _lpPoints = nullptr;
constinit thread_local std::int32_t _lpNumberOfPoints = 0;

namespace {

using dabcanvas::finiteOr;

constexpr float kTaperOff = 0.001f;     // smaller taper settings count as none
constexpr float kControlReach = 30.0f;  // spans below this pull the curve's control point in
constexpr float kFarthest = 1e18f;      // keeps squared distances within the range of a float
constexpr float kStrongest = 1e30f;

float usable(float value, float otherwise, float bound) {
    return std::clamp(finiteOr(value, otherwise), -bound, bound);
}

bool tapers(float setting) {
    return std::isfinite(setting) && std::fabs(setting) >= kTaperOff;
}

void gather(LPLineParams& line, LPPosition position, float pressure, float altitude) {
    line.pendingInputs = std::min(line.pendingInputs, std::numeric_limits<std::int32_t>::max() - 1) + 1;
    line.pendingDistance += lpEuclidDistanceOfTwoPosition(&line.lastInput, &position);
    line.lastInput = position;
    line.pendingPressureSum += pressure;
    line.pendingAltitudeSum += altitude;
}

// The speed value that the gathered samples measure: 1 slow or at rest, 0 fast.
float measuredSpeed(const LPLineParams& line, bool first) {
    float distance = line.pendingDistance;
    std::int64_t samples = line.pendingInputs;
    if (!first) {
        distance = line.prevSegmentDistance + line.pendingDistance;
        samples = std::int64_t{line.trackNum} + 1 + line.pendingInputs;
    }
    // A negative trackNum may leave nothing to divide by: 0 / 0 counts as 1, anything else as fast.
    const float v = samples != 0      ? distance / static_cast<float>(samples)
                    : distance > 0.0f ? std::numeric_limits<float>::max()
                                      : 1.0f;
    const float sensitivity = finiteOr(line.sensitivity, 50.0f);
    if (v < 0.1f * sensitivity) {
        return 1.0f;
    }
    const float speed = 1.0f - (v == sensitivity ? 1.0f : v / sensitivity);
    return speed > 0.0f ? finiteOr(speed, 0.0f) : 0.0f;
}

// Sets the values that the new segment runs toward.
void setSegmentEnd(const LPLineParams& line, float speed) {
    const double weight = finiteOr(line.speedSencitive, 0.3f);
    const double blended =
        static_cast<double>(speed) * weight + static_cast<double>(line.segSpeed) * (1.0 - weight);
    newSegSpeed = finiteOr(static_cast<float>(blended), line.segSpeed);
    newSegPressure =
        static_cast<float>(0.2 * static_cast<double>(line.pendingPressureSum) / line.pendingInputs +
                           0.8 * static_cast<double>(line.segPressure));
    newSegAltitude = line.pendingAltitudeSum / static_cast<float>(line.pendingInputs);
}

// A curve whose control point is pulled toward its start on short spans.
std::int32_t buildCurve(const LPLineParams& line, const LPPosition& target) {
    const LPPosition start = line.segmentStart;
    const LPPosition previous = line.prevInput;
    const float d = std::min(lpEuclidDistanceOfTwoPosition(&start, &previous), kControlReach);
    const float f = std::sqrt(d / kControlReach);
    const LPPosition control = {previous.x * f + start.x * (1.0f - f), previous.y * f + start.y * (1.0f - f)};
    return lpDoBezierCurve(&start, &control, &target, &_lpTrace);
}

// Builds the segment that the accepted sample closes. Returns how many dabs it has.
std::int32_t buildSegment(LPLineParams& line, const LPPosition& position, const LPPosition& target,
                          bool first) {
    if (line.pointsDistanceEnabled == 0) {
        lpDoStroke(line.pendingDistance, line.pendingDistance, &position, &_lpTrace);
        line.dabCount += line.dabCount < std::numeric_limits<std::int32_t>::max() ? 1 : 0;
        line.strokeLength += line.pendingDistance;
        return 1;
    }
    const bool smooth = (line.smoothEnabled & 0xFF) != 0;
    const LPPosition from = line.prevInput;
    if (first) {
        return lpDoStartStroke(&from, smooth ? &target : &position, &_lpTrace);
    }
    return smooth ? buildCurve(line, target) : lpDoSegment(&from, &position, &_lpTrace);
}

void carryForward(LPLineParams& line, const LPPosition& position, const LPPosition& target) {
    line.segmentStart = target;
    line.prevInput = position;
    line.segPressure = newSegPressure;
    line.segAltitude = newSegAltitude;
    line.segSpeed = newSegSpeed;
    line.pendingInputs = 0;
    line.prevSegmentDistance = line.pendingDistance;
    line.pendingDistance = 0.0f;
    line.pendingPressureSum = 0.0f;
    line.pendingAltitudeSum = 0.0f;
}

// Copies the last count dabs of the trace for the caller. A dab that was not appended, for want of a radius
// or of memory, is not counted.
std::int32_t handOut(LPLineParams& line, std::int32_t count) {
    count = std::min(count, static_cast<std::int32_t>(_lpTrace.count));
    _lpPoints = nullptr;
    _lpNumberOfPoints = std::max(count, 0);
    if (_lpNumberOfPoints == 0) {
        return 0;
    }
    const std::size_t bytes = static_cast<std::size_t>(count) * sizeof(LPPoint);
    const LPPoint* const last = _lpTrace.points + _lpTrace.count;
    _lpPoints = static_cast<LPPoint*>(std::malloc(bytes));
    if (_lpPoints == nullptr) {
        std::printf("为 _lpPoints 分配空间失败！");
    } else {
        std::memcpy(_lpPoints, last - count, bytes);
    }
    line.lastRadius = last[-1].radius;
    return count;
}

}  // namespace

void lpStartLine(LPPosition position) {
    lpStartLineWithParams(position, 1.0f, 1.0f);
}

void lpStartLineWithPressure(LPPosition position, float pressure) {
    lpStartLineWithParams(position, pressure, 1.0f);
}

void lpStartLineWithParams(LPPosition position, float pressure, float altitude) {
    LPLineParams& line = *_lpParaObj;
    position = {usable(position.x, 0.0f, kFarthest), usable(position.y, 0.0f, kFarthest)};
    needStartDur = false;
    needEnd = false;
    line.stage = 0;
    line.lastInput = line.prevInput = line.segmentStart = position;
    line.segPressure = usable(pressure, 1.0f, kStrongest);
    line.segAltitude = usable(altitude, 1.0f, kStrongest);
    line.segSpeed = 1.0f;
    if (tapers(line.startRadius)) {
        if (std::fabs(line.strokeControlValue) < kTaperOff) {
            // Deliberate: without a taper length the start radius seeds the speed value instead.
            line.segSpeed = line.startRadius;
        } else {
            needStartDur = true;
        }
    }
    line.carry = line.strokeLength = line.lastRadius = 0.0f;
    line.dabCount = line.pendingInputs = 0;
    line.pendingDistance = line.pendingPressureSum = line.pendingAltitudeSum = 0.0f;
    line.prevSegmentDistance = 0.0f;
    lpInitTrace(&_lpTrace);
    minRadius = finiteOr(finiteOr(line.minRadius, 0.2f) * finiteOr(line.radius, 20.0f), 0.0f);
}

std::int32_t lpAppendingLine(LPPosition position, bool end) {
    return lpAppendingLineWithParams(position, 1.0f, 0.0f, end);
}

std::int32_t lpAppendingLineWithPressure(LPPosition position, float pressure, bool end) {
    return lpAppendingLineWithParams(position, pressure, 0.0f, end);
}

std::int32_t lpAppendingLineWithParams(LPPosition position, float pressure, float altitude, bool end) {
    LPLineParams& line = *_lpParaObj;
    position = {usable(position.x, line.lastInput.x, kFarthest),
                usable(position.y, line.lastInput.y, kFarthest)};
    const std::int32_t gathered = line.pendingInputs;
    gather(line, position, usable(pressure, line.segPressure, kStrongest),
           usable(altitude, line.segAltitude, kStrongest));
    if (!end && gathered < line.trackNum) {
        _lpNumberOfPoints = 0;
        return 0;
    }

    const bool first = line.stage == 0;
    LPPosition target = position;
    float speed = line.segSpeed;
    if (end) {
        line.stage = 3;
        needEnd = needEnd || tapers(line.endRadius);
    } else {
        line.stage = first ? 1 : 2;
        const LPPosition previous = line.prevInput;
        lpGetMidPosition(&previous, &position, &target);
        speed = measuredSpeed(line, first);
    }
    lpClrTrace(&_lpTrace);
    setSegmentEnd(line, speed);
    const std::int32_t built = buildSegment(line, position, target, first);
    carryForward(line, position, target);
    const std::int32_t count = handOut(line, built);
    if (end) {
        lpFreeTrace(&_lpTrace);
    }
    return count;
}

std::int32_t lpGetLastLineSegmentPoints1V(LPPoint** out) {
    if (out != nullptr) {
        *out = _lpPoints;
    }
    return _lpNumberOfPoints;
}
