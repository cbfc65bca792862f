// SPDX-License-Identifier: MIT
// Scattering the copies of a dab. Independent random places would clump; these spread evenly, however many
// there are, from a random start at every point.
#include <cmath>
#include <cstdint>

#include "LineProcess/LPSettings.h"
#include "LineProcess/Tingle.h"
#include "LineProcess/TingleInternal.h"

namespace {

using dabcanvas::clampedToUnit;
using dabcanvas::finiteOr;
using dabcanvas::tingleState;
using dabcanvas::uniformAt;

constexpr double kTurn = 6.283185307179586;
constexpr double kWhole = 4294967296.0;    // 2^32
constexpr std::int64_t kSecondDraw = 512;  // half a table away from the first

// The two coordinates of the i-th place of a sequence of which every run of 2^n falls evenly over every way
// of halving a square n times, as whole 2^32nds.
std::uint32_t firstCoordinate(std::uint64_t i) {
    std::uint32_t sum = 0;
    for (std::uint32_t weight = 0x80000000u; i != 0 && weight != 0; i >>= 1, weight >>= 1) {
        sum ^= (i & 1) != 0 ? weight : 0;
    }
    return sum;
}

std::uint32_t secondCoordinate(std::uint64_t i) {
    std::uint32_t sum = 0;
    for (std::uint32_t weight = 0x80000000u; i != 0; i >>= 1, weight ^= weight >> 1) {
        sum ^= (i & 1) != 0 ? weight : 0;
    }
    return sum;
}

// Starts the sequence at a random place, 0..1, in a way that keeps it even.
double startedAt(float start, std::uint32_t coordinate) {
    const auto mask = static_cast<std::uint32_t>(static_cast<double>(clampedToUnit(start)) * (kWhole - 1.0));
    return static_cast<double>(coordinate ^ mask) / kWhole;
}

void rememberPlace(const LPPosition& place, std::int64_t index) {
    if (place.x == tingleState.lastPosition.x && place.y == tingleState.lastPosition.y) {
        tingleState.pIndex += 1;
        return;
    }
    tingleState.lastPosition = place;
    tingleState.pIndex = 0;
    tingleState.scatterStart[0] = uniformAt(index);
    tingleState.scatterStart[1] = uniformAt(index + kSecondDraw);
}

}  // namespace

LPPosition PositionTingle(LPPoint point, float distribution, bool twoAxes, std::int64_t index,
                          float direction, LPControlParams control) {
    const LPPosition place = {finiteOr(point.position.x, 0.0f), finiteOr(point.position.y, 0.0f)};
    rememberPlace(place, index);
    const double k = clampedToUnit(dabcanvas::influence(point.params, control));
    const double reach = static_cast<double>(distribution) * static_cast<double>(point.radius) * k;
    const auto copy = static_cast<std::uint64_t>(tingleState.pIndex);
    const double around = startedAt(tingleState.scatterStart[0], firstCoordinate(copy));
    double x = 0.0;
    double y = 0.0;
    if (twoAxes) {
        // The root gives every part of the disc its share of the copies.
        const double out = std::sqrt(startedAt(tingleState.scatterStart[1], secondCoordinate(copy)));
        x = out * std::cos(kTurn * around);
        y = out * std::sin(kTurn * around);
    } else {
        const double across = 2.0 * around - 1.0;
        const double angle = static_cast<double>(finiteOr(direction, 0.0f));
        x = across * std::sin(angle);
        y = across * std::cos(angle);
    }
    return {finiteOr(static_cast<float>(static_cast<double>(place.x) + x * reach), place.x),
            finiteOr(static_cast<float>(static_cast<double>(place.y) + y * reach), place.y)};
}
