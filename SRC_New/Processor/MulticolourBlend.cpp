// SPDX-License-Identifier: MIT
#include <algorithm>

#include "Processor/DabKernel.h"

namespace dabcanvas {

const std::uint16_t* smoothPaper() {
    static const std::array<std::uint16_t, kTileSide* kTileSide> kAll = [] {
        std::array<std::uint16_t, kTileSide * kTileSide> all;
        all.fill(32767);
        return all;
    }();
    return kAll.data();
}

void blendOne(const TileDab& dab, int x, int y, int coverage, std::uint16_t* tile) {
    const DabShape& shape = *dab.shape;
    const auto read = [&](std::size_t i) {
        const DabLevel& level = shape.levels[i];
        return Multicolour::Read{
            shape.colours[i],
            std::clamp(placeAt(dab.u[i], level.rightU, level.downU, x, y), 0, level.lastU()),
            std::clamp(placeAt(dab.v[i], level.rightV, level.downV, x, y), 0, level.lastV())};
    };
    const Multicolour::Read first = read(0);
    const std::array<std::uint16_t, 4> colour =
        shape.multicolour->at(first, shape.levelCount > 1 ? read(1) : first, shape.part);
    const std::uint32_t noise = dab.noise + noiseAt(x, y, 0);
    const int rounding = static_cast<int>(~noise & (kWhole - 1));
    std::uint16_t* pixel = tile + (y * kTileSide + x) * 4;
    for (std::size_t i = 0; i < 4; ++i) {
        const int from = pixel[i] - 32768, to = colour[i] - 32768;
        pixel[i] = static_cast<std::uint16_t>(
            ((from * (kWhole - coverage) + to * coverage + rounding) >> 15) + 32768);
    }
}

}  // namespace dabcanvas
