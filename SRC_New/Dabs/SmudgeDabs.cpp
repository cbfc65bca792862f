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
    _dab.moist = std::exchange(_hasPlace, true) ? settings.moist : 0.0f;
    _dab.mix = settings.control ? settings.grownMix(dabs.pointIndex()) : settings.mix;
    const float dry = 1 - _dab.moist;  // as surfaces reckon
    _dab.exchange = settings.load * (1 - _dab.mix) + _dab.mix * (1 - dry * dry * dry);
    const LPPosition& here = dabs.point().position;
    _dab.pickUp = std::exchange(_place, {std::nearbyint(here.x), std::nearbyint(here.y)});
    _dab.pickUpHalf = std::exchange(_half, std::nearbyint(dabs.halfSizeOfPoint()));
}

}  // namespace dabcanvas
