// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "Maths/Rect.h"
#include "Surface/TileSet.h"

namespace dabcanvas {

/// How often paint that was blended onto a tile of a picture was kept, for what rounds by it: composites of one stroke
/// round alike, the next stroke's otherwise, and strokes elsewhere change nothing.
class KeptCounts {
public:
    explicit KeptCounts(const Size& picture)
        : _picture(picture),
          _columns((picture.width + kTileSide - 1) / kTileSide),
          _tiles(static_cast<std::size_t>(_columns) *
                 static_cast<std::size_t>((picture.height + kTileSide - 1) / kTileSide)) {}

    /// The layer that is blended holds paint there, from now on or no more.
    void drawn(const Rect& rect) {
        forEachTile(rect, [](Tile& tile, const Rect&) { tile.holdsPaint = true; });
    }
    void cleared(const Rect& rect) {
        forEachTile(rect, [&](Tile& tile, const Rect& pixels) { tile.holdsPaint &= !rect.contains(pixels); });
    }
    /// Only where there is paint: rectangles reach as far as the looks between them let them.
    void blended(const Rect& rect) {
        forEachTile(rect, [](Tile& tile, const Rect&) { tile.isBlended |= tile.holdsPaint; });
    }
    /// Counts the tiles onto which something was blended since they were last.
    void kept(const Rect& rect) {
        forEachTile(rect, [](Tile& tile, const Rect&) {
            tile.times += std::exchange(tile.isBlended, false) ? 1u : 0u;
        });
    }
    /// Of tiles that lie in the rectangle with all their pixels.
    void forget(const Rect& rect) {
        forEachTile(rect, [&](Tile& tile, const Rect& pixels) {
            if (rect.contains(pixels)) {
                tile = {.holdsPaint = tile.holdsPaint};
            }
        });
    }

    /// Calls visit(const Rect&, times) with parts of the rectangle, on the picture, in which the count is the same.
    template <typename Visit>
    void forEachPart(const Rect& rect, Visit&& visit) {
        Rect run;
        std::uint32_t times = 0;
        bool isSame = true;
        forEachTile(rect, [&](const Tile& tile, const Rect&) {
            isSame &= run.isEmpty() || tile.times == times;
            times = tile.times;
            run = rect.intersected(Rect::of(_picture));
        });
        if (isSame) {
            if (!run.isEmpty()) {
                visit(run, times);
            }
            return;
        }
        run = {};
        forEachTile(rect, [&](const Tile& tile, const Rect& pixels) {
            const Rect part = pixels.intersected(rect);
            if (!run.isEmpty() && (tile.times != times || part.y != run.y)) {
                visit(run, times);
                run = {};
            }
            run = run.isEmpty() ? part : run.united(part);
            times = tile.times;
        });
        visit(run, times);
    }

private:
    struct Tile {
        std::uint32_t times = 0;
        bool holdsPaint = false, isBlended = false;
    };

    template <typename Visit>
    void forEachTile(const Rect& rect, Visit&& visit) {
        const Rect cut = rect.intersected(Rect::of(_picture));
        for (int row = cut.y / kTileSide; !cut.isEmpty() && row * kTileSide < cut.bottom(); ++row) {
            for (int column = cut.x / kTileSide; column * kTileSide < cut.right(); ++column) {
                const Rect tile{column * kTileSide, row * kTileSide, kTileSide, kTileSide};
                visit(_tiles[static_cast<std::size_t>(row) * static_cast<std::size_t>(_columns) +
                             static_cast<std::size_t>(column)],
                      tile.intersected(Rect::of(_picture)));
            }
        }
    }

    Size _picture;
    int _columns;
    std::vector<Tile> _tiles;
};

}  // namespace dabcanvas
