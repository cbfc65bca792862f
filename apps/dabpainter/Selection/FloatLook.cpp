// SPDX-License-Identifier: MIT
#include "Selection/FloatLook.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"
#include "Selection/LayerFloat.h"

namespace dabcanvas::dabpainter {

namespace {

QImage small(const QImage& image, QSize size) {
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGBA8888_Premultiplied);
}

// Null without the memory. The active layer's picture is given anew with each look.
std::unique_ptr<QDDrawCanvas> smallCopy(QDDrawCanvas& canvas, QSize size) {
    auto copy = QDDrawCanvas::initWithFrame(QRectF(QPointF(), size), {.kind = SurfaceKind::processor});
    CanvasLayers from = canvas.layers();
    for (int i = 0; copy && i < from.count(); ++i) {
        const LayerSettings settings = from.settings(i);
        const bool isSeen = settings.isVisible && i != from.active();
        if (!copy->layers().add(i, settings, isSeen ? small(from.image(i), size) : QImage()))
            return nullptr;
    }
    const bool isDone =
        copy && copy->layers().remove(from.count()) && copy->layers().setActive(from.active());
    return isDone ? std::move(copy) : nullptr;
}

}  // namespace

struct FloatLook::Draft {
    double scale;
    std::unique_ptr<QDDrawCanvas> canvas;
    QImage below;    // what is floated over
    QImage picture;  // and what floats, as it is stretched and turned
    std::optional<FloatingPicture> of;
};

FloatLook::FloatLook(QDDrawCanvas& canvas, const LayerFloat& floating) : _canvas(canvas), _float(floating) {}

FloatLook::~FloatLook() = default;

QImage FloatLook::look(const QRect& area) const {
    return _canvas.layers().flattened(area, _float.layer(area));
}

QSize FloatLook::draftSize(double scale) const {
    return (_canvas.bufferSize() * scale).toSize().expandedTo(QSize(1, 1));
}

bool FloatLook::makeDraft(double scale) {
    if (_draft && _draft->scale == scale)
        return true;
    auto copy = smallCopy(_canvas, draftSize(scale));
    if (!copy)
        return false;
    _draft = std::make_unique<Draft>();
    _draft->scale = scale;
    _draft->canvas = std::move(copy);
    _draft->below = small(_float.below(), draftSize(scale));
    return true;
}

// Moving it changes nothing of it.
const QImage& FloatLook::smallPicture(Draft& draft) const {
    const FloatingPicture now = _float.picture().scaled(draft.scale);
    if (!draft.of || draft.of->size() != now.size() || draft.of->radian() != now.radian()) {
        draft.picture = now.drawn(now.bounds());
        draft.of = now;
    }
    return draft.picture;
}

QImage FloatLook::draft(double scale, const QRect& area) {
    if (!makeDraft(scale))
        return {};
    QImage active = _draft->below.copy(area);
    {
        const QImage& picture = smallPicture(*_draft);
        const QPointF moved = _float.picture().centre() * scale - _draft->of->centre();
        QPainter painter(&active);
        painter.setCompositionMode(_float.mode());
        painter.drawImage(_draft->of->bounds().topLeft() + moved.toPoint() - area.topLeft(), picture);
    }
    return _draft->canvas->layers().flattened(area, active);
}

}  // namespace dabcanvas::dabpainter
