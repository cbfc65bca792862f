// SPDX-License-Identifier: MIT
// The innermost loops: a dab's rows within one tile.
//
// Coverage, 0..kWhole, is the tip's, bilinear in one or two levels of detail, times what the dab's box covers of the
// pixel, times the paper. Colour goes over what is there: d += coverage * (colour - d).
// Both are rounded by noise: coverage of a faint dab is below its unit, and a channel would stand still where
// a step is. The noise is a sum of even steps per pixel to the right, pixel down, and dab, modulo 1: whatever comes to a pixel
// over time is rounded up as often as it should be. All is integer arithmetic but for the box, where each operation rounds to
// single precision by itself: every instruction set gives the same bytes.
#pragma once

#include <array>
#include <cstdint>

#include "Processor/Multicolour.h"
#include "Surface/TileSet.h"

namespace dabcanvas {

inline constexpr int kWhole = 1 << 15;  // coverage that leaves nothing of what was there

// One level of the tip below a tile: texels, 16 bits of them behind the point; u to the right, v down.
struct TileLevel {
    const std::uint8_t* pairs;  // see TipTable
    std::int32_t stride;
    std::int32_t lastU, lastV;  // of the last texel's centre; the first one's is 0
    std::int32_t u, v;          // at the tile's first pixel
    std::int32_t rightU, rightV, downU, downV;
    std::int32_t weight;  // of it in the coverage, see kTexelBits
};
// A level gives 14 bits; times its weight, shifted right by 13 and the dab's faintness, it is a coverage.
inline constexpr int kFullTexel = 255 * 127 * 127 >> 8;
inline constexpr int kWeightShift = 13;
inline constexpr double kFullWeight = static_cast<double>(kWhole) * (1 << kWeightShift) / kFullTexel;

// The dab's box: along and across, as DabMap has them, at the tile's first pixel, and their steps.
struct TileBox {
    float along, across;
    float alongX, alongY, acrossX, acrossY;
    float halfWidth, halfHeight, foot, top;
    float height, slope;  // times the root of 32767
    float halfShadow;     // of half a pixel, alike
    float
        reachSquared;  // beyond which nothing lies, in the round, of the box with its foot; 2 and more: nowhere
};

struct TileDab {
    std::array<TileLevel, 2> levels;
    int levelCount;
    int faint;  // further bits that the coverage is shifted right by
    TileBox box;
    std::array<std::uint16_t, 4> colour;
    std::uint32_t noise;                   // at the tile's first pixel
    const std::uint16_t* paper;            // of the tile's pixels, 0..32767, see paperPlace(); null: smooth
    const Multicolour* multicolour;        // null: all in one colour
    std::array<const Pixels*, 2> colours;  // of the levels, for multicolour
    float part;                            // of the second one
};

// Where a table of paper has the pixel: two of a row and then the two below them, two rows at a time.
constexpr int paperPlace(int x, int y) {
    return y / 2 * 2 * kTileSide + x / 2 * 4 + y % 2 * 2 + x % 2;
}

// Noise of the pixel (x, y) for the dab of this number.
constexpr std::uint32_t kNoiseRight = 0x9e3779b9u, kNoiseDown = 0xd1b54a33u, kNoiseDab = 0xc13fa9a9u;
inline std::uint32_t noiseAt(int x, int y, std::uint64_t dab) {
    return static_cast<std::uint32_t>(x) * kNoiseRight + static_cast<std::uint32_t>(y) * kNoiseDown +
           static_cast<std::uint32_t>(dab) * kNoiseDab;
}

// A place in texels of the pixel (x, y) of the tile: steps are taken modulo 2^32, alike wherever one begins.
inline std::int32_t placeAt(std::int32_t start, std::int32_t right, std::int32_t down, int x, int y) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(start) +
                                     static_cast<std::uint32_t>(right) * static_cast<std::uint32_t>(x) +
                                     static_cast<std::uint32_t>(down) * static_cast<std::uint32_t>(y));
}

// One pixel of the tile in its own colour, as the loops do it.
void blendOne(const TileDab& dab, int x, int y, int coverage, std::uint16_t* tile);

// Draws the rows firstRow to endRow of a tile, and of each the first `width` pixels. Returns whether any was covered.
bool drawRows(const TileDab& dab, int firstRow, int endRow, int width, std::uint16_t* tile);

}  // namespace dabcanvas
