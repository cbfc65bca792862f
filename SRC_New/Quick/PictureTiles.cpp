// SPDX-License-Identifier: MIT
#include "Quick/PictureTiles.h"

#include <QMatrix4x4>
#include <QQuickWindow>
#include <algorithm>
#include <utility>

namespace dabcanvas {

QRect PictureTiles::areaOf(int tile) const {
    const QRect area(tile % columns() * kSide, tile / columns() * kSide, kSide, kSide);
    return area & QRect(QPoint(), _size);
}

void PictureTiles::change(const QRect& area) {
    const QRect touched = area.adjusted(-kMargin, -kMargin, kMargin, kMargin) & QRect(QPoint(), _size);
    if (touched.isEmpty()) {
        return;
    }
    for (int row = touched.top() / kSide; row <= touched.bottom() / kSide; ++row) {
        for (int column = touched.left() / kSide; column <= touched.right() / kSide; ++column) {
            _stale[static_cast<std::size_t>(row * columns() + column)] = true;
        }
    }
}

void PictureTiles::take(const QSize& size, const std::function<QImage(const QRect&)>& fetch) {
    if (_size != size) {
        _size = size;
        _taken.clear();
        const int rows = (size.height() + kSide - 1) / kSide;
        _stale.assign(static_cast<std::size_t>(columns() * rows), true);
    }
    for (std::size_t tile = 0; tile < _stale.size(); ++tile) {
        if (_stale[tile]) {
            _stale[tile] = false;
            const QRect area = areaOf(static_cast<int>(tile));
            _taken[static_cast<int>(tile)] = fetch(area.adjusted(-kMargin, -kMargin, kMargin, kMargin));
        }
    }
}

bool TilesNode::show(PictureTiles& tiles, const Look& look, QQuickWindow& window) {
    if (_size != tiles.size()) {
        for (QSGImageNode* tile : _tiles) {
            delete tile;  // leaves its parent by itself
        }
        _size = tiles.size();
        _tiles.assign(static_cast<std::size_t>(tiles.count()), nullptr);
    }
    const bool looksOther = look.isSmooth != _look.isSmooth || look.hasSoftEdges != _look.hasSoftEdges;
    _look = look;
    setMatrix(QMatrix4x4(look.toItem));
    const QHash<int, QImage> taken = std::exchange(tiles.taken(), {});
    for (auto it = taken.begin(); it != taken.end(); ++it) {
        QSGImageNode*& tile = _tiles[static_cast<std::size_t>(it.key())];
        const bool isNew = tile == nullptr;
        if (isNew) {
            tile = window.createImageNode();
            tile->setOwnsTexture(true);
        }
        tile->setTexture(window.createTextureFromImage(it.value()));
        place(it.key(), tiles.areaOf(it.key()));
        if (isNew) {
            appendChildNode(tile);
        }
    }
    for (int tile = 0; looksOther && tile < tiles.count(); ++tile) {
        place(tile, tiles.areaOf(tile));
    }
    return std::find(_tiles.begin(), _tiles.end(), nullptr) == _tiles.end();
}

void TilesNode::place(int tile, const QRect& area) {
    QSGImageNode* node = _tiles[static_cast<std::size_t>(tile)];
    if (node == nullptr) {
        return;
    }
    constexpr int kMargin = PictureTiles::kMargin;
    // Beyond the picture's edges is a pixel that is transparent.
    QRect shown = area;
    if (_look.hasSoftEdges) {
        shown.adjust(area.left() == 0 ? -kMargin : 0, area.top() == 0 ? -kMargin : 0,
                     area.right() == _size.width() - 1 ? kMargin : 0,
                     area.bottom() == _size.height() - 1 ? kMargin : 0);
    }
    node->setRect(shown);
    node->setSourceRect(shown.translated(QPoint(kMargin, kMargin) - area.topLeft()));
    node->setFiltering(_look.isSmooth ? QSGTexture::Linear : QSGTexture::Nearest);
}

}  // namespace dabcanvas
