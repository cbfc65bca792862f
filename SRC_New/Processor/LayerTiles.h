// SPDX-License-Identifier: MIT
// The layers of a picture as they look together, tile by tile, each on those below it.
//
// Units    tiles of kTileSide pixels a side, premultiplied RGBA of 4 or 8 bytes, rows without gaps.
// Thread   any; several threads share the tiles of a call.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "Maths/Export.h"

namespace dabcanvas {

struct LayerTile {
    const std::uint8_t* pixels = nullptr;  // null: transparent
    std::uint32_t blendType = 1;           // see ESBlendType; any other counts as normal
    float opacity = 1;
};

// One place in a picture.
struct LayeredTile {
    std::vector<LayerTile> layers;  // from the lowest one up
    std::uint8_t* result;           // of nobody else's
};

DABCANVAS_PROCESSOR_API void composeTiles(std::span<const LayeredTile> tiles, int pixelBytes);

}  // namespace dabcanvas
