// SPDX-License-Identifier: MIT
#include "Import/MypaintPens.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace dabcanvas {
namespace {

using In = MypaintInput;

constexpr int kChances = 32;
constexpr float kFlatLean = 60;      // degrees from upright at which an altitude is 1
constexpr float kSlowCustom = 0.5f;  // a custom input slower than this follows no chance

std::size_t placeOf(In input) {
    return static_cast<std::size_t>(input);
}

// What MyPaint makes of a speed in pixels a second: 0 is slow, 4 fast.
float speedInput(float speed, float gammaSetting) {
    const float gamma = std::exp(std::clamp(gammaSetting, -10.0f, 10.0f));
    const float slope = 0.015f * (45 + gamma);
    return slope * (std::log(gamma + speed) - std::log(45 + gamma)) + 0.5f;
}

// As a line's dab has it: 1 slow or at rest, 0 fast.
float slowness(float speed) {
    return speed < 0.1f * kFastest ? 1 : std::max(0.0f, 1 - speed / kFastest);
}

}  // namespace

MypaintPen MypaintPens::at(float pressure, float speed, float altitude) const {
    MypaintPen pen = _brush.pen();
    pen[placeOf(In::pressure)] = pressure * std::exp(_brush.base("pressure_gain_log"));
    pen[placeOf(In::speed1)] = speedInput(speed, _brush.base("speed1_gamma"));
    pen[placeOf(In::speed2)] = speedInput(speed, _brush.base("speed2_gamma"));
    pen[placeOf(In::declination)] = 90 - kFlatLean * altitude;
    pen[placeOf(In::stroke)] = 1;
    return withChance(pen, 0.5f);
}

MypaintPen MypaintPens::withChance(const MypaintPen& pen, float chance) const {
    MypaintPen drawn = pen;
    drawn[placeOf(In::random)] = chance;
    drawn[placeOf(In::custom)] = 0;
    MypaintPen forCustom = drawn;
    if (_brush.base("custom_input_slowness") > kSlowCustom) {
        forCustom[placeOf(In::random)] = 0.5f;
    }
    drawn[placeOf(In::custom)] = _brush.value("custom_input", forCustom);
    return drawn;
}

MypaintInputs MypaintPens::inputsOf(std::initializer_list<std::string_view> settings) const {
    MypaintInputs inputs = 0;
    for (const std::string_view key : settings) {
        for (const MypaintCurve& curve : _brush.setting(key).curves) {
            inputs |= bitOf(curve.input);
        }
    }
    if ((inputs & bitOf(In::custom)) != 0) {
        for (const MypaintCurve& curve : _brush.setting("custom_input").curves) {
            inputs |= bitOf(curve.input);
        }
    }
    return inputs;
}

std::vector<PenState> MypaintPens::states(std::initializer_list<std::string_view> settings) const {
    const MypaintInputs inputs = inputsOf(settings);
    const auto uses = [inputs](In input) { return (inputs & bitOf(input)) != 0; };
    std::vector<float> pressures{0.5f}, speeds{400}, altitudes{0};
    if (uses(In::pressure)) {
        pressures = {0.05f, 0.15f, 0.25f, 0.35f, 0.45f, 0.55f, 0.65f, 0.75f, 0.85f, 0.95f};
    }
    if (uses(In::speed1) || uses(In::speed2)) {
        speeds = {20, 85, 218, 478, 985};
    }
    if (uses(In::declination)) {
        altitudes = {0, 0, 0.85f, 1};  // upright is what counts most; tilt shows from 0.7 on
    }
    std::vector<PenState> states;
    for (const float pressure : pressures) {
        for (const float speed : speeds) {
            for (const float altitude : altitudes) {
                states.push_back({at(pressure, speed, altitude), {pressure, altitude, slowness(speed)}});
            }
        }
    }
    return states;
}

Spread MypaintPens::spread(const MypaintQuantity& quantity, const MypaintPen& pen) const {
    std::array<float, kChances> values{};
    for (int i = 0; i < kChances; ++i) {
        values[static_cast<std::size_t>(i)] =
            quantity(withChance(pen, (static_cast<float>(i) + 0.5f) / kChances));
    }
    const float mean = std::accumulate(values.begin(), values.end(), 0.0f) / kChances;
    float squares = 0;
    for (const float value : values) {
        squares += (value - mean) * (value - mean);
    }
    const float deviation = std::sqrt(squares / kChances);
    return {mean, deviation > 1e-4f * std::abs(mean) ? deviation : 0};
}

}  // namespace dabcanvas
