// SPDX-License-Identifier: MIT
// Pixels in square tiles that exist where paint is, shared until somebody writes: a picture of any size costs what was
// painted of it, and copying one costs a pointer a tile.
//
// Units    buffer pixels, top-left origin.
// Owns     its tiles, with every TileGrid that copied them.
// Thread   different tiles may be made writable and written on different threads.
// Errors   std::bad_alloc where there is no memory for a tile; nothing has changed then.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "Maths/Rect.h"
#include "Processor/TileMemory.h"
#include "Surface/TilePixels.h"

namespace dabcanvas {

// Where one channel's values lie that kernels go through two rows at a time: two of a row and then the two below them.
constexpr int pairedPlace(int x, int y) {
    return y / 2 * 2 * kTileSide + x / 2 * 4 + y % 2 * 2 + x % 2;
}

// Pixels of 16 bits a channel to the nearest that 8 bits can say.
inline void roundToBytes(std::uint16_t* pixels, int count) {
    std::transform(pixels, pixels + std::ptrdiff_t{count} * 4, pixels, [](std::uint32_t value) {
        return static_cast<std::uint16_t>(((value * 255 + 32895) >> 16) * 257);
    });
}

template <typename Channel, std::size_t kChannels = 4>
class TileGrid {
public:
    using Pixel = std::array<Channel, kChannels>;
    using TileOf = Tile<Channel, kChannels>;

    explicit TileGrid(const Size& size) : _layout(size), _tiles(_layout.count()) {}

    const Size& size() const { return _layout.picture(); }
    std::size_t count() const { return _tiles.size(); }
    Rect rectOf(std::size_t index) const { return _layout.rectOf(index); }
    // Of a pixel's tile.
    std::size_t indexAt(int x, int y) const { return _layout.indexOf(x / kTileSide, y / kTileSide); }

    // Null where no tile is, which is transparent.
    const TileOf* tile(std::size_t index) const { return _tiles[index].get(); }
    // This grid's own, with what it held.
    TileOf& writable(std::size_t index) {
        std::shared_ptr<TileOf>& tile = _tiles[index];
        if (!tile) {
            tile = made();
        } else if (const auto held = tile; held.use_count() > 2) {
            // Counting once more orders what follows after what another thread did before it let go.
            tile = made(*held);
        }
        return *tile;
    }
    void drop(std::size_t index) { _tiles[index].reset(); }
    // One colour all over, in one tile.
    void fill(const Pixel& pixel) {
        std::shared_ptr<TileOf> all;
        if (pixel != Pixel{}) {
            all = made();
            for (std::size_t i = 0; i < kTilePixels; ++i) {
                std::copy(pixel.begin(), pixel.end(), all->values.data() + i * kChannels);
            }
        }
        std::fill(_tiles.begin(), _tiles.end(), all);
    }
    const std::shared_ptr<TileOf>& shared(std::size_t index) const { return _tiles[index]; }
    void share(std::shared_ptr<TileOf> tile, std::size_t index) { _tiles[index] = std::move(tile); }
    // The tile is the other grid's, which is as large, until one of both writes it.
    void share(const TileGrid& other, std::size_t index) { _tiles[index] = other._tiles[index]; }
    bool sharesWith(const TileGrid& other, std::size_t index) const {
        return _tiles[index] == other._tiles[index];
    }

    // Calls visit(std::size_t index, const Rect& part) for every tile that the rectangle meets, row by row.
    template <typename Visit>
    void forEachIn(const Rect& rect, Visit&& visit) const {
        const Rect cut = rect.intersected(Rect::of(size()));
        for (int y = cut.y / kTileSide * kTileSide; !cut.isEmpty() && y < cut.bottom(); y += kTileSide) {
            for (int x = cut.x / kTileSide * kTileSide; x < cut.right(); x += kTileSide) {
                visit(indexAt(x, y), cut.intersected({x, y, kTileSide, kTileSide}));
            }
        }
    }

private:
    template <typename... From>
    static std::shared_ptr<TileOf> made(const From&... from) {
        return std::allocate_shared<TileOf>(TileAllocator<TileOf>(), from...);
    }

    TileLayout _layout;
    std::vector<std::shared_ptr<TileOf>> _tiles;
};

}  // namespace dabcanvas
