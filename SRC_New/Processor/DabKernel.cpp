// SPDX-License-Identifier: MIT
#include "Processor/DabKernel.h"

#include <algorithm>
#include <cmath>

namespace dabcanvas {
namespace {

int timesPart(int value, int part) {  // 0..32767, which leaves values up to 1 << 14 as they are
    return (value * part + (1 << 14)) >> 15;
}

// The part of a pixel on the near side of an edge that runs so far beyond its centre, less one half; see DabMap.
float shadow(const TileBox& box, float distance) {
    const float near = std::min(std::fabs(distance), box.foot);
    const float side = std::max(near - box.top, 0.0f);
    return std::copysign(near * box.height - side * side * box.slope, distance);
}

int boxAt(const TileBox& box, int x, int y) {
    const auto right = static_cast<float>(x), down = static_cast<float>(y);
    const float along = (box.along + down * box.alongY) + right * box.alongX;
    const float across = (box.across + down * box.acrossY) + right * box.acrossX;
    const float covered = (shadow(box, along + box.halfWidth) - shadow(box, along - box.halfWidth)) *
                          (shadow(box, across + box.halfHeight) - shadow(box, across - box.halfHeight));
    return static_cast<int>(covered * 32767 + 0.5f);
}

int placeU(const TileLevel& level, int x, int y) {
    return std::clamp(placeAt(level.u, level.rightU, level.downU, x, y), 0, level.lastU);
}
int placeV(const TileLevel& level, int x, int y) {
    return std::clamp(placeAt(level.v, level.rightV, level.downV, x, y), 0, level.lastV);
}

int texelAt(const TileLevel& level, int x, int y) {
    const int u = placeU(level, x, y), v = placeV(level, x, y);
    const std::uint8_t* block = level.pairs + (v >> 16) * level.stride + (u >> 16) * 2;
    const int right = timesPart(127, u >> 1 & 32767), down = timesPart(127, v >> 1 & 32767);
    const int left = block[0] * (127 - down) + block[1] * down;
    const int next = block[2] * (127 - down) + block[3] * down;
    return (left * (127 - right) + next * right) >> 8;
}

int coverageAt(const TileDab& dab, int x, int y, bool rim, std::uint32_t noise) {
    int sum = 0;
    for (int i = 0; i < dab.levelCount; ++i) {
        const TileLevel& level = dab.levels[static_cast<std::size_t>(i)];
        int texel = texelAt(level, x, y);
        if (rim) {
            texel = timesPart(texel, boxAt(dab.box, x, y));
        }
        if (dab.paper != nullptr) {
            texel = timesPart(texel, dab.paper[y * kTileSide + x]);
        }
        sum += texel * level.weight;
    }
    const auto rounding = static_cast<int>(noise >> (32 - kWeightShift)) << dab.faint;
    return std::min((sum + rounding) >> (kWeightShift + dab.faint), kWhole);
}

void blend(std::uint16_t* pixel, const std::array<std::uint16_t, 4>& colour, int coverage,
           std::uint32_t noise) {
    const auto rounding = static_cast<int>(noise & (kWhole - 1));
    for (std::size_t i = 0; i < 4; ++i) {
        const int from = pixel[i] - 32768, to = colour[i] - 32768;
        pixel[i] = static_cast<std::uint16_t>(
            ((from * (kWhole - coverage) + to * coverage + rounding) >> 15) + 32768);
    }
}

std::array<std::uint16_t, 4> multicolourAt(const TileDab& dab, int x, int y) {
    const auto read = [&](std::size_t i) {
        return Multicolour::Read{dab.colours[i], placeU(dab.levels[i], x, y), placeV(dab.levels[i], x, y)};
    };
    return dab.multicolour->at(read(0), read(1), dab.part);
}

}  // namespace

bool drawRows(const TileDab& dab, const TileSpans& spans, int firstRow, int endRow, std::uint16_t* tile) {
    bool any = false;
    for (int y = firstRow; y < endRow; ++y) {
        const Span& span = spans[static_cast<std::size_t>(y)];
        for (int x = span.first; x < span.end; ++x) {
            const std::uint32_t noise = dab.noise + static_cast<std::uint32_t>(x) * kNoiseRight +
                                        static_cast<std::uint32_t>(y) * kNoiseDown;
            const bool rim = x < span.innerFirst || x >= span.innerEnd;
            if (const int coverage = coverageAt(dab, x, y, rim, noise); coverage > 0) {
                blend(tile + (y * kTileSide + x) * 4,
                      dab.multicolour != nullptr ? multicolourAt(dab, x, y) : dab.colour, coverage, noise);
                any = true;
            }
        }
    }
    return any;
}

}  // namespace dabcanvas
