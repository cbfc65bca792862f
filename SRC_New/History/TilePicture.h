// SPDX-License-Identifier: MIT
// A whole picture of tiles, each a version in a TileStore. A copy costs a pointer a row of tiles, and what two have in
// common they share. One of several layers has their tiles one layer after the other, from the lowest one up.
//
// Units    buffer pixels; bytes are premultiplied RGBA, rows without gaps.
// Thread   one at a time for an object; copies may be read on different threads.
// Errors   std::bad_alloc where something is made or changed; nothing has changed then.
#pragma once

#include <QByteArray>
#include <memory>
#include <vector>

#include "History/PictureShape.h"
#include "History/TileStore.h"
#include "Maths/PixelView.h"
#include "Surface/TileSet.h"

namespace dabcanvas {

class TilePicture {
public:
    TilePicture() = default;                   // none at all
    explicit TilePicture(PictureShape shape);  // transparent

    bool isNull() const { return _rows.empty(); }
    const TileLayout& layout() const { return _layout; }  // of a layer
    const PictureShape& shape() const { return _shape; }
    std::size_t tiles() const { return _layout.count() * _shape.planes(); }
    // A layer as a picture of its own, and the other way round; of the same size.
    TilePicture plane(std::size_t layer) const;
    void setPlane(std::size_t layer, const TilePicture& picture);
    void setFront(std::size_t layer) { _shape.front = layer; }
    void setShape(const PictureShape& shape) { _shape = shape; }  // of the same grid
    std::int64_t bytesOfRows() const {
        return std::int64_t{4} * _layout.picture().width * _layout.picture().height;
    }
    const TileRef& at(std::size_t index) const;
    void set(std::size_t index, const TileRef& tile);
    // Whether all of it lies in this store, as the pictures of one canvas do.
    bool isIn(const TileStore& store) const;
    // The same versions throughout; pictures that are not may look alike.
    friend bool operator==(const TilePicture& one, const TilePicture& other) {
        return one._rows == other._rows && one._shape.looksAs(other._shape);
    }

    // The same, found tile by tile where it must be; of any sizes.
    bool hasSameTiles(const TilePicture& other) const {
        bool same = _shape.looksAs(other._shape);
        if (same) {
            forEachDifference(other, [&](std::size_t) { same = false; });
        }
        return same;
    }

    // Calls visit(std::size_t index) for each tile that is another version there. Of pictures of one grid.
    template <typename Visit>
    void forEachDifference(const TilePicture& other, Visit&& visit) const {
        for (std::size_t row = 0; row < _rows.size(); ++row) {
            for (std::size_t column = 0; _rows[row] != other._rows[row] && column < columns(); ++column) {
                const std::size_t index = row * columns() + column;
                if (at(index) != other.at(index)) {
                    visit(index);
                }
            }
        }
    }

    // Its front layer into rows as large as the picture. False, and some of them written, where a tile cannot be had.
    bool read(const MutablePixelView& rows, QString* problem = nullptr) const;

private:
    using Row = std::vector<TileRef>;
    std::size_t columns() const { return static_cast<std::size_t>(_layout.columns()); }

    PictureShape _shape;
    TileLayout _layout;
    std::vector<std::shared_ptr<Row>> _rows;  // null: all of it transparent
};

// The bytes of the picture's front layer, bottom row first. Null, and `problem` in words where it is asked for, when they cannot be had.
QByteArray bytesOf(const TilePicture& picture, QString* problem = nullptr);

}  // namespace dabcanvas
