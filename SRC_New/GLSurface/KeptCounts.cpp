// SPDX-License-Identifier: MIT
#include "GLSurface/KeptCounts.h"

#include <algorithm>
#include <utility>

#include "Surface/TileSet.h"

namespace dabcanvas {

KeptCounts::KeptCounts(const Size& picture)
    : _picture(picture),
      _columns((picture.width + kTileSide - 1) / kTileSide),
      _rows((picture.height + kTileSide - 1) / kTileSide),
      _tiles(static_cast<std::size_t>(_columns) * static_cast<std::size_t>(_rows)) {}

KeptCounts::~KeptCounts() {
    if (_texture != 0) {
        glDeleteTextures(1, &_texture);
    }
}

template <typename Visit>
void KeptCounts::forEachTile(const Rect& rect, Visit&& visit) {
    const Rect cut = rect.intersected(Rect::of(_picture));
    for (int row = cut.y / kTileSide; !cut.isEmpty() && row * kTileSide < cut.bottom(); ++row) {
        for (int column = cut.x / kTileSide; column * kTileSide < cut.right(); ++column) {
            const Rect pixels = Rect::between(column * kTileSide, row * kTileSide, (column + 1) * kTileSide,
                                              (row + 1) * kTileSide)
                                    .intersected(Rect::of(_picture));
            visit(_tiles[static_cast<std::size_t>(row) * static_cast<std::size_t>(_columns) +
                         static_cast<std::size_t>(column)],
                  pixels);
        }
    }
}

void KeptCounts::blended(const Rect& rect) {
    forEachTile(rect, [](Tile& tile, const Rect&) { tile.isBlended = true; });
}

void KeptCounts::kept(const Rect& rect) {
    forEachTile(rect, [this](Tile& tile, const Rect&) {
        if (std::exchange(tile.isBlended, false)) {
            ++tile.times;
            _isSent = false;
        }
    });
}

void KeptCounts::forget(const Rect& rect) {
    forEachTile(rect, [&](Tile& tile, const Rect& pixels) {
        if (rect.contains(pixels)) {
            tile = {};
            _isSent = false;
        }
    });
}

GLuint KeptCounts::textureOn(GLenum unit) {
    glActiveTexture(unit);
    if (_texture == 0) {
        glGenTextures(1, &_texture);
        glBindTexture(GL_TEXTURE_2D, _texture);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAX_LEVEL, 0);
    }
    glBindTexture(GL_TEXTURE_2D, _texture);
    if (!std::exchange(_isSent, true)) {
        std::vector<std::uint8_t> times(_tiles.size());
        std::transform(_tiles.begin(), _tiles.end(), times.begin(),
                       [](const Tile& tile) { return tile.times; });
        glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
        glTexImage2D(GL_TEXTURE_2D, 0, GL_R8, _columns, _rows, 0, GL_RED, GL_UNSIGNED_BYTE, times.data());
    }
    return _texture;
}

}  // namespace dabcanvas
