// SPDX-License-Identifier: MIT
#include "LineProcess/Tingle.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "LineProcess/LPRandom.h"
#include "LineProcess/LPSettings.h"
#include "LineProcess/SystemRandom.h"
#include "LineProcess/TingleInternal.h"
#include "LineProcess/TingleTables.h"

namespace {

using dabcanvas::clampedToUnit;
using dabcanvas::countOfCopies;
using dabcanvas::finiteOr;
using dabcanvas::influence;
using dabcanvas::kNoPressure;
using dabcanvas::kTilted;
using dabcanvas::pressureCosine;
using dabcanvas::tingleState;
using dabcanvas::uniformAt;

constexpr float kOff = 1e-5f;  // smaller amounts and moves count as none
constexpr double kPi = 3.141592653589793;
constexpr double kTurn = 6.283185307179586;
constexpr int kMostCopies = 64;
constexpr double kMostTips = 9007199254740992.0;  // 2^53, beyond all atlases; whole in a double

float tableValue(std::int64_t index) {
    return FloatValue[index & (dabcanvas::kTingleTableSize - 1)];
}

float uniformOf(LPGenerator& generator) {
    return static_cast<float>(generator() >> 40) * 0x1p-24f;  // as many bits as a float has
}

float uniform() {
    if (tingleState.generator != nullptr) {
        return uniformOf(*tingleState.generator);
    }
    // Rounding to float can reach 1; the next value below keeps the interval open.
    return std::min(std::fabs(static_cast<float>(dabcanvas::systemUniform())), 0x1.fffffep-1f);
}

bool isActive(const LPControlParams& control) {
    return control.pressure != 0.0f || control.altitude != 0.0f || control.speed != 0.0f;
}

bool holdsPressure(const LPControlParams& control, const LPControlParams& inputs) {
    return control.pressure != 0.0f && inputs.pressure != kNoPressure;
}

// 0 at no pressure and 1 at full pressure; the other way round for a negative strength.
float pressureShare(float strength, float pressure) {
    const float c = pressureCosine(pressure);
    return strength < 0.0f ? c : 1.0f - c;
}

float withSpeed(float k, float strength, float speed) {
    if (strength == 0.0f) {
        return k;
    }
    const float b = (1.0f - std::fabs(strength)) * k;
    const float q = speed > 0.0f ? std::sqrt(speed) : 0.0f;
    return (strength < 0.0f ? 1.0f - q : q) * (k - b) + b;
}

bool holdsTilt(const LPControlParams& control, const LPControlParams& inputs) {
    return control.altitude != 0.0f && inputs.altitude >= kTilted;
}

}  // namespace

namespace dabcanvas {

constinit thread_local TingleState tingleState;

float uniformAt(std::int64_t index) {
    return tingleState.debug ? tableValue(index) : uniform();
}

bool coinAt(std::int64_t index) {
    if (tingleState.debug) {
        return IntValue[index & (kTingleTableSize - 1)] % 2 != 0;
    }
    return tingleState.generator != nullptr ? (*tingleState.generator)() >> 63 != 0 : std::rand() % 2 != 0;
}

float lineRandom() {
    return tingleState.generator != nullptr ? uniformOf(*tingleState.generator) : lpRandom();
}

float influence(const LPControlParams& inputs, const LPControlParams& control) {
    float k = 1.0f;
    if (holdsPressure(control, inputs)) {
        const float b = 1.0f - std::fabs(control.pressure);
        k = pressureShare(control.pressure, inputs.pressure) * (1.0f - b) + b;
    }
    k = withSpeed(k, control.speed, inputs.speed);
    k = std::isnan(k) ? 1.0f : clampedToUnit(k);
    // Deliberate: tilt is added after the clamp; not every attribute clamps again.
    if (holdsTilt(control, inputs)) {
        k = finiteOr(k + (inputs.altitude - kTilted) * control.altitude / 0.3f, k);
    }
    return k;
}

std::uint64_t countOfCopies(std::uint64_t count, std::uint64_t index, float amount, const LPPoint& point,
                            const LPControlParams& control) {
    const int base = static_cast<int>(std::min<std::uint64_t>(count, kMostCopies));
    const float k = influence(point.params, control);
    float n = std::nearbyint(k * static_cast<float>(base - 1)) + 1.0f;
    if (amount >= kOff) {
        const float u = uniformAt(static_cast<std::int64_t>(index));
        n = finiteOr(n + std::nearbyint(2.0f * (u - 0.5f) * n * amount), n);
    }
    return static_cast<std::uint64_t>(std::clamp(n, 0.0f, static_cast<float>(kMostCopies)));
}

}  // namespace dabcanvas

void SetDebugModel(int model) {
    tingleState.debug = model != 0;
}

float PreRandD(int index) {
    return FloatValue[index & (dabcanvas::kTingleTableSize - 1)];
}

std::int32_t PreRandI(int index) {
    return IntValue[index & (dabcanvas::kTingleTableSize - 1)];
}

float RadiusTingle(float radius, float minimum, float amount) {
    const double drawn = tingleState.generator != nullptr
                             ? static_cast<double>(uniformOf(*tingleState.generator))
                             : dabcanvas::systemUniform();
    const double cut = static_cast<double>(radius - minimum) * drawn * static_cast<double>(amount);
    return finiteOr(static_cast<float>(static_cast<double>(radius) - cut), finiteOr(radius, 0.0f));
}

float Radian(LPPosition from, LPPosition to) {
    const float dx = to.x - from.x;
    const float dy = to.y - from.y;
    float angle = tingleState.previousAngle;
    if (std::fabs(dx) < kOff) {
        if (dy < -kOff) {
            angle = -1.5707964f;
        } else if (dy > kOff) {
            angle = 1.5707964f;
        }
    } else {
        angle = std::atan(dy / dx);
        if (dx < -kOff) {
            angle = static_cast<float>(static_cast<double>(angle) - kPi);
        }
        angle = finiteOr(angle, tingleState.previousAngle);
    }
    tingleState.previousAngle = angle;
    return angle;
}

float RadianTingle(LPPoint point, float base, float direction, float amount, bool follow, std::int64_t index,
                   LPControlParams control) {
    base = finiteOr(base, 0.0f);
    if (follow) {
        return finiteOr(base + direction, base);
    }
    const float k = influence(point.params, control);
    const float angle =
        finiteOr(static_cast<float>(static_cast<double>(base) + static_cast<double>(k) * kTurn), base);
    if (!(amount > kOff)) {
        return angle;
    }
    const double swing = static_cast<double>((2.0f * uniformAt(index) - 1.0f) * amount) * kPi;
    return finiteOr(static_cast<float>(static_cast<double>(angle) + swing), angle);
}

float RoundnessTingle(LPPoint point, float base, float amount, float /*spare*/, std::int64_t index,
                      LPControlParams control) {
    base = finiteOr(base, 1.0f);
    // Without control the factor counts as one half, which keeps the base: a flat tip stays flat.
    const float k = isActive(control) ? clampedToUnit(influence(point.params, control)) : 0.5f;
    const float v = k < 0.5f ? 2.0f * k * base : 2.0f * (k - 0.5f) * (1.0f - base) + base;
    if (!(amount >= kOff)) {
        return finiteOr(v, base);
    }
    // Deliberate: the pull toward the random value is scaled by the base as well.
    return finiteOr(v + (uniformAt(index) - v) * base * amount, base);
}

std::uint64_t DistributionCountTingle(std::uint64_t count, std::uint64_t index, float amount, LPPoint point,
                                      LPControlParams control) {
    // Deliberate: only this function, not its block, starts every stroke with a single dab.
    return index == 1 ? 1 : countOfCopies(count, index, amount, point, control);
}

std::uint64_t TextureIndexTingle(std::uint64_t count, bool random, std::uint64_t index, LPPoint point,
                                 LPControlParams control) {
    if (count == 0) {
        return 0;
    }
    const float share =
        random ? uniformAt(static_cast<std::int64_t>(index)) : 1.0f - influence(point.params, control);
    const double last = std::min(static_cast<double>(count - 1), kMostTips);
    const double chosen = std::nearbyint(share * static_cast<float>(count - 1));
    return static_cast<std::uint64_t>(std::clamp(chosen, 0.0, last));
}

float OpacityTingle(std::int32_t mode, std::uint64_t fadeCount, std::int64_t index, float opacity,
                    float amount, float minimum, LPControlParams values) {
    opacity = finiteOr(opacity, 1.0f);
    const float span = opacity - minimum;
    const float p = values.pressure == kNoPressure ? 1.0f : values.pressure;
    const float a = values.altitude;
    const float s = values.speed;
    const auto faded = [&] {
        if (fadeCount == 0) {
            return span;
        }
        const std::uint64_t before = index > 1 ? static_cast<std::uint64_t>(index) - 1 : 0;
        return span * static_cast<float>(std::min(before, fadeCount)) / static_cast<float>(fadeCount);
    };
    float value = opacity;
    switch (mode) {
        case 1:
            value = opacity - faded();
            break;
        case 2:
            value = minimum + faded();
            break;
        case 3:
            value = minimum + span * std::min(s, p);
            break;
        case 4:
            value = minimum + span * (1.0f - std::min(s, p));
            break;
        case 5:
            value = minimum + span * std::min(s, a);
            break;
        case 6:
            value = minimum + span * (1.0f - std::min(s, a));
            break;
        case 7:
            value = minimum + span * p;
            break;
        case 8:
            value = minimum + span * (1.0f - p);
            break;
        case 9:
            value = minimum + span * a;
            break;
        case 10:
            value = minimum + span * (1.0f - a);
            break;
        default:
            break;
    }
    value = finiteOr(value, opacity);
    if (amount >= kOff) {
        const float d = amount * value;
        value = finiteOr(value + (std::min(value + d, 1.0f) - d) * uniformAt(index) - d, value);
    }
    return value;
}

float FlowTingle(LPPoint point, float flow, float amount, float fadeCount, float minimum, float maximum,
                 std::int64_t index, LPControlParams control) {
    flow = finiteOr(flow, 1.0f);
    float f = flow;
    if (amount >= kOff) {
        const float d = amount * flow;
        f = finiteOr(flow + (std::min(d, 1.0f - flow) + d) * uniformAt(index) - d, flow);
    }
    f = clampedToUnit(f);
    if (fadeCount > 1.0f) {
        return finiteOr(f * std::max(0.0f, fadeCount - static_cast<float>(index)) / fadeCount, f);
    }
    const LPControlParams& inputs = point.params;
    const auto bounded = [&](float g) { return std::max(minimum, std::min(g, maximum)); };
    float g = 1.0f;
    if (holdsPressure(control, inputs)) {
        g = pressureShare(control.pressure, inputs.pressure) * (maximum - minimum) + minimum;
    }
    g = bounded(withSpeed(g, control.speed, inputs.speed));
    if (holdsTilt(control, inputs)) {
        // Deliberate: here tilt lowers the value, by the sign of the divisor.
        g = bounded(g + (inputs.altitude - kTilted) * control.altitude / -0.3f);
    }
    return finiteOr(g * f, f);
}

RgbType ColorTingle(LPPoint point, RgbType first, RgbType second, float amount, std::int64_t index,
                    LPControlParams control) {
    float drawn = 0.0f;
    if (amount > kOff) {
        drawn = clampedToUnit(uniformAt(index) * amount);
    }
    const float k = clampedToUnit(influence(point.params, control));
    const float share = 1.0f - k * (1.0f - drawn);
    const auto mixed = [share](float from, float to) {
        from = finiteOr(from, 0.0f);
        return finiteOr(from + (finiteOr(to, from) - from) * share, from);
    };
    return {mixed(first.r, second.r), mixed(first.g, second.g), mixed(first.b, second.b)};
}

RgbType HSVTingle(RgbType colour, float hueAmount, float saturationAmount, float brightnessAmount) {
    colour = {finiteOr(colour.r, 0.0f), finiteOr(colour.g, 0.0f), finiteOr(colour.b, 0.0f)};
    const bool turns = hueAmount > kOff;
    const bool fades = saturationAmount > kOff;
    const bool dims = brightnessAmount > kOff;
    if (!turns && !fades && !dims) {
        return colour;
    }
    const auto swing = [](float amount) {
        const float u = tingleState.debug ? tableValue(tingleState.debugDraws++) : uniform();
        return finiteOr((2.0f * u - 1.0f) * amount, 0.0f);
    };
    HsvType hsv = Rgb_to_Hsv(colour);
    if (turns) {
        const float turned = hsv.h + 0.5f * swing(hueAmount);
        hsv.h = turned - std::floor(turned);
    }
    if (fades) {
        const float shifted = clampedToUnit(hsv.s + swing(saturationAmount));
        hsv.s = hsv.s > 0.0f ? shifted : 0.0f;
    }
    if (dims) {
        hsv.v = clampedToUnit(hsv.v + swing(brightnessAmount));
    }
    const RgbType jittered = Hsv_to_Rgb(hsv);
    return {finiteOr(jittered.r, colour.r), finiteOr(jittered.g, colour.g), finiteOr(jittered.b, colour.b)};
}
