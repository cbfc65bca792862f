// SPDX-License-Identifier: MIT
#include "Canvas/Stabiliser.h"

#include <QLineF>
#include <algorithm>
#include <cmath>

namespace dabcanvas {
namespace {

constexpr double kMostSeconds = 2, kMostLength = 1000;
constexpr double kStepSeconds = 0.004;
constexpr double kStepPoints = 1;
constexpr int kMostSteps = 500;  // between two samples

int stepsFor(double amount, double step) {
    return static_cast<int>(std::clamp(std::ceil(amount / step), 1.0, double{kMostSteps}));
}

float between(float from, float to, double part) {
    return from < 0 || to < 0 ? to : from + static_cast<float>(part) * (to - from);
}

PointerSample between(const PointerSample& from, const PointerSample& to, double part) {
    return {from.point + part * (to.point - from.point), between(from.pressure, to.pressure, part),
            between(from.altitude, to.altitude, part), from.time + part * (to.time - from.time)};
}

}  // namespace

void Stabiliser::begin(const StabiliserOptions& options, double lengthScale, const PointerSample& sample) {
    _options = options;
    const auto bounded = [](double value, double most) {
        return std::isfinite(value) ? std::clamp(value, 0.0, most) : 0.0;
    };
    _options.seconds = bounded(options.seconds, kMostSeconds);
    _length = bounded(options.length, kMostLength) * lengthScale;
    _pointer = _follower = sample;
}

const std::vector<PointerSample>& Stabiliser::move(const PointerSample& sample) {
    _steps.clear();
    switch (_options.kind) {
        case Stabilising::none:
            _steps.push_back(sample);
            break;
        case Stabilising::average:
            follow(sample, sample.time - _pointer.time);
            break;
        case Stabilising::string:
            pull(sample);
            break;
    }
    _pointer = sample;
    return _steps;
}

// Of a pointer at an even pace the lag is known: it goes towards what the pointer covers within `seconds`, by e^-t.
void Stabiliser::follow(const PointerSample& to, double seconds) {
    const double lag = _options.seconds;
    if (lag <= 0) {
        _follower = to;
        _steps.push_back(to);
        return;
    }
    if (!(seconds > 0)) {
        return;
    }
    const int steps = stepsFor(seconds, kStepSeconds);
    const double step = seconds / steps, kept = std::exp(-step / lag);
    const auto next = [&](double follower, double from, double change) {
        const double late = change * lag / seconds;  // by how much it lags behind in the end
        return from + change * step / seconds - late + (follower - from + late) * kept;
    };
    for (int i = 0; i < steps; ++i) {
        const PointerSample at = between(_pointer, to, double(i) / steps);
        const QPointF change = to.point - _pointer.point;
        const PointerSample ahead = between(_pointer, to, double(i + 1) / steps);
        _follower.point = {next(_follower.point.x(), at.point.x(), change.x()),
                           next(_follower.point.y(), at.point.y(), change.y())};
        _follower.pressure = between(ahead.pressure, _follower.pressure, kept);
        _follower.altitude = between(ahead.altitude, _follower.altitude, kept);
        _follower.time = ahead.time;
        _steps.push_back(_follower);
    }
}

void Stabiliser::pull(const PointerSample& to) {
    const int steps = stepsFor(QLineF(_pointer.point, to.point).length(), kStepPoints);
    for (int i = 1; i <= steps; ++i) {
        const PointerSample at = between(_pointer, to, double(i) / steps);
        const double distance = QLineF(_follower.point, at.point).length();
        if (distance > _length) {
            _follower = between(_follower, at, 1 - _length / distance);
            _follower.pressure = at.pressure;
            _follower.altitude = at.altitude;
            _steps.push_back(_follower);
        }
    }
}

PointerSample Stabiliser::end(const PointerSample& sample) const {
    PointerSample end = sample;
    if (_options.kind != Stabilising::none && !_options.finishesLine) {
        end.point = _follower.point;
    }
    return end;
}

}  // namespace dabcanvas
