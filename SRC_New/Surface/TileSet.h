// SPDX-License-Identifier: MIT
/// \file
/// A picture's tiles, numbered row by row, and sets of them; one size of tile in the whole system.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "Maths/Rect.h"

namespace dabcanvas {

inline constexpr int kTileSide = 64;  ///< buffer pixels; those at the right and lower rim may be cut

/// Where a picture's tiles lie.
class TileLayout {
public:
    TileLayout() = default;
    explicit TileLayout(const Size& picture)
        : _picture(picture),
          _columns((picture.width + kTileSide - 1) / kTileSide),
          _rows((picture.height + kTileSide - 1) / kTileSide) {}

    const Size& picture() const { return _picture; }
    int columns() const { return _columns; }
    int rows() const { return _rows; }
    std::size_t count() const { return static_cast<std::size_t>(_columns) * static_cast<std::size_t>(_rows); }
    /// Of columns and rows of tiles.
    std::size_t indexOf(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(_columns) +
               static_cast<std::size_t>(column);
    }
    /// The pixels of a tile; those beyond the picture's rim are left out.
    Rect rectOf(std::size_t index) const {
        const int column = static_cast<int>(index) % _columns, row = static_cast<int>(index) / _columns;
        return Rect{column * kTileSide, row * kTileSide, kTileSide, kTileSide}.intersected(
            Rect::of(_picture));
    }

private:
    Size _picture;
    int _columns = 0, _rows = 0;
};

/// Some of a picture's tiles.
class TileSet {
public:
    TileSet() = default;
    explicit TileSet(const Size& picture) : _layout(picture), _bits(_layout.count(), false) {}

    const TileLayout& layout() const { return _layout; }
    /// Every tile that the rectangle meets, or the one of a number.
    void add(const Rect& rect) {
        const Rect cut = rect.intersected(Rect::of(_layout.picture()));
        for (int row = cut.y / kTileSide; !cut.isEmpty() && row * kTileSide < cut.bottom(); ++row) {
            for (int column = cut.x / kTileSide; column * kTileSide < cut.right(); ++column) {
                add(_layout.indexOf(column, row));
            }
        }
    }
    void add(std::size_t index) { _bits[index] = true; }
    /// Whether the tile of this number is one.
    bool contains(std::size_t index) const { return _bits[index]; }
    /// None from then on.
    void clear() { _bits.assign(_bits.size(), false); }

    /// Calls visit(std::size_t index) for each.
    template <typename Visit>
    void forEach(Visit&& visit) const {
        for (auto at = std::find(_bits.begin(), _bits.end(), true); at != _bits.end();
             at = std::find(at + 1, _bits.end(), true)) {
            visit(static_cast<std::size_t>(at - _bits.begin()));
        }
    }
    /// Calls visit(std::size_t first, int count) for neighbours in a row.
    template <typename Visit>
    void forEachRun(Visit&& visit) const {
        for (int row = 0; row < _layout.rows(); ++row) {
            for (int column = 0; column < _layout.columns(); ++column) {
                const int first = column;
                while (column < _layout.columns() && _bits[_layout.indexOf(column, row)]) {
                    ++column;
                }
                if (column > first) {
                    visit(_layout.indexOf(first, row), column - first);
                }
            }
        }
    }

private:
    TileLayout _layout;
    std::vector<bool> _bits;
};

}  // namespace dabcanvas
