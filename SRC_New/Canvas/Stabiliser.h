// SPDX-License-Identifier: MIT
// A pointer's samples as the steadier ones of what follows it. Between two samples the pointer is taken to go straight, at
// an even pace; what follows is worked out along that way in steps, so that more samples of the same way change little.
//
// Units    points, of which lengthScale make one of the options' length; seconds of any clock.
#pragma once

#include <QPointF>
#include <vector>

#include "Canvas/PointerOptions.h"

namespace dabcanvas {

struct PointerSample {
    QPointF point;
    float pressure = -1, altitude = -1;
    double time = 0;
};

class Stabiliser {
public:
    void begin(const StabiliserOptions& options, double lengthScale, const PointerSample& sample);
    bool isOn() const { return _options.kind != Stabilising::none; }
    // What follows, on the way there; the sample itself without stabilising. Valid until the next call.
    const std::vector<PointerSample>& move(const PointerSample& sample);
    // Where the stroke ends, after what move() to there gave.
    PointerSample end(const PointerSample& sample) const;

private:
    void follow(const PointerSample& to, double seconds);
    void pull(const PointerSample& to);

    StabiliserOptions _options;
    double _length = 0;
    PointerSample _pointer, _follower;
    std::vector<PointerSample> _steps;
};

}  // namespace dabcanvas
