// SPDX-License-Identifier: MIT
#include "Recognition/ShapeDabs.h"

#include <algorithm>

#include "LineProcess/LPSegment.h"
#include "LineProcess/LPSharedState.h"
#include "LineProcess/LPStroke.h"
#include "LineProcess/LPTrace.h"
#include "Recognition/ShapePlaces.h"

namespace {

// A line without tapers, as if drawn for long: the line process is set to that while this lives.
class SteadyLine {
public:
    explicit SteadyLine(const LPLineParams& line)
        : _line(line), _stateBefore(lpSharedState()), _lineBefore(lpSetParaObj(&_line)) {
        _line.startRadius = _line.endRadius = 0;
        lpInitTrace(&_trace);
        lpStartLineWithParams({0, 0}, 1, 0);
        newSegPressure = newSegSpeed = 1;
        newSegAltitude = 0;
    }
    ~SteadyLine() {
        lpFreeTrace(&_trace);
        lpSetParaObj(_lineBefore);
        lpSetSharedState(_stateBefore);
    }
    SteadyLine(const SteadyLine&) = delete;
    SteadyLine& operator=(const SteadyLine&) = delete;

    // From dab to dab; where sizes vary, what it is on average.
    double spacing() {
        const float tingle = _line.radiusTingle;
        _line.radiusTingle = 0;
        const LPPosition anywhere = {0, 0};
        const float size = lpDoStroke(1, 1, &anywhere, &_trace);
        _line.radiusTingle = tingle;
        const float mean = size * (1 - std::clamp(tingle, 0.0f, 1.0f) / 2);
        return static_cast<double>(std::max(_line.pointsDistance * mean, _line.minPointsDistance));
    }

    std::vector<LPPoint> dabsAt(const std::vector<LPPosition>& places) {
        lpClrTrace(&_trace);
        for (const LPPosition& at : places) {
            lpDoStroke(1, 1, &at, &_trace);
        }
        std::vector<LPPoint> dabs(_trace.points, _trace.points + _trace.count);
        for (LPPoint& dab : dabs) {
            dab.params = {1, 1, 1};
        }
        return dabs;
    }

private:
    LPLineParams _line;  // a copy: tapers are a stroke's own
    LPSharedState _stateBefore;
    LPLineParams* _lineBefore;
    LPTrace _trace{};
};

}  // namespace

std::vector<std::vector<LPPoint>> dabsOnShape(const ShapeRecord& shape, const LPLineParams& line) {
    SteadyLine steady(line);
    std::vector<std::vector<LPPoint>> runs;
    for (const std::vector<LPPosition>& places : placesOnShape(shape, steady.spacing())) {
        runs.push_back(steady.dabsAt(places));
    }
    return runs;
}
