// SPDX-License-Identifier: MIT
#include "Selection/SeenLayers.h"

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"

namespace dabcanvas::dabpainter {

namespace {

bool isAllThatIsSeen(const CanvasLayers& layers) {
    const LayerSettings settings = layers.settings(0);
    return layers.count() == 1 && settings.isVisible && settings.opacity == 1 &&
           settings.blendType == ESBlendTypeNormal;
}

std::unique_ptr<QDDrawCanvas> copyOf(QDDrawCanvas& canvas) {
    auto copy =
        QDDrawCanvas::initWithFrame(QRectF(QPointF(), canvas.bufferSize()), {.kind = SurfaceKind::processor});
    if (!copy)
        return nullptr;
    CanvasLayers from = canvas.layers(), to = copy->layers();
    for (int i = 0; i < from.count(); ++i) {
        const LayerSettings settings = from.settings(i);
        const bool isDone = settings.isVisible ? to.add(i, settings, from.image(i)) : to.add(i, settings);
        if (!isDone)
            return nullptr;
    }
    return to.remove(from.count()) && to.setActive(from.active()) ? std::move(copy) : nullptr;
}

}  // namespace

SeenLayers::SeenLayers(QDDrawCanvas& canvas) {
    if (!isAllThatIsSeen(canvas.layers()))
        _copy = copyOf(canvas);
}

SeenLayers::~SeenLayers() = default;

QImage SeenLayers::look(const QRect& area, const QImage& active) {
    if (!_copy || !_copy->setImageInBufferRect(active, QRectF(area)))
        return active;
    return _copy->displayImage().copy(area);
}

}  // namespace dabcanvas::dabpainter
