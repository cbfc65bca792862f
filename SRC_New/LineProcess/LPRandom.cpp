// SPDX-License-Identifier: MIT
#include "LineProcess/LPRandom.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <ctime>

#include "LineProcess/SystemRandom.h"

namespace {

constexpr float kRandScale = 4.656612873e-10f;  // 2 to the power -31
// Rounding to float can reach 1; the next value below keeps the interval open.
constexpr float kBelowOne = 0x1.fffffep-1f;

// The factor that both numbers of a pair share: polar method, logarithm in single precision.
double polarScale(double S) {
    return std::sqrt(-2.0 * static_cast<double>(std::log(static_cast<float>(S))) / S);
}

}  // namespace

float lpRandom() {
    [[maybe_unused]] static const bool seeded = [] {
        std::srand(static_cast<unsigned>(std::time(nullptr)));
        return true;
    }();
    return std::min(static_cast<float>(dabcanvas::systemRandom()) * kRandScale, kBelowOne);
}

float lpUniformRandom(float low, float high) {
    return lpRandom() * (high - low) + low;
}

float lpGaussianRandom(float mean, float deviation) {
    thread_local int phase = 0;
    thread_local double S = 0.0;
    thread_local double V2 = 0.0;
    double X = 0.0;
    if (phase == 0) {
        double V1 = 0.0;
        do {
            V1 = 2.0 * static_cast<double>(lpRandom()) - 1.0;
            V2 = 2.0 * static_cast<double>(lpRandom()) - 1.0;
            S = V1 * V1 + V2 * V2;
        } while (S >= 1.0 || S == 0.0);
        X = V1 * polarScale(S);
    } else {
        X = V2 * polarScale(S);
    }
    phase = 1 - phase;
    return static_cast<float>(static_cast<double>(mean) + static_cast<double>(deviation) * X);
}
