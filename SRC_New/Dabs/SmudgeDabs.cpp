// SPDX-License-Identifier: MIT
#include "Dabs/SmudgeDabs.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace dabcanvas {

float SmudgeSettings::grownMix(std::int64_t index) const {
    if (!(controlValue > 0)) {
        return mix;
    }
    return mix * std::min(controlValue, static_cast<float>(index - 1)) / controlValue;
}

// A point takes up colour where the point before it was drawn; a stroke's first has no such place and takes up nothing.
void SmudgeMaker::beginPoint(const DabMaker& dabs) {
    const bool hasPlace = std::exchange(_hasPlace, true);
    _dab.moist = hasPlace ? settings.moist : 0.0f;
    _dab.bristles.part = 0;
    const float moved = hasPlace && settings.bristles > 0 ? follow(dabs) : 0.0f;
    _way.place = dabs.point().position;
    if (_way.isKnown && settings.bristles > 0) {
        beginBristles(dabs, moved);
    }
    _dab.mix = settings.control ? settings.grownMix(dabs.pointIndex()) : settings.mix;
    const float dry = 1 - _dab.moist;  // as surfaces reckon
    _dab.exchange = settings.load * (1 - _dab.mix) + _dab.mix * (1 - dry * dry * dry);
    const LPPosition& here = dabs.point().position;
    _dab.pickUp = std::exchange(_place, {std::nearbyint(here.x), std::nearbyint(here.y)});
    _dab.pickUpHalf = std::exchange(_half, std::nearbyint(dabs.halfSizeOfPoint()));
}

// The way from the point before, in pixels. Across it keeps to one side, so that a stroke that turns back does not turn its
// bristles over, and follows within a quarter of the dab.
float SmudgeMaker::follow(const DabMaker& dabs) {
    const LPPosition& here = dabs.point().position;
    const float x = here.x - _way.place.x, y = here.y - _way.place.y, moved = std::sqrt(x * x + y * y);
    if (!(moved > 0) || !std::isfinite(moved)) {
        return 0;
    }
    const float side = y / moved * _way.acrossX - x / moved * _way.acrossY;
    _way.ahead = !_way.isKnown || side >= 0 ? 1.0f : -1.0f;
    const float acrossX = _way.ahead * y / moved, acrossY = -_way.ahead * x / moved;
    const float part =
        _way.isKnown ? std::min(2 * moved / std::max(dabs.halfSizeOfPoint(), 1.0f), 1.0f) : 1.0f;
    const float towardsX = _way.acrossX + (acrossX - _way.acrossX) * part;
    const float towardsY = _way.acrossY + (acrossY - _way.acrossY) * part;
    const float length = std::max(std::sqrt(towardsX * towardsX + towardsY * towardsY), 0.1f);
    _way.acrossX = towardsX / length;
    _way.acrossY = towardsY / length;
    _way.isKnown = true;
    return moved;
}

// Bristles lay down what they carry however dry they are: as a part of what is taken up by a wetter brush, so that surfaces
// reckon with the wetness alone.
void SmudgeMaker::beginBristles(const DabMaker& dabs, float moved) {
    constexpr float kThirst = 3;  // of the wettest: a dab's width of way takes a bristle most of the way
    constexpr float kFewest = 5, kPerPixel = 0.35f;
    const float part = std::min(settings.bristles, 1.0f);
    const float dry = part < 1 ? (1 - settings.moist) * std::cbrt(1 - part) : 0.0f;
    _dab.moist = 1 - dry;
    BristleDab& bristles = _dab.bristles;
    bristles.part = part / (1 - dry * dry * dry);
    bristles.uptake = std::min(
        kThirst * settings.moist * settings.moist * moved / std::max(2 * dabs.halfSizeOfPoint(), 1.0f),
        50.0f);
    bristles.acrossX = _way.acrossX;
    bristles.acrossY = _way.acrossY;
    bristles.ahead = _way.ahead;
    bristles.load = settings.load;
    bristles.isFirst = !_way.hasBristles;
    if (bristles.isFirst) {
        const float most = kMostBristles;
        bristles.count = static_cast<int>(std::clamp(dabs.settings.radius * kPerPixel, kFewest, most));
    }
}

}  // namespace dabcanvas
