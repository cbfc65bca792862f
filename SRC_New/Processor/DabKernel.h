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
#include <span>
#include <vector>

#include "Processor/Multicolour.h"
#include "Processor/Tiles.h"

namespace dabcanvas {

inline constexpr int kWhole = 1 << 15;  // coverage that leaves nothing of what was there

// One level of the tip below a dab: texels, 16 bits of them behind the point; u to the right, v down.
struct DabLevel {
    const std::uint8_t* pairs;  // see TipTable
    Size size;
    std::int32_t stride;
    std::int32_t rightU, rightV, downU, downV;
    std::int32_t weight;  // of it in the coverage

    // Of the last texel's centre; the first one's is 0.
    std::int32_t lastU() const { return (size.width - 1) << 16; }
    std::int32_t lastV() const { return (size.height - 1) << 16; }
};
// A level gives 14 bits; times its weight, shifted right by 13 and the dab's faintness, it is a coverage.
inline constexpr int kFullTexel = 255 * 127 * 127 >> 8;
inline constexpr int kWeightShift = 13;
inline constexpr double kFullWeight = static_cast<double>(kWhole) * (1 << kWeightShift) / kFullTexel;
inline constexpr int kRelief = 16383;  // a paper's height of 1, where dabs are lifted

// The dab's box: steps of along and across, as DabMap has them, and what it covers of a pixel.
struct DabBox {
    float alongX, alongY, acrossX, acrossY;
    float halfWidth, halfHeight, foot, top;
    float height, slope;  // times the root of 32767
    float halfShadow;     // of half a pixel, alike
    // Beyond this part of the half sides with the foot, in the round, nothing lies; 2 and more: anything may.
    float reachSquared;
};

// What is the same of a dab in every tile.
struct DabShape {
    std::array<DabLevel, 2> levels;  // of one level, twice the same
    int levelCount;
    int faint;  // further bits that the coverage is shifted right by
    DabBox box;
    std::array<std::uint16_t, 4> colour;
    const Multicolour* multicolour;        // null: all in one colour
    std::array<const Pixels*, 2> colours;  // of the levels, for multicolour
    float part;                            // of the second one
    std::int32_t paperLift;                // in units of kRelief
};

// A dab in one tile: what it starts from at the tile's first pixel, and the rows that it may touch.
struct TileDab {
    const DabShape* shape;
    std::array<std::int32_t, 2> u, v;
    float along, across;
    std::uint32_t noise;
    int firstRow, endRow;
};

// Noise of the pixel (x, y) for the dab of this number: the upper bits round its coverage, the lower ones what it does to
// the channels. The step from dab to dab is, of many that were tried, one that keeps colours well.
constexpr std::uint32_t kNoiseRight = 0x9e3779b9u, kNoiseDown = 0xd1b54a33u, kNoiseDab = 0x0abf9af9u;
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

// What they are drawn into, and on.
struct DabGround {
    std::uint16_t* tile;         // premultiplied RGBA, 64 pixels a row
    int width;                   // pixels of each row that are drawn
    const std::uint16_t* paper;  // see PaperTiles; null: smooth
    bool isRelief = false;       // it is not plain
    // Of each pixel of the tile, without paper; null: each dab's own.
    const std::uint16_t* colours = nullptr;
    // The tile has alpha alone, laid out as paper is; without paper and colours.
    bool isCoverage = false;
};

// One after another. Returns whether any pixel was covered.
bool drawDabs(std::span<const TileDab> dabs, const DabGround& ground);

// For tests: the instruction sets that there are, and the one to go on with; 0: the best.
std::vector<std::int64_t> kernelTargets();
void useKernelTarget(std::int64_t target);

// Of a tile that lets everything through.
const std::uint16_t* smoothPaper();

// One pixel in its own colour, as the loops do it.
void blendOne(const TileDab& dab, int x, int y, int coverage, std::uint16_t* tile);

}  // namespace dabcanvas
