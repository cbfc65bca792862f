// SPDX-License-Identifier: MIT
#include "Processor/LayerTiles.h"

#include <algorithm>
#include <cstring>

#include "Processor/BlendRows.h"
#include "Processor/Workers.h"
#include "Surface/BlendType.h"
#include "Surface/TilePixels.h"

namespace dabcanvas {
namespace {

// Fewer are done before another thread is awake.
constexpr std::size_t kTilesAPiece = 8;

template <typename Channel>
void blend(const LayerTile& layer, std::uint8_t* result) {
    auto* const picture = reinterpret_cast<Channel*>(result);
    const BlendRow<Channel, Channel> row{picture,   picture,   reinterpret_cast<const Channel*>(layer.pixels),
                                         nullptr,   kTileSide, layer.opacity,
                                         kToNearest};
    blendRows(layer.blendType, row, kTileSide);
}

void compose(const LayeredTile& tile, int pixelBytes) {
    bool isBlank = true;
    std::memset(tile.result, 0, tileBytes(pixelBytes));
    for (const LayerTile& layer : tile.layers) {
        const bool isNormal = layer.blendType == ESBlendTypeNormal;
        if (layer.pixels == nullptr) {
            if (layer.blendType == ESBlendTypeReplace && !isBlank) {
                std::memset(tile.result, 0, tileBytes(pixelBytes));
                isBlank = true;
            }
        } else if (isBlank && isNormal && layer.opacity >= 1) {
            std::memcpy(tile.result, layer.pixels, tileBytes(pixelBytes));
            isBlank = false;
        } else {
            pixelBytes == 4 ? blend<std::uint8_t>(layer, tile.result)
                            : blend<std::uint16_t>(layer, tile.result);
            isBlank = false;
        }
    }
}

}  // namespace

void composeTiles(std::span<const LayeredTile> tiles, int pixelBytes) {
    Workers::share((tiles.size() + kTilesAPiece - 1) / kTilesAPiece, [&](std::size_t piece) {
        for (const LayeredTile& tile :
             tiles.subspan(piece * kTilesAPiece)
                 .first(std::min(kTilesAPiece, tiles.size() - piece * kTilesAPiece))) {
            compose(tile, pixelBytes);
        }
    });
}

}  // namespace dabcanvas
