// SPDX-License-Identifier: MIT
// The blend modes, a row at a time. What each does stands in Blend.h of the same folder's table, see blendModes in the
// .cpp; every one takes background and layer and gives the picture.
#pragma once

#include <cstdint>

namespace dabcanvas {

// Pixels side by side in one row of a tile. Picture and background may be one.
struct BlendRow {
    std::uint8_t* picture;
    const std::uint8_t* background;
    const std::uint16_t* layer;  // full scale 65535
    const std::uint16_t* mask;   // of which alpha counts; null: none
    int count;                   // pixels
    float opacity;               // 0..1
    std::uint32_t noise;         // of the first pixel, see noiseAt()
};

// Rounds by noise instead of to the nearest, so that faint strokes over one another add up to what they hold. Places next
// to each other, and strokes after each other, round each another way. Of the lowest 8 bits the higher half rounds up.
inline constexpr std::uint32_t kNoiseAlong = 193, kNoiseDown = 146, kNoiseLater = 99;
constexpr std::uint32_t noiseAt(int x, int y, std::uint32_t commits) {
    return static_cast<std::uint32_t>(x) * kNoiseAlong + static_cast<std::uint32_t>(y) * kNoiseDown +
           commits * kNoiseLater;
}

// What a value is raised by before its fraction is cut off, above 0 and below 1.
constexpr float upBy(std::uint32_t noise) {
    return (static_cast<float>(noise & 255) + 0.5f) / 256;
}

// So many rows of tiles below one another, of which the first is given. Pixels without paint in the layer stay as they are
// in the modes that leave them (all but normal, replace and reset), and in replace those that the mask holds nothing of; a
// blend type that is none counts as normal.
void blendRows(std::uint32_t blendType, const BlendRow& first, int rows);

// What the processor offers, by name.
const char* vectorsInUse();

}  // namespace dabcanvas
