// SPDX-License-Identifier: MIT
#include "Canvas/LayerLook.h"

#include <algorithm>
#include <new>
#include <vector>

#include "Processor/LayerTiles.h"
#include "Surface/DepthRows.h"

namespace dabcanvas {
namespace {

void put(const PixelView& from, const MutablePixelView& to, const Rect& place) {
    from.pixelBytes == to.pixelBytes ? copyRows(from, to) : roundRows(from, to, place.x, place.y);
}

}  // namespace

// A row of tiles at a time, so that a look at all of a large canvas takes little memory.
bool LayerLook::read(const Rect& area, const MutablePixelView& rows) try {
    for (int y = area.y / kTileSide * kTileSide; y < area.bottom(); y += kTileSide) {
        const Rect band = Rect{area.x, y, area.width, kTileSide}.intersected(area);
        const Rect there{0, band.y - area.y, band.width, band.height};
        if (!readBand(band, rows.part(there))) {
            return false;
        }
    }
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

bool LayerLook::readBand(const Rect& area, const MutablePixelView& rows) {
    const int pixelBytes = _layers.surface().pixelBytes();
    TileSet set(_layers.size());
    set.add(area);
    std::vector<SharedTile> held;
    std::vector<LayeredTile> tiles;
    std::vector<PlacedTile> places;
    bool all = _layers.keep(set, [&](const PlacedTile& tile) { places.push_back(tile); });
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
        const Rect rect = set.layout().rectOf(place.index);
        const Rect seen = rect.intersected(area);
        const PixelView from = rowsOfTile(place.tile, {rect.width, rect.height}, pixelBytes);
        put(from.part({seen.x - rect.x, seen.y - rect.y, seen.width, seen.height}),
            rows.part({seen.x - area.x, seen.y - area.y, seen.width, seen.height}), seen);
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
