// SPDX-License-Identifier: MIT
#include <algorithm>

#include "Processor/DabKernel.h"

namespace dabcanvas {

void blendOne(const TileDab& dab, int x, int y, int coverage, std::uint16_t* tile) {
    const auto read = [&](std::size_t i) {
        const TileLevel& level = dab.levels[i];
        return Multicolour::Read{
            dab.colours[i], std::clamp(placeAt(level.u, level.rightU, level.downU, x, y), 0, level.lastU),
            std::clamp(placeAt(level.v, level.rightV, level.downV, x, y), 0, level.lastV)};
    };
    const std::array<std::uint16_t, 4> colour = dab.multicolour->at(read(0), read(1), dab.part);
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
