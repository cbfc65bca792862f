// SPDX-License-Identifier: MIT
// The blend modes, a row at a time. What each does stands once, in the .cpp, for pictures of 8 and of 16 bits a channel;
// every one takes background and layer and gives the picture.
#pragma once

#include <cstdint>

#include "Surface/DepthRows.h"

namespace dabcanvas {

// What pixels are rounded by: the first one, and how it grows from each to the next and from row to row.
struct RowNoise {
    std::uint32_t first;
    std::uint32_t along = kPlaceAlong, down = kPlaceDown;
};
inline constexpr RowNoise kToNearest{128, 0, 0};

// Pixels side by side in one row of a tile. Picture and background may be one. A layer that strokes go through has 16 bits a
// channel, one of a picture as many as that.
template <typename Channel, typename OfLayer = std::uint16_t>
struct BlendRow {
    Channel* picture;
    const Channel* background;
    const OfLayer* layer;
    const OfLayer* mask;      // of which alpha counts; null: none
    int count;                // pixels
    float opacity;            // 0..1
    RowNoise noise;           // from noiseAt(), as a rule
    bool locksAlpha = false;  // see CompositeStyle
    bool showsBare = false;   // replace shows the background where the layer holds nothing
};

// Rounds by noise instead of to the nearest, so that faint strokes over one another add up to what they hold. Places next
// to each other, and strokes after each other, round each another way.
inline constexpr std::uint32_t kNoiseLater = 99;
constexpr std::uint32_t noiseAt(int x, int y, std::uint32_t commits) {
    return placeNoise(x, y) + commits * kNoiseLater;
}
// What a value is raised by before its fraction is cut off, above 0 and below 1.
constexpr float upBy(std::uint32_t noise) {
    return (static_cast<float>(noise & 255) + 0.5f) / 256;
}

// So many rows of tiles below one another, of which the first is given. Pixels without paint in the layer stay as they are
// in the modes that leave them (all but normal, replace and reset), and in replace those that the mask holds nothing of; a
// blend type that is none counts as normal.
void blendRows(std::uint32_t blendType, const BlendRow<std::uint8_t>& first, int rows);
void blendRows(std::uint32_t blendType, const BlendRow<std::uint16_t>& first, int rows);
void blendRows(std::uint32_t blendType, const BlendRow<std::uint8_t, std::uint8_t>& first, int rows);

// What the processor offers, by name.
const char* vectorsInUse();

}  // namespace dabcanvas
