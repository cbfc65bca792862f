// SPDX-License-Identifier: MIT
// What the layers of a canvas look like together.
//
// Units    buffer pixels.
// Thread   one at a time.
// Errors   false, and some of it written, where the surface or a tile cannot be read, and without the memory.
#pragma once

#include "Canvas/LayerPlanes.h"
#include "Canvas/PaintLayers.h"

namespace dabcanvas {

class LayerLook {
public:
    LayerLook(PaintLayers& layers, const LayerPlanes& planes) : _layers(layers), _planes(planes) {}

    // Into rows as large as the area, of 4 bytes a pixel or as many as the surface has. `front`: rows as large, which the
    // front is there instead of what it is; null: itself.
    bool read(const Rect& area, const MutablePixelView& rows, const PixelView* front = nullptr);

private:
    struct Band;
    bool readBand(const Band& band);
    bool frontTiles(const Band& band, std::vector<PlacedTile>& tiles);

    PaintLayers& _layers;
    const LayerPlanes& _planes;
};

// The tile that two layers make, the upper one by its settings; null where nothing is in it.
SharedTile mergedTile(const SharedTile& lower, const SharedTile& upper, const LayerSettings& settings,
                      int pixelBytes);

}  // namespace dabcanvas
