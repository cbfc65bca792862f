// SPDX-License-Identifier: MIT
// Tiles for a surface that has none itself: rows, cut up and put together.
#include "Surface/PaintSurface.h"

#include <new>
#include <vector>

#include "Surface/SurfaceLog.h"

namespace dabcanvas {
namespace {

// Rows of neighbouring tiles, from one rim of them to the other.
struct Band {
    Rect area;
    int pixelBytes;
    std::vector<std::uint8_t> bytes;

    Band(const TileLayout& layout, std::size_t first, int count, int bytesAPixel)
        : area(layout.rectOf(first).united(layout.rectOf(first + static_cast<std::size_t>(count) - 1))),
          pixelBytes(bytesAPixel),
          bytes(static_cast<std::size_t>(area.area() * pixelBytes)) {}

    MutablePixelView rows() {
        return MutablePixelView::topRowFirst(bytes.data(), {area.width, area.height}, pixelBytes);
    }
    MutablePixelView rowsOf(const Rect& tile) {
        return rows().part({tile.x - area.x, 0, tile.width, tile.height});
    }
};

// False, after one line, without the memory for rows or tiles.
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
                  Band band(layout, first, count, pixelBytes());
                  if (!read(picture, band.area, band.rows())) {
                      return false;
                  }
                  for (std::size_t index = first; index < first + static_cast<std::size_t>(count); ++index) {
                      const Rect rect = layout.rectOf(index);
                      const auto tile = newTile(pixelBytes());
                      copyRows(band.rowsOf(rect), rowsOfTile(tile, {rect.width, rect.height}, pixelBytes()));
                      visit({index, tile});
                  }
                  return true;
              });
    });
    return all;
}

bool PaintSurface::put(PictureId picture, std::span<const PlacedTile> tiles) {
    const TileLayout layout(size());
    for (std::size_t i = 0, next = 0; i < tiles.size(); i = next) {
        // Neighbours go together, as one write costs a driver much the same as another.
        const std::size_t columns = static_cast<std::size_t>(layout.columns());
        for (next = i + 1; next < tiles.size() && tiles[next].index == tiles[next - 1].index + 1 &&
                           tiles[next].index % columns != 0;) {
            ++next;
        }
        const bool written = withMemory([&] {
            Band band(layout, tiles[i].index, static_cast<int>(next - i), pixelBytes());
            for (const PlacedTile& placed : tiles.subspan(i, next - i)) {
                const Rect rect = layout.rectOf(placed.index);
                copyRows(rowsOfTile(placed.tile, {rect.width, rect.height}, pixelBytes()), band.rowsOf(rect));
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
