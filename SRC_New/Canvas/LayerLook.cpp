// SPDX-License-Identifier: MIT
#include "Canvas/LayerLook.h"

#include <algorithm>
#include <new>
#include <utility>
#include <vector>

#include "Processor/LayerTiles.h"
#include "Surface/DepthRows.h"

namespace dabcanvas {
namespace {

void put(const PixelView& from, const MutablePixelView& to, const Rect& place) {
    from.pixelBytes == to.pixelBytes ? copyRows(from, to) : roundRows(from, to, place.x, place.y);
}

}  // namespace

// Of one row of tiles.
struct LayerLook::Band {
    TileSet tiles;
    Rect area;
    MutablePixelView rows;
    const PixelView* front;

    Band(TileSet none, const Rect& place, const MutablePixelView& to, const PixelView* ofFront)
        : tiles(std::move(none)), area(place), rows(to), front(ofFront) {
        tiles.add(area);
    }
};

// A row of tiles at a time, so that a look at all of a large canvas takes little memory.
bool LayerLook::read(const Rect& area, const MutablePixelView& rows, const PixelView* front) try {
    for (int y = area.y / kTileSide * kTileSide; y < area.bottom(); y += kTileSide) {
        const Rect band = Rect{area.x, y, area.width, kTileSide}.intersected(area);
        const Rect there{0, band.y - area.y, band.width, band.height};
        const PixelView frontRows = front != nullptr ? front->part(there) : PixelView{};
        if (!readBand({TileSet(_layers.size()), band, rows.part(there), front ? &frontRows : nullptr})) {
            return false;
        }
    }
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

// As the surface has them, or of the rows that are given.
bool LayerLook::frontTiles(const Band& band, std::vector<PlacedTile>& tiles) {
    if (band.front == nullptr) {
        return _layers.keep(band.tiles, [&](const PlacedTile& tile) { tiles.push_back(tile); });
    }
    const int pixelBytes = _layers.surface().pixelBytes();
    band.tiles.forEach([&](std::size_t index) {
        const Rect rect = band.tiles.layout().rectOf(index);
        const Rect part = rect.intersected(band.area);
        const auto tile = newTile(pixelBytes);
        const PixelView from =
            band.front->part({part.x - band.area.x, part.y - band.area.y, part.width, part.height});
        const MutablePixelView to = rowsOfTile(tile, {rect.width, rect.height}, pixelBytes)
                                        .part({part.x - rect.x, part.y - rect.y, part.width, part.height});
        from.pixelBytes == pixelBytes ? copyRows(from, to) : widenRows(from, to);
        tiles.push_back({index, tile});
    });
    return true;
}

bool LayerLook::readBand(const Band& band) {
    const int pixelBytes = _layers.surface().pixelBytes();
    std::vector<SharedTile> held;
    std::vector<LayeredTile> tiles;
    std::vector<PlacedTile> places;
    bool all = frontTiles(band, places);
    const std::vector<Layer>& layers = *_planes.shape().layers;
    for (PlacedTile& place : places) {
        const auto result = newTile(pixelBytes);
        LayeredTile& tile = tiles.emplace_back(LayeredTile{{}, result.get()});
        for (std::size_t i = 0; i < layers.size(); ++i) {
            const LayerSettings& settings = layers[i].settings;
            if (!settings.isVisible) {
                continue;
            }
            SharedTile pixels = place.tile;
            if (i != _planes.shape().front) {
                const TileRef& version = _planes.others()[i].at(place.index);
                pixels = version ? pixelsOf(*version) : nullptr;
                all = all && (!version || pixels);
            }
            tile.layers.push_back({pixels.get(), settings.blendType, settings.opacity});
            held.push_back(std::move(pixels));
        }
        held.push_back(std::exchange(place.tile, result));
    }
    composeTiles(tiles, pixelBytes);
    for (const PlacedTile& place : places) {
        const Rect rect = band.tiles.layout().rectOf(place.index);
        const Rect seen = rect.intersected(band.area);
        const PixelView from = rowsOfTile(place.tile, {rect.width, rect.height}, pixelBytes);
        put(from.part({seen.x - rect.x, seen.y - rect.y, seen.width, seen.height}),
            band.rows.part({seen.x - band.area.x, seen.y - band.area.y, seen.width, seen.height}), seen);
    }
    return all;
}

SharedTile mergedTile(const SharedTile& lower, const SharedTile& upper, const LayerSettings& settings,
                      int pixelBytes) {
    if (!upper && (!lower || settings.blendType != ESBlendTypeReplace)) {
        return lower;
    }
    auto result = newTile(pixelBytes);
    const LayeredTile tile{
        {{lower.get(), ESBlendTypeNormal, 1}, {upper.get(), settings.blendType, settings.opacity}},
        result.get()};
    composeTiles({&tile, 1}, pixelBytes);
    return result;
}

}  // namespace dabcanvas
