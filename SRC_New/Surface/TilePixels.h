// SPDX-License-Identifier: MIT
/// \file
/// The pixels of a tile, and how a surface and whoever keeps what a picture was share them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "Maths/PixelView.h"
#include "Surface/TileSet.h"

namespace dabcanvas {

inline constexpr std::size_t kTilePixels = std::size_t{kTileSide} * kTileSide;

/// The pixels of a tile: premultiplied RGBA, rows from the top, or fewer channels; transparent when made. What lies
/// beyond a picture's rim counts for nothing.
template <typename Channel, std::size_t kChannels = 4>
struct alignas(64) Tile {
    std::array<Channel, kTilePixels * kChannels> values{};

    Channel* at(int x, int y) {
        return values.data() +
               (static_cast<std::size_t>(y) * kTileSide + static_cast<std::size_t>(x)) * kChannels;
    }
    const Channel* at(int x, int y) const { return const_cast<Tile*>(this)->at(x, y); }
};

/// The bytes of a tile, 4 or 8 a pixel, as its picture has, made by newTile(); nobody changes them while they are
/// shared. Null: transparent.
using SharedTile = std::shared_ptr<const std::uint8_t>;
/// Bytes of a whole tile.
constexpr std::size_t tileBytes(int pixelBytes) {
    return kTilePixels * static_cast<std::size_t>(pixelBytes);
}
/// What a null tile stands for.
inline constexpr std::uint8_t kTransparentTile[tileBytes(8)]{};

/// Throws std::bad_alloc.
inline std::shared_ptr<std::uint8_t> newTile(int pixelBytes) {
    if (pixelBytes == 4) {
        const auto tile = std::make_shared<Tile<std::uint8_t>>();
        return {tile, tile->values.data()};
    }
    const auto tile = std::make_shared<Tile<std::uint16_t>>();
    return {tile, reinterpret_cast<std::uint8_t*>(tile->values.data())};
}

/// Its rows, as many and as wide as a part of it has.
inline PixelView rowsOfTile(const SharedTile& tile, const Size& part, int pixelBytes) {
    return {tile ? tile.get() : kTransparentTile, part, std::ptrdiff_t{kTileSide} * pixelBytes, pixelBytes};
}
inline MutablePixelView rowsOfTile(const std::shared_ptr<std::uint8_t>& tile, const Size& part,
                                   int pixelBytes) {
    return {tile.get(), part, std::ptrdiff_t{kTileSide} * pixelBytes, pixelBytes};
}

/// A tile and its place in a picture.
struct PlacedTile {
    std::size_t index = 0;  ///< row by row, see TileSet
    SharedTile tile;
};

}  // namespace dabcanvas
