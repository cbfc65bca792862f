// SPDX-License-Identifier: MIT
// Tiles for a surface that has none itself: rows, cut up and put together.
#include "Surface/PaintSurface.h"

#include <new>
#include <vector>

#include "Surface/SurfaceLog.h"

namespace dabcanvas {
namespace {

constexpr std::ptrdiff_t kTileStride = std::ptrdiff_t{kTileSide} * 4;

// Rows of neighbouring tiles, from one rim of them to the other.
struct Band {
    Rect area;
    std::vector<std::uint8_t> bytes;

    Band(const TileLayout& layout, std::size_t first, int count)
        : area(layout.rectOf(first).united(layout.rectOf(first + static_cast<std::size_t>(count) - 1))),
          bytes(static_cast<std::size_t>(area.area()) * 4) {}

    MutablePixelView rows() { return MutablePixelView::topRowFirst(bytes.data(), {area.width, area.height}); }
    MutablePixelView rowsOf(const Rect& tile) {
        return rows().part({tile.x - area.x, 0, tile.width, tile.height});
    }
};

// Rows cannot be had, or there is no memory for them.
template <typename Work>
bool withMemory(Work&& work) {
    try {
        return work();
    } catch (const std::bad_alloc&) {
        logSurfaceProblem("there is no memory for the tiles of a picture");
        return false;
    }
}

}  // namespace

bool PaintSurface::keep(PictureId picture, const TileSet& tiles,
                        const std::function<void(const PlacedTile&)>& visit) {
    const TileLayout& layout = tiles.layout();
    bool all = true;
    tiles.forEachRun([&](std::size_t first, int count) {
        all = all && withMemory([&] {
                  Band band(layout, first, count);
                  if (!read(picture, band.area, band.rows())) {
                      return false;
                  }
                  for (std::size_t index = first; index < first + static_cast<std::size_t>(count); ++index) {
                      const Rect rect = layout.rectOf(index);
                      const auto tile = newTile();
                      copyRows(band.rowsOf(rect), {tile.get(), {rect.width, rect.height}, kTileStride});
                      visit({index, tile});
                  }
                  return true;
              });
    });
    return all;
}

bool PaintSurface::put(PictureId picture, std::span<const PlacedTile> tiles) {
    static constexpr std::uint8_t kTransparent[kTileBytes]{};
    const TileLayout layout(size());
    for (std::size_t i = 0, next = 0; i < tiles.size(); i = next) {
        // Neighbours go together, as one write costs a driver much the same as another.
        const std::size_t columns = static_cast<std::size_t>(layout.columns());
        for (next = i + 1; next < tiles.size() && tiles[next].index == tiles[next - 1].index + 1 &&
                           tiles[next].index % columns != 0;) {
            ++next;
        }
        const bool written = withMemory([&] {
            Band band(layout, tiles[i].index, static_cast<int>(next - i));
            for (const PlacedTile& placed : tiles.subspan(i, next - i)) {
                const Rect rect = layout.rectOf(placed.index);
                const std::uint8_t* const from = placed.tile ? placed.tile.get() : kTransparent;
                copyRows(PixelView{from, {rect.width, rect.height}, kTileStride}, band.rowsOf(rect));
            }
            return write(picture, band.area, band.rows());
        });
        if (!written) {
            return false;
        }
    }
    return true;
}

}  // namespace dabcanvas
