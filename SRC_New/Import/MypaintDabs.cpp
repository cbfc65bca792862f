// SPDX-License-Identifier: MIT
#include "Import/MypaintDabs.h"

#include <algorithm>
#include <cmath>

namespace dabcanvas {
namespace {

using In = MypaintInput;

constexpr float kLeastRadius = 0.2f, kMostRadius = 1000;
constexpr float kUsualSpeed = 400;  // pixels a second
constexpr float kPi = 3.1415927f;
constexpr float kShows = 0.02f;  // a smaller part of something does not

}  // namespace

float MypaintDabs::baseRadius() const {
    return std::clamp(std::exp(_brush.base("radius_logarithmic")), kLeastRadius, kMostRadius);
}

float MypaintDabs::strokeLength() const {
    return std::exp(std::clamp(_brush.base("stroke_duration_logarithmic"), -1.0f, 7.0f)) * baseRadius();
}

bool MypaintDabs::growsAlong() const {
    const MypaintSetting setting = _brush.setting("radius_logarithmic");
    const MypaintCurve* const curve = setting.curveOver(In::stroke);
    return curve != nullptr && curve->at(1) > curve->at(0) + kShows && curve->mean() < curve->at(1);
}

float MypaintDabs::radiusAt(const MypaintPen& pen) const {
    return std::clamp(std::exp(_brush.value("radius_logarithmic", pen, growsAlong() ? bitOf(In::stroke) : 0)),
                      kLeastRadius, kMostRadius);
}

float MypaintDabs::opacityAt(const MypaintPen& pen) const {
    const float opaque = std::clamp(
        std::max(0.0f, _brush.value("opaque", pen)) * _brush.value("opaque_multiply", pen), 0.0f, 1.0f);
    const float over =
        2 * (_brush.value("dabs_per_actual_radius", pen) + _brush.value("dabs_per_basic_radius", pen));
    const float dabs = 1 + std::max(0.0f, _brush.base("opaque_linearize")) * (std::max(over, 1.0f) - 1);
    return 1 - std::pow(1 - opaque, 1 / dabs);
}

std::optional<float> MypaintDabs::turnedAgainstStroke() const {
    const MypaintSetting setting = _brush.setting("elliptical_dab_angle");
    for (const In input : {In::direction, In::directionAngle}) {
        const MypaintCurve* const curve = setting.curveOver(input);
        const float turn = rowOf(input).high;
        if (curve != nullptr && curve->at(turn) - curve->at(0) > turn / 2) {
            const float straight = curve->at(turn / 2) - turn / 2;
            return _brush.value("elliptical_dab_angle", _pens.middle()) - curve->mean() + straight;
        }
    }
    return std::nullopt;
}

// Flat dabs that lie across the stroke follow each other as closely as their height asks: how much more closely, on
// average over all directions where they do not turn with it.
float MypaintDabs::alongDabs() const {
    const float ratio = std::max(1.0f, _brush.value("elliptical_dab_ratio", _pens.middle()));
    const auto along = [ratio](float angle) { return std::hypot(std::cos(angle), ratio * std::sin(angle)); };
    if (const auto turned = turnedAgainstStroke()) {
        return along(*turned * kPi / 180);
    }
    constexpr int kWays = 12;
    float sum = 0;
    for (int way = 0; way < kWays; ++way) {
        sum += along(kPi * static_cast<float>(way) / kWays);
    }
    return sum / kWays;
}

float MypaintDabs::stepAt(const MypaintPen& pen) const {
    const float along = alongDabs() * tremblingWay();
    const float dabsAPixel =
        along * (std::max(0.0f, _brush.value("dabs_per_actual_radius", pen)) / radiusAt(pen) +
                 std::max(0.0f, _brush.value("dabs_per_basic_radius", pen)) / baseRadius()) +
        std::max(0.0f, _brush.value("dabs_per_second", pen)) / kUsualSpeed;
    return dabsAPixel > 0 ? 1 / dabsAPixel : 2 * radiusAt(pen);
}

float MypaintDabs::scatterAt(const MypaintPen& pen) const {
    const float kept = keptOfSlowPen();
    const float trembling =
        std::max(0.0f, _brush.base("tracking_noise")) * std::sqrt((1 - kept) / (1 + kept));
    const float scatter = std::hypot(std::max(0.0f, _brush.value("offset_by_random", pen)), trembling);
    return smudgesThroughout() ? std::min(scatter, radiusAt(pen) / baseRadius() / 2) : scatter;
}

float MypaintDabs::meanSmudge() const {
    float sum = 0, weights = 0;
    for (const PenState& state : _pens.states({"smudge", "radius_logarithmic"})) {
        const float radius = radiusAt(state.pen);
        const float weight = radius * radius * std::max(opacityAt(state.pen), 1e-3f);
        sum += weight * smudgeAt(state.pen);
        weights += weight;
    }
    return sum / weights;
}

bool MypaintDabs::smudgesThroughout() const {
    MypaintPen begin = _pens.middle();
    begin[static_cast<std::size_t>(In::stroke)] = 0;
    return std::min(smudgeAt(begin), smudgeAt(_pens.middle())) > 0.5f;
}

bool MypaintDabs::liesApart() const {
    const MypaintPen middle = _pens.middle();
    return 2 * scatterAt(middle) * baseRadius() > radiusAt(middle);
}

// How much a steadied pen keeps of its place from sample to sample.
float MypaintDabs::keptOfSlowPen() const {
    const float slow = _brush.base("slow_tracking");
    return slow > 0 ? std::exp(-1 / slow) : 0;
}

// How much longer the way of a pen is that trembles, where each of its steps is at least half as long as it trembles far.
float MypaintDabs::tremblingWay() const {
    const float kept = keptOfSlowPen();
    const float noise = std::max(0.0f, _brush.base("tracking_noise")) * baseRadius();
    const float step = std::max(kUsualSpeed / kSamplesASecond, noise / 2);
    return std::hypot(1.0f, 1.77f * noise * (1 - kept) / std::sqrt(1 + kept) / step);
}

float MypaintDabs::smudgeAt(const MypaintPen& pen) const {
    return std::clamp(_brush.value("smudge", pen, bitOf(In::stroke)), 0.0f, 1.0f);
}

float MypaintDabs::carriedPart() const {
    const MypaintPen middle = _pens.middle();
    const float remembered = std::clamp(_brush.value("smudge_length", middle, bitOf(In::stroke)), 0.0f, 1.0f);
    const float overlap = std::max(0.0f, 1 - 0.64f * stepAt(middle) / radiusAt(middle));
    return std::min(remembered + (1 - remembered) * 0.7f * overlap, 0.99f);
}

}  // namespace dabcanvas
