// SPDX-License-Identifier: MIT
// Which tiles of a picture were touched: one bit a tile, one size of tile in the whole system.
#pragma once

#include <cstddef>
#include <vector>

#include "Maths/Rect.h"

namespace dabcanvas {

inline constexpr int kTileSide = 64;  // buffer pixels; those at the right and lower rim may be cut

class TileSet {
public:
    TileSet() = default;
    explicit TileSet(const Size& picture)
        : _picture(picture),
          _columns((picture.width + kTileSide - 1) / kTileSide),
          _rows((picture.height + kTileSide - 1) / kTileSide),
          _bits(static_cast<std::size_t>(_columns) * static_cast<std::size_t>(_rows), false) {}

    // Every tile that the rectangle meets.
    void add(const Rect& rect) {
        const Rect cut = rect.intersected(Rect::of(_picture));
        for (int row = cut.y / kTileSide; !cut.isEmpty() && row * kTileSide < cut.bottom(); ++row) {
            for (int column = cut.x / kTileSide; column * kTileSide < cut.right(); ++column) {
                _bits[indexOf(column, row)] = true;
            }
        }
    }
    void clear() { _bits.assign(_bits.size(), false); }

    // Calls visit(const Rect&) with the pixels of each tile, row by row; neighbours in a row come as one.
    template <typename Visit>
    void forEachRun(Visit&& visit) const {
        for (int row = 0; row < _rows; ++row) {
            for (int column = 0; column < _columns; ++column) {
                const int first = column;
                while (column < _columns && _bits[indexOf(column, row)]) {
                    ++column;
                }
                if (column > first) {
                    visit(Rect::between(first * kTileSide, row * kTileSide, column * kTileSide,
                                        (row + 1) * kTileSide)
                              .intersected(Rect::of(_picture)));
                }
            }
        }
    }

private:
    std::size_t indexOf(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(_columns) +
               static_cast<std::size_t>(column);
    }

    Size _picture;
    int _columns = 0, _rows = 0;
    std::vector<bool> _bits;
};

}  // namespace dabcanvas
