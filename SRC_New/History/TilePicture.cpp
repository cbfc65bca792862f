// SPDX-License-Identifier: MIT
#include "History/TilePicture.h"

#include <algorithm>
#include <new>
#include <utility>

#include "Surface/DepthRows.h"

namespace dabcanvas {

TilePicture::TilePicture(PictureShape shape)
    : _shape(std::move(shape)),
      _layout(_shape.size),
      _rows(static_cast<std::size_t>(_layout.rows()) * _shape.planes()) {}

TilePicture TilePicture::plane(std::size_t layer) const {
    TilePicture picture(_shape.size);
    std::copy_n(_rows.begin() + static_cast<std::ptrdiff_t>(layer * picture._rows.size()),
                picture._rows.size(), picture._rows.begin());
    return picture;
}

void TilePicture::setPlane(std::size_t layer, const TilePicture& picture) {
    std::copy(picture._rows.begin(), picture._rows.end(),
              _rows.begin() + static_cast<std::ptrdiff_t>(layer * picture._rows.size()));
}

const TileRef& TilePicture::at(std::size_t index) const {
    static const TileRef kTransparent;
    const auto& row = _rows[index / columns()];
    return row ? (*row)[index % columns()] : kTransparent;
}

// A picture's tiles are all of one store.
bool TilePicture::isIn(const TileStore& store) const {
    for (const auto& row : _rows) {
        const auto found =
            row ? std::find_if(row->begin(), row->end(), [](const TileRef& tile) { return tile != nullptr; })
                : Row::iterator();
        if (row && found != row->end()) {
            return store.owns(**found);
        }
    }
    return true;
}

void TilePicture::set(std::size_t index, const TileRef& tile) {
    if (at(index) == tile) {
        return;
    }
    std::shared_ptr<Row>& row = _rows[index / columns()];
    if (const auto held = row; !held) {
        row = std::make_shared<Row>(columns());
    } else if (held.use_count() > 2) {
        row = std::make_shared<Row>(*held);
    }
    (*row)[index % columns()] = tile;
}

bool TilePicture::read(const MutablePixelView& rows, QString* problem) const {
    for (std::size_t index = 0; index < _layout.count(); ++index) {
        const TileRef& tile = at(_shape.front * _layout.count() + index);
        const SharedTile pixels = tile ? pixelsOf(*tile, problem) : nullptr;
        if (tile && !pixels) {
            return false;
        }
        const Rect rect = _layout.rectOf(index);
        const PixelView from =
            rowsOfTile(pixels, {rect.width, rect.height}, pixels ? pixelBytesOf(*tile) : rows.pixelBytes);
        const MutablePixelView to = rows.part(rect);
        from.pixelBytes == to.pixelBytes ? copyRows(from, to) : roundRows(from, to, rect.x, rect.y);
    }
    return true;
}

QByteArray bytesOf(const TilePicture& picture, QString* problem) {
    try {
        QByteArray bytes(static_cast<qsizetype>(picture.bytesOfRows()), Qt::Uninitialized);
        auto* const block = reinterpret_cast<std::uint8_t*>(bytes.data());
        const auto rows = MutablePixelView::bottomRowFirst(block, picture.layout().picture());
        return picture.read(rows, problem) ? bytes : QByteArray();
    } catch (const std::bad_alloc&) {
        if (problem != nullptr) {
            *problem =
                QStringLiteral("there is no memory for a picture of %1 bytes").arg(picture.bytesOfRows());
        }
        return {};
    }
}

}  // namespace dabcanvas
