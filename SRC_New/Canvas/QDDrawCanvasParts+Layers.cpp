// SPDX-License-Identifier: MIT
// What becomes of a canvas when its layers do.
#include <utility>

#include "Canvas/CanvasLog.h"
#include "Canvas/QDDrawCanvasParts.h"

using namespace dabcanvas;

namespace {

constexpr int kLayersLine = 2310;  // of the fixed message
constexpr char kInStroke[] = "layers cannot change in mid-stroke";

}  // namespace

void QDDrawCanvas::Parts::layersChanged() {
    const PictureShape& now = record.planes().shape();
    const PictureShape before = std::exchange(_shape, now);
    if (before.front == now.front && before.layers == now.layers) {
        return;
    }
    updateStyle();
    host.layersChanged();
}

bool QDDrawCanvas::Parts::editLayers(const InputLayerEdit& told, const LayerEdit& edit) try {
    const Host::Call call(host);
    if (!comesToRest(kInStroke)) {
        return false;
    }
    if (history.autoMark) {
        history.noteBeforeChange();
    }
    auto present = record.present();
    if (!present && record.read(kLayersLine)) {
        present = record.data().tiles();
    }
    auto next = present ? edit(*present) : std::nullopt;
    if (!next) {
        return false;
    }
    QString problem;
    const auto changed = record.show(StepPicture(std::make_shared<const TilePicture>(std::move(*next))),
                                     &problem, RecordedCanvas::FrontIs::given);
    if (!changed) {
        qCWarning(lcDabcanvas, "the layers stay as they are: %ls", qUtf16Printable(problem));
        return false;
    }
    tell([&](CanvasInput& to) { static_cast<void>(to.layersEdited(told)); });
    layers.edits.changed();
    layersChanged();
    redisplay(*changed);
    if (kind() == StrokeKind::smudge) {
        prepareSmudge();
    }
    if (autoMarked().isNull()) {
        history.note();
    }
    return true;
} catch (const std::bad_alloc&) {
    tellNoMemory(kLayersLine);
    return false;
}

bool QDDrawCanvas::Parts::setActiveLayer(std::size_t layer) {
    const Host::Call call(host);
    QString problem;
    if (layer == record.planes().shape().front) {
        return true;
    }
    if (!comesToRest(kInStroke)) {
        return false;
    }
    if (!record.setFront(layer, &problem)) {
        qCWarning(lcDabcanvas, "the layer cannot be had: %ls", qUtf16Printable(problem));
        return false;
    }
    tell([&](CanvasInput& to) {
        static_cast<void>(
            to.layersEdited({.kind = InputLayerEdit::Kind::activate, .layer = static_cast<int>(layer)}));
    });
    layersChanged();
    if (kind() == StrokeKind::smudge) {
        prepareSmudge();
    }
    return true;
}
