// SPDX-License-Identifier: MIT
// What enters a canvas: telling a listener what it is at present, and taking what another canvas told.
#include <algorithm>
#include <utility>

#include "Canvas/CanvasLayers.h"
#include "Canvas/CanvasLog.h"
#include "Canvas/QDDrawCanvasParts.h"

using namespace dabcanvas;

namespace {

bool isBlank(const QImage& image) {
    const auto rowIsBlank = [&](int y) {
        const uchar* const row = image.constScanLine(y);
        return std::all_of(row, row + qsizetype{image.width()} * image.depth() / 8,
                           [](uchar byte) { return byte == 0; });
    };
    for (int y = 0; y < image.height(); ++y) {
        if (!rowIsBlank(y)) {
            return false;
        }
    }
    return true;
}

QImage::Format formatOf(int pixelBytes) {
    return pixelBytes == 8 ? QImage::Format_RGBA64_Premultiplied : QImage::Format_RGBA8888_Premultiplied;
}

}  // namespace

bool QDDrawCanvas::setInputListener(CanvasInput* listener) {
    return _inside->parts->listen(listener);
}

CanvasInput& QDDrawCanvas::input() {
    return _inside->parts->input;
}

// ---- Telling

bool QDDrawCanvas::Parts::listen(CanvasInput* hears) {
    const Host::Call call(host);
    if (hears == nullptr) {
        listener = nullptr;
        return true;
    }
    if (isDrawing() || !finishPreview() || isLost()) {
        qCWarning(lcDabcanvas, "nobody can begin to listen in mid-stroke or to a canvas that is lost");
        return false;
    }
    const bool isKnown = history.isMade() && !isUnrecorded();
    const bool isAsMade = !history.isMade() && !isUnrecorded() && layers.painted().isEmpty();
    history.images(true);  // what a change of size records depends on whether there is one
    listener = hears;
    brush.tell([&](BrushKey key, const BrushValue& value) { hears->brushSet(key, value); });
    hears->secondLineSet(brush.present().slRadius, brush.present().relationValue);
    hears->randomRepeats(painter.repeats());
    hears->viewTurned(brush.viewRadian(), brush.isViewMirrored());
    if (painter.symmetry() != Symmetry()) {
        hears->symmetrySet(painter.symmetry());
    }
    if (!selection.isEmpty()) {
        hears->selectionSet(selection);
    }
    if (!tellPicture(isKnown || isAsMade)) {
        listener = nullptr;
        return false;
    }
    return true;
}

// The canvas takes its own picture, as whoever is told of it does: what its surface remembers of how the picture came about,
// such as which rounding is due, begins anew on both.
bool QDDrawCanvas::Parts::tellPicture(bool isStep) {
    if (listener == nullptr) {
        return true;
    }
    layers.settle();
    const auto all = allLayers();
    if (!all) {
        qCWarning(lcDabcanvas, "the canvas cannot be read for its listener");
        return false;
    }
    const QImage& front = all->all[static_cast<std::size_t>(all->active)].picture;
    return putPicture(front) && (record.planes().isPlain() ? listener->pictureSet(front, isStep)
                                                           : listener->layersSet(*all, isStep));
}

QImage QDDrawCanvas::Parts::pictureOf(std::size_t layer, const Rect& area) {
    const Host::Call call(host);
    const int pixelBytes = layers.surface().pixelBytes();
    const LayerPlanes& planes = record.planes();
    const bool isFront = layer == planes.shape().front;
    const Rect read = isFront ? area : layers.whole();
    QImage picture(read.width, read.height, formatOf(pixelBytes));
    if (picture.isNull() || !finishPreview()) {
        return {};
    }
    const MutablePixelView rows{
        picture.bits(), {read.width, read.height}, picture.bytesPerLine(), pixelBytes};
    if (!(isFront ? this->read(read, rows) : planes.others()[layer].read(rows))) {
        return {};
    }
    return read == area ? picture : picture.copy(area.x, area.y, area.width, area.height);
}

// Blank ones are null.
std::optional<InputLayers> QDDrawCanvas::Parts::allLayers() {
    const PictureShape& shape = record.planes().shape();
    InputLayers all{.all = {}, .active = static_cast<int>(shape.front)};
    for (std::size_t layer = 0; layer < shape.planes(); ++layer) {
        const QImage picture = pictureOf(layer, layers.whole());
        if (picture.isNull()) {
            return std::nullopt;
        }
        all.all.push_back({shape.layer(layer).settings, isBlank(picture) ? QImage() : picture});
    }
    return all;
}

bool QDDrawCanvas::Parts::putPicture(const QImage& picture) {
    layers.forgetDue();
    layers.emptyLines();
    layers.empty(PaintLayer::smudge);
    layers.commit();
    host.redisplayAll();
    if (picture.isNull()) {
        layers.fill({});
        layers.commit();
        return true;
    }
    const int pixelBytes = layers.surface().pixelBytes();
    const QImage rows = picture.convertToFormat(formatOf(pixelBytes));
    return Size{rows.width(), rows.height()} == layers.size() &&
           layers.paint(layers.whole(), {rows.constBits(), layers.size(), rows.bytesPerLine(), pixelBytes});
}

// Throws std::bad_alloc; nothing has changed then.
bool QDDrawCanvas::Parts::putLayers(const InputLayers& all) {
    auto described = std::make_shared<std::vector<Layer>>();
    LayerPlanes::Others others(all.all.size());
    PictureShape shape(layers.size());
    shape.front = static_cast<std::size_t>(all.active);
    const int pixelBytes = layers.surface().pixelBytes();
    for (std::size_t layer = 0; layer < all.all.size(); ++layer) {
        const QImage rows = all.all[layer].picture.convertToFormat(formatOf(pixelBytes));
        described->push_back({static_cast<std::uint32_t>(layer) + kFirstLayer, all.all[layer].settings});
        if (layer != shape.front) {
            others[layer] =
                rows.isNull()
                    ? TilePicture(layers.size())
                    : record.planeOf({rows.constBits(), layers.size(), rows.bytesPerLine(), pixelBytes});
        }
    }
    shape.layers = std::move(described);
    if (!putPicture(all.all[shape.front].picture)) {
        return false;
    }
    record.becomeLayers(shape, std::move(others));
    layersChanged();
    return true;
}

void QDDrawCanvas::Parts::tellStep(CanvasHistory::Outcome outcome, bool (CanvasInput::*step)()) {
    if (listener == nullptr || outcome == CanvasHistory::Outcome::refused) {
        return;
    }
    if (outcome == CanvasHistory::Outcome::lost || !(listener->*step)()) {
        // It may be of another size.
        static_cast<void>(listener->areaSet(QRect(0, 0, layers.size().width, layers.size().height)));
        tellPicture(true);
    }
}

InputDevice QDDrawCanvas::Parts::device() const {
    return pointer.normalMoing      ? InputDevice::touch
           : pointer.digitPenMoving ? InputDevice::pen
                                    : InputDevice::program;
}

void QDDrawCanvas::Parts::tellPlaced(const PlacedImage& image, const Spot& spot, bool isUndo) {
    if (listener == nullptr || isUntold) {
        return;
    }
    // A copy: the pixels may be the caller's own bytes.
    listener->imagePlaced({.image = image.topRowFirst ? image.image.copy() : image.image.mirrored(),
                           .size = {spot.width, spot.height},
                           .centre = {spot.centre.x, spot.centre.y},
                           .radian = spot.radian,
                           .replaces = image.replaces,
                           .isUndo = isUndo,
                           .limits = limits()});
}

InputLimits QDDrawCanvas::Parts::limits() const {
    const ImagePlacing::Box& box = placing.scissor;
    InputLimits limits{.neglects = placing.rules.neglects};
    if (placing.rules.scissors) {
        limits.scissor = QRectF(box.x, box.y, box.width, box.height);
    }
    return limits;
}

// ---- Taking

// Placing is restricted so while this lives.
class QDDrawCanvas::Input::Limited {
public:
    Limited(Parts& parts, const InputLimits& limits)
        : _call(parts.host),
          _parts(parts),
          _alive(parts.host.life),
          _rules(std::exchange(parts.placing.rules, {limits.scissor.has_value(), limits.neglects})),
          _box(parts.placing.scissor) {
        if (const auto& box = limits.scissor) {
            parts.placing.scissor = {box->x(), box->y(), box->width(), box->height()};
        }
    }
    ~Limited() {
        if (_alive) {
            _parts.placing.rules = _rules;
            _parts.placing.scissor = _box;
        }
    }
    Limited(const Limited&) = delete;
    Limited& operator=(const Limited&) = delete;

private:
    const Host::Call _call;
    Parts& _parts;
    const Alive _alive;
    const ImagePlacing::Rules _rules;
    const ImagePlacing::Box _box;
};

void QDDrawCanvas::Input::strokeBegan(InputDevice, const InputSample& sample) {
    _parts.entry.begin(_parts.view.toView(sample.place), sample.pressure, sample.altitude);
}

void QDDrawCanvas::Input::strokeMoved(const InputSample& sample) {
    _parts.entry.move(_parts.view.toView(sample.place), sample.pressure, sample.altitude, true);
}

void QDDrawCanvas::Input::strokeEnded(const InputSample& sample) {
    _parts.entry.end(_parts.view.toView(sample.place), sample.pressure, sample.altitude, true);
}

void QDDrawCanvas::Input::strokeWithdrawn() {
    _parts.entry.withdraw(_parts.view.toView(_parts.entry.lastSample().place));
}

void QDDrawCanvas::Input::strokeDropped() {
    _parts.entry.drop();
}

void QDDrawCanvas::Input::previewPlaced(const InputLimits& limits) {
    const Limited limited(_parts, limits);
    static_cast<void>(_parts.finishPreview());
}

void QDDrawCanvas::Input::shapeDrawn(const ShapeRecord& shape) {
    _parts.drawShape(shape);
}

void QDDrawCanvas::Input::brushSet(BrushKey key, const BrushValue& value) {
    const Host::Call call(_parts.host);
    if (value.index() == brushProperty(key).field.index()) {
        _parts.brush.set(key, value);
    }
}

void QDDrawCanvas::Input::secondLineSet(float slRadius, float relationValue) {
    _parts.setSecondLine(slRadius, relationValue);
}

void QDDrawCanvas::Input::randomSeeded(std::uint32_t seed) {
    _parts.seedRandom(seed);
}

void QDDrawCanvas::Input::randomRepeats(bool repeats) {
    _parts.repeatRandom(repeats);
}

void QDDrawCanvas::Input::cleared(const ESColor& color, bool layersToo) {
    layersToo ? _parts.clear(color) : _parts.clearPicture(color);
}

void QDDrawCanvas::Input::imagePlaced(const InputImage& placed) {
    const Limited limited(_parts, placed.limits);
    const Spot spot{
        placed.size.width(), placed.size.height(), {placed.centre.x(), placed.centre.y()}, placed.radian};
    _parts.place({.image = placed.image, .replaces = placed.replaces}, spot, placed.isUndo);
}

bool QDDrawCanvas::Input::mayTake() {
    return !_parts.isDrawing() && _parts.finishPreview() && !_parts.isLost();
}

bool QDDrawCanvas::Input::pictureSet(const QImage& picture, bool) {
    const Host::Call call(_parts.host);
    if (!mayTake()) {
        return false;
    }
    const bool wasPlain = _parts.record.planes().isPlain();
    const bool isAsMade = picture.isNull() && wasPlain && !_parts.history.isMade() && !_parts.isUnrecorded();
    _parts.layers.settle();
    _parts.history.images(true);
    if (!_parts.putPicture(picture)) {
        return false;
    }
    if (!wasPlain) {
        _parts.record.becomeLayers(PictureShape(_parts.layers.size()), {});
        _parts.layersChanged();
    }
    return isAsMade || !_parts.resetHistory().isNull();
}

bool QDDrawCanvas::Input::layersSet(const InputLayers& layers, bool) try {
    const Host::Call call(_parts.host);
    const Size size = _parts.layers.size();
    const auto fits = [&](const InputLayers::One& layer) {
        return layer.picture.isNull() || layer.picture.size() == QSize(size.width, size.height);
    };
    const bool isSound = !layers.all.empty() && layers.all.size() <= kMostLayers && layers.active >= 0 &&
                         static_cast<std::size_t>(layers.active) < layers.all.size() &&
                         std::all_of(layers.all.begin(), layers.all.end(), fits);
    if (!isSound || !mayTake()) {
        return false;
    }
    _parts.layers.settle();
    _parts.history.images(true);
    return _parts.putLayers(layers) && !_parts.resetHistory().isNull();
} catch (const std::bad_alloc&) {
    return false;
}

bool QDDrawCanvas::Input::layersEdited(const InputLayerEdit& edit) {
    return _parts.host.layersOfCanvas().take(edit);
}

bool QDDrawCanvas::Input::areaSet(const QRect& area) {
    return _parts.setArea(area);
}

void QDDrawCanvas::Input::viewTurned(float radian, bool mirrored) {
    _parts.turnView(radian, mirrored);
}

void QDDrawCanvas::Input::symmetrySet(const Symmetry& symmetry) {
    _parts.setSymmetry(symmetry);
}

void QDDrawCanvas::Input::selectionSet(const QPainterPath& area) {
    _parts.setSelection(area);
}

void QDDrawCanvas::Input::stepRecorded() {
    _parts.mark();
}

void QDDrawCanvas::Input::historyReset() {
    _parts.resetHistory();
}

bool QDDrawCanvas::Input::undone() {
    _parts.undo();
    return _parts.refusal == UndoRefusal::none;
}

bool QDDrawCanvas::Input::redone() {
    _parts.redo();
    return _parts.refusal == UndoRefusal::none;
}
