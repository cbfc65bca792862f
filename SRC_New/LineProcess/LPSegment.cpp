// SPDX-License-Identifier: MIT
#include "LineProcess/LPSegment.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "LineProcess/LPArc.h"
#include "LineProcess/LPGeometry.h"
#include "LineProcess/LPProperties.h"
#include "LineProcess/LPSettings.h"
#include "LineProcess/TingleInternal.h"

constinit thread_local float newSegPressure = 1.0f;
constinit thread_local float newSegAltitude = 1.0f;
constinit thread_local float newSegSpeed = 1.0f;
constinit thread_local float newSegValue = 1.0f;
constinit thread_local float newSegRadius = 0.0f;
constinit thread_local bool needStartDur = false;
constinit thread_local bool needEnd = false;
constinit thread_local float minRadius = 0.0f;

namespace {

using dabcanvas::clampedToUnit;
using dabcanvas::finiteOr;
using dabcanvas::kNoPressure;
using dabcanvas::kTilted;
using dabcanvas::pressureCosine;

constexpr float kSlack = 0.001f;         // lengths closer than this count as equal
constexpr float kLeastStep = 0.01f;      // where the record gives no usable bound
constexpr float kLeastShare = 0x1p-17f;  // of the way, so that a step always advances

// As lpAddPointInTrace(), without a call while there is room.
inline void append(LPTrace* trace, const LPPoint& dab) {
    if (trace->count < trace->capacity && trace->points != nullptr) {
        trace->points[trace->count] = dab;
        trace->count += 1;
    } else {
        lpAddPointInTrace(trace, &dab);
    }
}

// The settings that a segment's dabs depend on, read once and made finite. The values of the thread are read once
// too: each look at one costs more than a dab's arithmetic with it.
struct DabRule {
    float radius, low, high, tingle;
    LPControlParams control;
    float startRadius, endRadius, taperLength;
    float strokeLength, lastRadius;
    LPControlParams from, to;
    float leastRadius;  // under jitter
    bool ends;
    bool& starts;  // the start taper is active

    explicit DabRule(const LPLineParams& line)
        : radius(finiteOr(line.radius, 20.0f)),
          low(finiteOr(line.minRadius, 0.2f)),
          high(finiteOr(line.maxRadius, 1.0f)),
          tingle(finiteOr(line.radiusTingle, 0.0f)),
          control{finiteOr(line.radiusControl.pressure, 0.0f), finiteOr(line.radiusControl.altitude, 0.0f),
                  finiteOr(line.radiusControl.speed, 0.0f)},
          startRadius(finiteOr(line.startRadius, 0.0f)),
          endRadius(finiteOr(line.endRadius, 0.1f)),
          taperLength(line.strokeControlValue),
          strokeLength(line.strokeLength),
          lastRadius(line.lastRadius),
          from{line.segPressure, line.segAltitude, line.segSpeed},
          to{newSegPressure, newSegAltitude, newSegSpeed},
          leastRadius(minRadius),
          ends(needEnd),
          starts(needStartDur) {}

    LPControlParams inputsAt(float f) const;
    float relativeRadius(const LPControlParams& inputs) const;
    float startRamp(float t) const;
    float radiusAt(float distance, float f, const LPControlParams& inputs) const;
    float place(float distance, float segmentLength, const LPPosition& at, LPTrace* trace) const;
};

LPControlParams DabRule::inputsAt(float f) const {
    LPControlParams inputs = {kNoPressure, 0.0f, 0.0f};
    if (to.pressure != kNoPressure) {
        inputs.pressure = clampedToUnit(from.pressure + (to.pressure - from.pressure) * f);
    }
    inputs.altitude = clampedToUnit(from.altitude + (to.altitude - from.altitude) * f);
    inputs.speed = clampedToUnit(from.speed + (to.speed - from.speed) * f);
    return inputs;
}

float DabRule::relativeRadius(const LPControlParams& inputs) const {
    const float middle = (low + high) * 0.5f;
    float rel = middle;
    const float cp = control.pressure;
    if (cp != 0.0f && inputs.pressure != kNoPressure) {
        const float k = pressureCosine(inputs.pressure);
        if (cp > 0.0f) {
            const float least = (1.0f - cp) * middle + cp * low;
            const float most = std::min(middle + cp, high);
            rel = (1.0f - k) * (most - least) + least;
        } else {
            const float least = std::max(0.0f, middle - std::sqrt(std::fabs(cp)));
            rel = k * (middle - least) + least;
        }
    }
    const float cs = control.speed;
    if (cs > 0.0f) {
        const float base = cs * low + (1.0f - cs) * rel;
        rel = std::sqrt(inputs.speed) * (rel - base) + base;
    } else if (cs < 0.0f) {
        const float base = (cs + 1.0f) * rel - cs * low;
        rel = (1.0f - std::sqrt(inputs.speed)) * (rel - base) + base;
    }
    rel = std::max(std::min(rel, high), low);
    // Deliberate: tilt is added after the clamp, so a tilted pen may exceed maxRadius.
    if (inputs.altitude >= kTilted && control.altitude != 0.0f) {
        rel += (inputs.altitude - kTilted) * control.altitude / 0.3f;
    }
    return rel;
}

// The most that the start taper allows at t along the stroke.
float DabRule::startRamp(float t) const {
    const float share = taperLength != 0.0f ? (1.0f - startRadius) * t / taperLength : 1.0f - startRadius;
    return (share + startRadius) * radius;
}

float DabRule::radiusAt(float distance, float f, const LPControlParams& inputs) const {
    float r = relativeRadius(inputs) * radius;
    if (starts) {
        const float t = distance + strokeLength;
        if (t <= taperLength) {
            const float ramp = startRamp(t);
            r = ramp < r ? ramp : r;
        } else {
            starts = false;
        }
    }
    if (ends) {
        r = lastRadius + (radius * endRadius - lastRadius) * f;
    }
    if (std::fabs(tingle) >= kSlack) {
        const float least = (1.0f - tingle) * r;
        r = least + (r - least) * dabcanvas::lineRandom();
        r = r < leastRadius ? leastRadius : r;
    }
    return r;
}

float DabRule::place(float distance, float segmentLength, const LPPosition& at, LPTrace* trace) const {
    float f = 1.0f;
    if (segmentLength != 0.0f) {
        f = finiteOr(distance / segmentLength, 1.0f);
    }
    const LPControlParams inputs = inputsAt(f);
    const float r = radiusAt(distance, f, inputs);
    if (!std::isfinite(r) || !std::isfinite(at.x) || !std::isfinite(at.y)) {
        return 0.0f;
    }
    if (r > 0.0f) {
        const LPPoint dab = {at, r, inputs};
        append(trace, dab);
    }
    return r;
}

void addClamped(std::int32_t& count, std::int32_t more) {
    const std::int32_t most = std::numeric_limits<std::int32_t>::max();
    count = count > most - more ? most : count + more;
}

// Walks a path of the given length and places a dab at each step; place yields the position at a distance.
// The walk goes on while a distance is below limit.
template <typename Place>
std::int32_t walk(float length, double limit, Place place, LPTrace* trace) {
    LPLineParams& line = *_lpParaObj;
    if (!std::isfinite(length)) {
        return 0;
    }
    const float spacing = std::max(finiteOr(line.pointsDistance, 0.15f), 0.0f);
    const float first = line.lastRadius * spacing;
    std::int32_t count = 0;
    if (line.carry + length <= first - kSlack) {
        line.carry += length;
    } else {
        float d = first - line.carry;
        if (!(d > -1e20f)) {
            d = 0.0f;
        }
        // At any length, so that d grows: distances lie within the way that is left at first.
        const float leastAdvance = (static_cast<float>(limit) - d) * kLeastShare;
        const bool bounded = std::isfinite(line.minPointsDistance) && line.minPointsDistance > 0.0f;
        const float bound = bounded ? std::max(line.minPointsDistance, kSlack) : kLeastStep;
        const float least = std::max(bound, leastAdvance);
        const DabRule rule(line);
        std::int32_t visited = 0;
        float step = 0.0f;
        while (static_cast<double>(d) < limit) {
            const float r = rule.place(d, length, place(d), trace);
            step = std::max(least, spacing * r);
            d += step;
            visited += 1;
            count += r > 0.0f ? 1 : 0;
        }
        addClamped(line.dabCount, visited);
        // Rounding may leave no place for the dab that the test above allowed.
        line.carry = finiteOr(visited > 0 ? length - (d - step) : line.carry + length, 0.0f);
        if (std::fabs(line.carry) < kSlack) {
            line.carry = 0.0f;
        }
    }
    line.strokeLength += length;
    return count;
}

}  // namespace

float lpDoStroke(float distance, float segmentLength, const LPPosition* at, LPTrace* trace) {
    return DabRule(*_lpParaObj).place(distance, segmentLength, *at, trace);
}

std::int32_t lpDoSegment(const LPPosition* from, const LPPosition* to, LPTrace* trace) {
    const float length = lpEuclidDistanceOfTwoPosition(from, to);
    const auto place = [&](float d) {
        LPPosition at;
        lpGetPositionInSegmentGivenLength(from, to, &at, length != 0.0f ? d / length : 1.0f);
        return at;
    };
    return walk(length, static_cast<double>(length + kSlack), place, trace);
}

std::int32_t lpDoBezierCurve(const LPPosition* p0, const LPPosition* p1, const LPPosition* p2,
                             LPTrace* trace) {
    if (lp3PositionInLineWithOrder(p0, p1, p2)) {
        return lpDoSegment(p0, p2, trace);
    }
    float A = 0.0f;
    float B = 0.0f;
    float C = 0.0f;
    lpGetParaOfBezierLength(p0, p1, p2, &A, &B, &C);
    dabcanvas::ArcWalk arc(A, B, C);
    const float length = arc.lengthTo(1.0f);
    float t = 0.0f;
    const auto place = [&](float d) {
        LPPosition at;
        t = arc.parameterAt(d, t);
        lpGetPositionInBezierGivenT(p0, p1, p2, &at, t);
        return at;
    };
    return walk(length, static_cast<double>(length) + 0.001, place, trace);
}

std::int32_t lpDoStartStroke(const LPPosition* from, const LPPosition* to, LPTrace* trace) {
    LPLineParams& line = *_lpParaObj;
    line.lastRadius = lpDoStroke(0.0f, 1.0f, from, trace);
    line.dabCount = 1;
    const std::int32_t before = static_cast<std::int32_t>(trace->count);
    return before + lpDoSegment(from, to, trace);
}
