// SPDX-License-Identifier: MIT
// A whole picture of tiles, each a version in a TileStore. A copy costs a pointer a row of tiles, and what two have in
// common they share.
//
// Units    buffer pixels; bytes are premultiplied RGBA, rows without gaps.
// Thread   one at a time for an object; copies may be read on different threads.
// Errors   std::bad_alloc where something is made or changed; nothing has changed then.
#pragma once

#include <QByteArray>
#include <memory>
#include <vector>

#include "History/TileStore.h"
#include "Maths/PixelView.h"
#include "Surface/TileSet.h"

namespace dabcanvas {

class TilePicture {
public:
    TilePicture() = default;                 // none at all
    explicit TilePicture(const Size& size);  // transparent

    bool isNull() const { return _rows.empty(); }
    const TileLayout& layout() const { return _layout; }
    std::int64_t bytesOfRows() const {
        return std::int64_t{4} * _layout.picture().width * _layout.picture().height;
    }
    const TileRef& at(std::size_t index) const;
    void set(std::size_t index, const TileRef& tile);
    // Whether all of it lies in this store, as the pictures of one canvas do.
    bool isIn(const TileStore& store) const;
    // The same versions throughout; pictures that are not may look alike.
    friend bool operator==(const TilePicture& one, const TilePicture& other) {
        return one._rows == other._rows;
    }

    // The same, found tile by tile where it must be; of any sizes.
    bool hasSameTiles(const TilePicture& other) const {
        bool same = _layout.picture() == other._layout.picture();
        if (same) {
            forEachDifference(other, [&](std::size_t) { same = false; });
        }
        return same;
    }

    // Calls visit(std::size_t index) for each tile that is another version there. Of pictures of one size.
    template <typename Visit>
    void forEachDifference(const TilePicture& other, Visit&& visit) const {
        for (std::size_t row = 0; row < _rows.size(); ++row) {
            for (int column = 0; _rows[row] != other._rows[row] && column < _layout.columns(); ++column) {
                const std::size_t index = _layout.indexOf(column, static_cast<int>(row));
                if (at(index) != other.at(index)) {
                    visit(index);
                }
            }
        }
    }

    // Into rows as large as the picture. False, and some of them written, where a tile cannot be had.
    bool read(const MutablePixelView& rows, QString* problem = nullptr) const;

private:
    using Row = std::vector<TileRef>;
    std::size_t columns() const { return static_cast<std::size_t>(_layout.columns()); }

    TileLayout _layout;
    std::vector<std::shared_ptr<Row>> _rows;  // null: all of it transparent
};

// The picture's bytes, bottom row first. Null, and `problem` in words where it is asked for, when they cannot be had.
QByteArray bytesOf(const TilePicture& picture, QString* problem = nullptr);

}  // namespace dabcanvas
