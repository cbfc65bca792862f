// SPDX-License-Identifier: MIT
// Rows of pixels in the tiles of a grid, and between two grids.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "Maths/PixelView.h"
#include "Processor/Tiles.h"
#include "Surface/DepthRows.h"

namespace dabcanvas {

// From a place of the picture on; transparent ones where no tile is.
template <typename Channel>
const Channel* pixelsAt(const Tile<Channel>* tile, int x, int y) {
    static const Tile<Channel> kTransparent;
    return (tile != nullptr ? tile : &kTransparent)->at(x % kTileSide, y % kTileSide);
}

// As rows of the grid's own depth.
template <typename Channel>
MutablePixelView viewOf(Tile<Channel>& tile, const Rect& part) {
    constexpr int kBytes = 4 * sizeof(Channel);
    return {reinterpret_cast<std::uint8_t*>(tile.at(part.x % kTileSide, part.y % kTileSide)),
            {part.width, part.height},
            kTileSide * kBytes,
            kBytes};
}

template <typename Channel>
PixelView viewOf(const Tile<Channel>* tile, const Rect& part) {
    constexpr int kBytes = 4 * sizeof(Channel);
    return {reinterpret_cast<const std::uint8_t*>(pixelsAt(tile, part.x, part.y)),
            {part.width, part.height},
            kTileSide * kBytes,
            kBytes};
}

// copyRows() of rows of a tile: so short that calling for each would take as long as copying it.
inline void copyShortRows(const PixelView& from, const MutablePixelView& to) {
    constexpr std::ptrdiff_t kPiece = 32;
    const std::ptrdiff_t bytes = std::ptrdiff_t{from.pixelBytes} * from.size.width;
    if (bytes < kPiece) {
        return copyRows(from, to);
    }
    for (int y = 0; y < from.size.height; ++y) {
        const std::uint8_t* const source = from.row(y);
        std::uint8_t* const target = to.row(y);
        for (std::ptrdiff_t at = 0; at + kPiece <= bytes; at += kPiece) {
            std::memcpy(target + at, source + at, kPiece);
        }
        std::memcpy(target + bytes - kPiece, source + bytes - kPiece, kPiece);
    }
}

// `to` becomes `from`, of the same size, in the rectangle: whole tiles by sharing.
template <typename Channel>
void copyTiles(const TileGrid<Channel>& from, TileGrid<Channel>& to, const Rect& rect) {
    to.forEachIn(rect, [&](std::size_t index, const Rect& part) {
        if (to.sharesWith(from, index)) {
            return;
        }
        if (part == to.rectOf(index)) {
            return to.share(from, index);
        }
        copyShortRows(viewOf(from.tile(index), part), viewOf(to.writable(index), part));
    });
}

// What the grid, a copy of one, holds with these rows in the rectangle.
template <typename Channel>
TileGrid<Channel> withRows(TileGrid<Channel> grid, const Rect& rect, const PixelView& rows) {
    grid.forEachIn(rect, [&](std::size_t index, const Rect& part) {
        const PixelView from = rows.part({part.x - rect.x, part.y - rect.y, part.width, part.height});
        const MutablePixelView to = viewOf(grid.writable(index), part);
        from.pixelBytes == to.pixelBytes ? copyRows(from, to) : widenRows(from, to);
    });
    return grid;
}

}  // namespace dabcanvas
