// SPDX-License-Identifier: MIT
// The line layer as it dries (Surface/WetEdge.h), piece by piece, in a tile of its own.
//
// Costs   the same whatever the width, but for what is summed up around a piece: sums run along rows and columns, in
//         whole numbers, so that no pixel depends on where a piece begins. The bytes are the same on every processor.
// Errors  std::bad_alloc.
#pragma once

#include <cstdint>
#include <vector>

#include "Processor/Tiles.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas {

class WetEdge {
public:
    using Layer = TileGrid<std::uint16_t>;

    // Calls visit(piece) with parts of the rectangle, all of it in the end; meanwhile dried() tells of that piece.
    template <typename Visit>
    void forEachPiece(const Layer& layer, const Rect& rect, const CompositeStyle& style, Visit&& visit) {
        const Rect cut = rect.intersected(Rect::of(layer.size()));
        for (int y = cut.y / kPiece * kPiece; !cut.isEmpty() && y < cut.bottom(); y += kPiece) {
            for (int x = cut.x / kPiece * kPiece; x < cut.right(); x += kPiece) {
                const Rect piece = cut.intersected({x, y, kPiece, kPiece});
                dry(layer, piece, style);
                visit(piece);
            }
        }
    }
    // The layer's tile with that part of it dry, until the next call; null where the layer has none.
    const Tile<std::uint16_t>* dried(const Layer& layer, std::size_t index, const Rect& part);

private:
    static constexpr int kPiece = 8 * kTileSide;

    // Values in rows, to be read and written by whole vectors; below them a row of zeros.
    struct Plane {
        std::vector<std::uint16_t> values;
        int width = 0, height = 0, stride = 0;

        void make(int itsWidth, int itsHeight);
        std::uint16_t* row(int y) {
            return values.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(stride);
        }
    };

    void dry(const Layer& layer, const Rect& piece, const CompositeStyle& style);
    void takeAlpha(const Layer& layer, const Rect& around);

    Rect _rect;  // of the piece, around its paint
    Plane _alpha, _turnedAlpha, _turnedMeans, _means, _losses;
    std::vector<std::uint32_t> _sums;
    Tile<std::uint16_t> _dried;
};

}  // namespace dabcanvas
