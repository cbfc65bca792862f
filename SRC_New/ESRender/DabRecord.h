// SPDX-License-Identifier: MIT
// What the programs are told of one dab, be it with its vertices or as uniforms: DabMap in a buffer whose rows count from
// the bottom, and where the tip is read.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

#include "Dabs/DabMap.h"
#include "ESRender/Texture/TipAtlas.h"

namespace dabcanvas {

// Where the noise that counts dabs, or whatever comes after each other, stands: evenly spread by the golden section.
inline float noiseTurn(std::uint32_t count) {
    return static_cast<float>((count * 0x9e3779b9u) >> 8) / static_cast<float>(1 << 24);
}

// In the order of line::kDabRecord.
struct DabRecord {
    std::array<float, 4> place;  // centre and half the sides, pixels
    std::array<float, 4> axes;   // from pixels to -1..1 along and across
    std::array<float, 4> pixel;  // half its shadow's foot and top, height, slope
    std::array<float, 4> paint;  // colour and flow
    TipAtlas::Place first, next;
    std::array<float, 4> more;  // part of the next level, noise's turn, random number, paper's lift

    // Of a dab whose tip has that size.
    static DabRecord of(const Dab& dab, const Size& tip, const TipAtlas& atlas, float bufferHeight,
                        float turn) {
        constexpr float kThinnest = 1e-6f;  // what is divided by
        const DabMap map(dab, tip);
        const TipAtlas::Reading reading = atlas.readingAt(dab.tip, map.level);
        const float width = std::max(map.halfWidth, kThinnest), height = std::max(map.halfHeight, kThinnest);
        return {{dab.x, bufferHeight - dab.y, width, height},
                {map.alongX / width, -map.alongY / width, map.acrossX / height, -map.acrossY / height},
                {map.foot, map.top, map.height, map.slope},
                {part(dab.color.r), part(dab.color.g), part(dab.color.b), part(dab.flow)},
                reading.first,
                reading.next,
                {reading.part, turn, dab.random, dab.paperLift}};
    }

private:
    static float part(float value) { return std::clamp(value, 0.0f, 1.0f); }
};
static_assert(sizeof(DabRecord) == 7 * 4 * sizeof(float));

}  // namespace dabcanvas
