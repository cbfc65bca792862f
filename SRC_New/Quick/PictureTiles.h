// SPDX-License-Identifier: MIT
// A picture in a scene graph, as textures of which only those that changed are made anew.
//
// Thread   PictureTiles the main one. TilesNode the one that renders, while the main one waits for it.
#pragma once

#include <QHash>
#include <QImage>
#include <QRect>
#include <QSGImageNode>
#include <QSGTransformNode>
#include <functional>
#include <vector>

class QQuickWindow;

namespace dabcanvas {

class PictureTiles {
public:
    static constexpr int kSide = 256;  // pixels of a tile
    // With those around it, so that tiles that are interpolated meet without a seam.
    static constexpr int kMargin = 1;

    // In the picture's pixels.
    void change(const QRect& area);
    void changeAll() { _stale.assign(_stale.size(), true); }
    // Takes what changed. fetch gives a copy of an area, which may reach beyond the picture: transparent there.
    void take(const QSize& size, const std::function<QImage(const QRect&)>& fetch);

    const QSize& size() const { return _size; }
    int columns() const { return (_size.width() + kSide - 1) / kSide; }
    QRect areaOf(int tile) const;
    int count() const { return static_cast<int>(_stale.size()); }
    QHash<int, QImage>& taken() { return _taken; }

private:
    QSize _size;
    std::vector<bool> _stale;
    QHash<int, QImage> _taken;  // and not shown yet
};

class TilesNode : public QSGTransformNode {
public:
    struct Look {
        QTransform toItem;  // from the picture's pixels
        bool isSmooth = false;
        bool hasSoftEdges = false;
    };
    // False where tiles are missing that it does not have from before: the whole picture is needed then.
    bool show(PictureTiles& tiles, const Look& look, QQuickWindow& window);

private:
    void place(int tile, const QRect& area);

    QSize _size;
    Look _look;
    std::vector<QSGImageNode*> _tiles;  // children; null before they have a texture
};

}  // namespace dabcanvas
