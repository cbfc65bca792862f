// SPDX-License-Identifier: MIT
#include "Documents/LayeredPicture.h"

#include <QPainter>
#include <algorithm>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"

namespace dabcanvas::dabpainter {

namespace {

QImage onCanvas(const PictureLayer& layer, const QSize& size) {
    if (layer.image.isNull() || (layer.at.isNull() && layer.image.size() == size))
        return layer.image;
    QImage whole(size, layer.image.format());
    if (whole.isNull())
        return whole;
    whole.fill(Qt::transparent);
    QPainter painter(&whole);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(layer.at, layer.image);
    return whole;
}

}  // namespace

int depthOf(const LayeredPicture& picture) {
    const bool isDeep = std::any_of(picture.layers.begin(), picture.layers.end(),
                                    [](const PictureLayer& layer) { return layer.image.depth() > 32; });
    return isDeep ? 16 : 8;
}

bool readLayers(QDDrawCanvas& canvas, LayeredPicture& picture) {
    auto layers = canvas.layers();
    picture.size = canvas.bufferSize().toSize();
    picture.active = layers.active();
    picture.layers.clear();
    for (int layer = 0; layer < layers.count(); ++layer) {
        picture.layers.push_back({layers.settings(layer), {}, layers.deepImage(layer)});
        if (picture.layers.back().image.isNull())
            return false;
    }
    picture.merged = layers.flattened();
    return !picture.merged.isNull();
}

bool showLayers(const LayeredPicture& picture, QDDrawCanvas& canvas) {
    auto layers = canvas.layers();
    for (const PictureLayer& layer : picture.layers) {
        const QImage image = onCanvas(layer, picture.size);
        if ((image.isNull() && !layer.image.isNull()) || !layers.add(layers.count(), layer.settings, image))
            return false;
    }
    return layers.remove(0) && layers.setActive(picture.active);
}

}  // namespace dabcanvas::dabpainter
