// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>
#include <memory>

class QDDrawCanvas;

namespace dabcanvas::dabpainter {

// What the layers of a canvas would look like together, were its active one another. The canvas is not touched: where it has
// layers that matter, another one is made of them.
class SeenLayers {
public:
    explicit SeenLayers(QDDrawCanvas& canvas);
    ~SeenLayers();

    // With this picture in an area of the active layer, which is as large.
    QImage look(const QRect& area, const QImage& active);

private:
    std::unique_ptr<QDDrawCanvas> _copy;  // null where the active layer is all that is seen
};

}  // namespace dabcanvas::dabpainter
