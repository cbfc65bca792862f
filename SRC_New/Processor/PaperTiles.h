// SPDX-License-Identifier: MIT
// What a paper lets through at each pixel, tile by tile, made when a tile is first asked for.
//
// Memory   `most` bytes; the tile that was asked for longest ago goes first.
// Thread   any number at a time.
// Errors   std::bad_alloc; nothing has changed then.
#pragma once

#include <array>
#include <cstdint>
#include <list>
#include <memory>
#include <mutex>
#include <unordered_map>

#include "Dabs/TipImage.h"
#include "Processor/Tiles.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas {

class PaperTiles {
public:
    // 0..32767; of a paper that is not plain signed, a dab's lift to be added, in units of kRelief. See pairedPlace().
    using Through = std::array<std::uint16_t, kTilePixels>;

    // The paper's own side times its scale is laid again and again from the layer's top left corner.
    PaperTiles(PaperImage paper, const PaperStyle& style, std::size_t most);

    bool isEmpty() const { return _paper.grain.empty(); }
    std::shared_ptr<const Through> at(const Rect& tile);

private:
    // Where one axis is read: two texels and how much of the second, for each pixel of a tile.
    struct Read {
        int near, far;
        float part;
    };
    using Axis = std::array<Read, kTileSide>;
    static Axis axisOf(int first, int period, int texels);
    std::shared_ptr<const Through> made(const Rect& tile) const;
    std::uint16_t through(float height) const;

    PaperImage _paper;
    Size _period;  // pixels
    PaperStyle _style;
    LevelPair _levels{};
    std::size_t _most;  // tiles

    struct Kept {
        std::uint64_t place;
        std::shared_ptr<const Through> through;
    };
    std::mutex _lock;
    std::list<Kept> _kept;  // the latest first
    std::unordered_map<std::uint64_t, std::list<Kept>::iterator> _places;
};

}  // namespace dabcanvas
