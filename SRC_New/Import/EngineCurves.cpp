// SPDX-License-Identifier: MIT
#include "Import/EngineCurves.h"

#include <QImage>
#include <algorithm>
#include <cmath>

#include "Brushes/TexturesTool.h"
#include "LineProcess/Tingle.h"

namespace dabcanvas {
namespace {

constexpr float kTilted = 0.7f;
constexpr float kHalfPi = 1.5707964f;
constexpr int kDiscHalf = 64;

LPPoint pointWith(const LPControlParams& inputs) {
    return {{0, 0}, 1, inputs};
}

// As speed acts on a size that pressure has left.
float withSpeed(float share, float low, float strength, float speed) {
    if (strength == 0) {
        return share;
    }
    const float base = share + std::fabs(strength) * (low - share);
    const float slow = std::sqrt(speed);
    return (strength > 0 ? slow : 1 - slow) * (share - base) + base;
}

}  // namespace

// The line process has it inside a walk; EngineCurvesTest holds the two together.
float shareOfSize(const LPControlParams& inputs, float minRadius, const LPControlParams& control) {
    const float middle = (minRadius + 1) / 2;
    const float fall = std::cos(inputs.pressure * kHalfPi);
    float share = middle;
    if (control.pressure > 0) {
        const float least = middle + control.pressure * (minRadius - middle);
        share = (1 - fall) * (std::min(middle + control.pressure, 1.0f) - least) + least;
    } else if (control.pressure < 0) {
        const float least = std::max(0.0f, middle - std::sqrt(-control.pressure));
        share = fall * (middle - least) + least;
    }
    share = withSpeed(share, minRadius, control.speed, inputs.speed);
    share = std::max(std::min(share, 1.0f), minRadius);
    return inputs.altitude < kTilted ? share : share + (inputs.altitude - kTilted) * control.altitude / 0.3f;
}

float flowOf(const LPControlParams& inputs, float flow, float minFlow, const LPControlParams& control) {
    return FlowTingle(pointWith(inputs), flow, 0, 0, minFlow, 1, 1, control);
}

float roundnessOf(const LPControlParams& inputs, float roundness, float minRoundness,
                  const LPControlParams& control) {
    return std::max(RoundnessTingle(pointWith(inputs), roundness, 0, 0, 1, control), minRoundness);
}

// Colours mix by what the same influence leaves.
float shareOfScatter(const LPControlParams& inputs, const LPControlParams& control) {
    return 1 - ColorTingle(pointWith(inputs), {0, 0, 0}, {1, 1, 1}, 0, 1, control).r;
}

std::vector<float> discProfile(float hardness) {
    TexturesTool tool;
    tool.setTextureType(TexturesTool::kSoftDisc);
    tool.setHardness(hardness);
    const QImage disc = tool.textureImageWithSize(2 * kDiscHalf);
    std::vector<float> profile;
    for (int x = kDiscHalf; x > 0 && !disc.isNull(); --x) {
        profile.push_back(static_cast<float>(qAlpha(disc.pixel(x, kDiscHalf))) / 255);
    }
    return profile;
}

}  // namespace dabcanvas
