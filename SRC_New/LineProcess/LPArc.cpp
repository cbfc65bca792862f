// SPDX-License-Identifier: MIT
#include "LineProcess/LPArc.h"

#include <algorithm>
#include <cmath>

namespace dabcanvas {

namespace {

// Below, the closed form's guard against dividing by 0 would take away more than half of the length, and with
// it the dabs of fast, nearly straight strokes. Deliberate: above, what it takes away is left away.
constexpr float kLeastA = 0.0025f;
// Above, its products leave the range of a float.
constexpr float kMostA = 1e24f;

// The bisection's tolerance, less and plus what rounding of the difference may do.
constexpr double kSurelyMet = kLengthTolerance * 0.99;
constexpr double kSurelyApart = kLengthTolerance * 1.01;

// Mathematically the value is never below 0.001; rounding takes it there where a curve turns back.
float guardedLog(float value) {
    const float shifted = static_cast<float>(static_cast<double>(value) + 0.001);
    return std::log(shifted > 0.0f ? shifted : 0.001f);
}

float guardedRoot(float value) {
    return value > 0.0f ? std::sqrt(value) : 0.0f;
}

}  // namespace

QuadraticArc::QuadraticArc(float A, float B, float C)
    : _A(A), _B(B), _C(C), _closed(A >= kLeastA && A <= kMostA) {
    if (!_closed) {
        return;
    }
    _rootA = std::sqrt(A);
    _rootC = guardedRoot(C);
    _discriminant = B * B - 4.0f * A * C;
    _logAtStart = guardedLog(2.0f * guardedRoot(A * C) + B);
    _divisor = static_cast<double>(8.0f * _rootA * A) + 0.001;
    _closed = std::isfinite(_discriminant) && std::isfinite(_logAtStart);
}

inline float QuadraticArc::speedAt(float t) const {
    return guardedRoot(_A * t * t + _B * t + _C);
}

inline float QuadraticArc::closedForm(float t, float speed) const {
    const float logAtEnd = guardedLog(2.0f * _rootA * speed + 2.0f * _A * t + _B);
    const float numerator = (_logAtStart - logAtEnd) * _discriminant +
                            2.0f * _rootA * (_B * (speed - _rootC) + 2.0f * _A * t * speed);
    return static_cast<float>(static_cast<double>(numerator) / _divisor);
}

float QuadraticArc::lengthTo(float t) const {
    if (_closed) {
        const float length = closedForm(t, speedAt(t));
        if (std::isfinite(length)) {
            return length;
        }
    }
    return numericLength(t);
}

// Gauss-Legendre with three points. One interval is exact enough for curves that are nearly run through
// at an even speed; the other case is coordinates beyond all reason, which only have to come out sane.
float QuadraticArc::numericLength(float t) const {
    constexpr double kPoint = 0.774596669241483377;
    constexpr double kOuterWeight = 5.0 / 9.0;
    constexpr double kInnerWeight = 8.0 / 9.0;
    const int intervals = _A < kLeastA ? 1 : 8;
    const double half = static_cast<double>(t) / (2 * intervals);
    const auto speed = [this](double at) {
        const double squared =
            (static_cast<double>(_A) * at + static_cast<double>(_B)) * at + static_cast<double>(_C);
        return squared > 0.0 ? std::sqrt(squared) : 0.0;
    };
    double sum = 0.0;
    for (int i = 0; i < intervals; ++i) {
        const double middle = half * (2 * i + 1);
        sum += kOuterWeight * (speed(middle - half * kPoint) + speed(middle + half * kPoint)) +
               kInnerWeight * speed(middle);
    }
    const float length = static_cast<float>(sum * half);
    return std::isfinite(length) ? length : 0.0f;
}

float bisectParameter(const QuadraticArc& arc, float length, float tStart) {
    float lo = tStart;
    float hi = kParameterEnd;
    if (lo + kParameterTolerance >= kParameterEnd) {
        return lo;
    }
    do {
        const float mid = (lo + hi) * 0.5f;
        const float reached = arc.lengthTo(mid);
        if (std::fabs(reached - length) < kLengthTolerance) {
            return mid;
        }
        if (reached < length) {
            lo = mid;
        } else {
            hi = mid;
        }
    } while (hi > lo + kParameterTolerance);
    return lo;
}

ArcWalk::ArcWalk(float A, float B, float C) : QuadraticArc(A, B, C) {
    if (!_closed && !(A > 0.0f && A < kLeastA)) {
        return;
    }
    const double a = A;
    const double b = B;
    const double c = C;
    const double end = kParameterEnd;
    const double atEnd = (a * end + b) * end + c;
    const double bend = std::fabs(b * b - 4.0 * a * c);
    const double turn = -b / (2.0 * a);
    const double least = turn > 0.0 && turn < end ? bend / (4.0 * a) : std::min(c, atEnd);
    if (!(least > 0.0)) {
        return;
    }
    const double fastest = std::sqrt(std::max(c, atEnd));
    const double slowest = std::sqrt(least);
    const double unevenness = fastest / slowest;
    if (_closed) {
        _noise = closedFormNoise(fastest, unevenness, bend);
        _scale = (_divisor - 0.001) / _divisor;
    } else {
        _noise = 0x1p-18 * fastest;
    }
    // Next to a turning point the speed itself is mostly rounding.
    if (!(_noise < 0.1) || unevenness > (_closed ? 20.0 : 1.5)) {
        return;
    }
    _predicts = true;
    _cubicBound = bend / (24.0 * slowest * slowest * slowest);
    _anchor = {0.0, 0.0, _scale * std::sqrt(c), _scale * b / (4.0 * std::sqrt(c))};
}

// Bound of the closed form's error: rounding of the speed and of the products it enters, and that of the
// logarithms, which are steepest at the start of the curve, together with the 0.001 in their arguments.
double ArcWalk::closedFormNoise(double fastest, double unevenness, double bend) const {
    const double a = _A;
    const double b = _B;
    const double rootA = std::sqrt(a);
    const double products = 0x1p-21 * fastest * unevenness * unevenness * (std::fabs(b) / (4.0 * a) + 2.0);
    const double argument = 2.0 * std::sqrt(a * static_cast<double>(_C)) + b + 0.001;
    const double sums = 2.0 * rootA * fastest + 2.0 * a + std::fabs(b);
    const double logs =
        bend / (8.0 * rootA * a) * (0x1p-22 * 100.0 + (0x1p-21 * sums + 0.001) / std::max(argument, 1e-6));
    return 4.0 * (products + logs);
}

// The exact length to t, kept as the place to predict from.
float ArcWalk::measure(float t) {
    const float speed = speedAt(t);
    const float length = _closed ? closedForm(t, speed) : numericLength(t);
    const double scaled = _scale / static_cast<double>(speed);
    const double steepness = 2.0 * static_cast<double>(_A) * static_cast<double>(t) + static_cast<double>(_B);
    _anchor = {t, length, _scale * static_cast<double>(speed), steepness * scaled * 0.25};
    return length;
}

float ArcWalk::parameterAt(float length, float tStart) {
    if (!_predicts) {
        return bisectParameter(*this, length, tStart);
    }
    float lo = tStart;
    float hi = kParameterEnd;
    if (lo + kParameterTolerance >= kParameterEnd) {
        return lo;
    }
    do {
        const float mid = (lo + hi) * 0.5f;
        const double away = static_cast<double>(mid) - _anchor.t;
        const double predicted = _anchor.length + away * (_anchor.speed + away * _anchor.halfSlope);
        const double doubt = _noise + _cubicBound * std::fabs(away * away * away);
        const double lead = predicted - static_cast<double>(length);
        bool below = lead < 0.0;
        if (!(std::fabs(lead) > kSurelyApart + doubt)) {
            if (std::fabs(lead) + doubt < kSurelyMet) {
                return mid;
            }
            const float reached = measure(mid);
            if (std::fabs(reached - length) < kLengthTolerance) {
                return mid;
            }
            below = reached < length;
        }
        lo = below ? mid : lo;
        hi = below ? hi : mid;
    } while (hi > lo + kParameterTolerance);
    return lo;
}

}  // namespace dabcanvas
