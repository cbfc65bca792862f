// SPDX-License-Identifier: MIT
#include "Canvas/QDDrawCanvasParts.h"
#include "Canvas/SelectedPixels.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Canvas/CanvasLog.h"

using namespace dabcanvas;

namespace {

constexpr int kBackgroundLine = 2246;  // of the fixed message

InputSample inputOf(const StrokeSample& sample) {
    return {sample.place, sample.pressure, sample.altitude};
}

// Pictures are not compared, which may take longer than setting them, nor drawn for it.
bool isPicture(const BrushValue& value) {
    return std::holds_alternative<QImage>(value) || std::holds_alternative<QList<QImage>>(value);
}

}  // namespace

QDDrawCanvas::Parts::Parts(Host& hostOfCanvas, std::unique_ptr<PaintSurface> surface)
    : host(hostOfCanvas),
      layers(std::move(surface), clock),
      painter(brush, layers, clock),
      entry(*this, host, view),
      pointer(entry, *this),
      record(layers),
      look(layers, record.planes()),
      sketch(layers, record),
      placing(layers, [this] { settle(); }),
      history(layers, record, [this](const Size& size) { return cropTo(Rect::of(size)); }),
      input(*this) {
    history.stepRecorded = [this] {
        if (listener != nullptr) {
            listener->stepRecorded();
        }
    };
    layers.look = [this](const Rect& area, const MutablePixelView& rows) {
        return record.planes().isPlain() ? layers.read(area, rows) : look.read(area, rows);
    };
    makePreview();
    brush.setListener(this);
    layers.setStyle(brush.compositeStyle());
    layers.commit();
    updateScale();
}

void QDDrawCanvas::Parts::makePreview() {
    preview = host.makePreview(QRectF(QPointF(0, 0), bufferSize()));
    preview->setComplention([this](const QImage& image, QSizeF size) { placePreview(image, size); });
    preview->setGaussianRadius(brush.present().gaussianRadius);
    preview->setSymmetry(painter.symmetry());
    sendPreviewColor();
}

// ---- What must be done first

bool QDDrawCanvas::Parts::finishPreview() {
    const Alive alive(host.life);
    preview->finishPending();
    return static_cast<bool>(alive);
}

void QDDrawCanvas::Parts::settleSketch() {
    if (sketch.isOn()) {
        redisplay(sketch.settle());
    }
}

void QDDrawCanvas::Parts::settle() {
    if (layers.isUnfinished()) {
        finishStroke(false);
    }
}

void QDDrawCanvas::Parts::finishStroke(bool asStep) {
    settleSketch();
    layers.emptyLines();
    updateBackground(asStep && !autoMarked().isNull());
}

void QDDrawCanvas::Parts::updateBackground(bool isRecorded) {
    const Host::Call call(host);
    settleSketch();
    layers.commit();
    if (!isRecorded) {
        if (recognises()) {
            record.refresh(kBackgroundLine);
        }
        history.note();
    }
}

void QDDrawCanvas::Parts::prepareSmudge() {
    const Host::Call call(host);
    settle();
    layers.prepareSmudge();
}

// ---- A stroke

bool QDDrawCanvas::Parts::canBegin() const {
    return !host.shownFrame().isEmpty() && !isLost();
}

bool QDDrawCanvas::Parts::strokeIsDue(bool unended) {
    const Host::Call call(host);
    if (unended) {
        tell([](CanvasInput& to) { to.strokeDropped(); });
        leaveDrawn();
    }
    return finishPreview() && !isLost();  // strokes come onto the canvas in their order
}

void QDDrawCanvas::Parts::strokeBegan(const StrokeSample& sample) {
    const Host::Call call(host);
    tell([&](CanvasInput& to) { to.strokeBegan(device(), inputOf(sample)); });
    painter.restartRandom();
    layers.beginStroke();
    if (recognises()) {
        sketch.begin(sample.place);
    }
    if (kind() == StrokeKind::preview) {
        preview->drawWithBegin(sample.place);
    } else {
        painter.begin(sample);
    }
}

void QDDrawCanvas::Parts::strokeMoved(const StrokeSample& sample, bool online) {
    const Host::Call call(host);
    tell([&](CanvasInput& to) { to.strokeMoved(inputOf(sample)); });
    if (kind() == StrokeKind::preview) {
        preview->drawWithMove(sample.place);
        return;
    }
    showDrawn(painter.extend(sample), online);
    if (sketch.isOn()) {
        sketch.add(sample.place);
    } else {
        history.noteDrawing();
    }
}

void QDDrawCanvas::Parts::strokeEnded(const StrokeSample& sample, bool online) {
    const Host::Call call(host);
    tell([&](CanvasInput& to) { to.strokeEnded(inputOf(sample)); });
    host.strokeEnds(true);
    if (sketch.isOn()) {
        endSketch(sample.place, online);
    } else if (kind() == StrokeKind::preview) {
        preview->drawWithEnd(sample.place);  // which places the stroke, later
    } else {
        showDrawn(painter.end(sample, entry.lastSample().place), online);
        finishStroke(true);
    }
}

// As if it had never been begun.
void QDDrawCanvas::Parts::strokeWithdrawn(QPointF place) {
    const Host::Call call(host);
    tell([](CanvasInput& to) { to.strokeWithdrawn(); });
    if (kind() == StrokeKind::preview) {
        preview->drawWithCanceled(place);
    } else if (sketch.isOn()) {
        settleSketch();
        sketch.drop();
    } else {
        const Rect area = layers.strokeArea();
        layers.withdraw();
        redisplay(area);
        if (kind() == StrokeKind::smudge) {
            prepareSmudge();
        }
    }
}

void QDDrawCanvas::Parts::strokeDropped() {
    const Host::Call call(host);
    tell([](CanvasInput& to) { to.strokeDropped(); });
    leaveDrawn();
}

// Without an end. What it may have drawn stays, as a step of its own; a preview or a sketch never reaches the canvas.
void QDDrawCanvas::Parts::leaveDrawn() {
    host.strokeWasLeft(kind() != StrokeKind::preview && !sketch.isOn() && !layers.strokeArea().isEmpty());
    if (kind() == StrokeKind::preview) {
        preview->drawWithCanceled(entry.lastSample().place);
        return;
    }
    finishStroke(!sketch.isOn() && !layers.strokeArea().isEmpty());
    sketch.drop();
}

void QDDrawCanvas::Parts::showDrawn(const std::optional<Rect>& area, bool online) {
    const std::vector<Rect> copied = painter.takeCopied();
    if (!area) {
        return;
    }
    const bool smudged = kind() == StrokeKind::smudge;
    lastTouched = *area;
    updateImage(online, smudged);
    for (const Rect& copy : copied) {
        lastTouched = copy;
        updateImage(online, smudged);
    }
}

void QDDrawCanvas::Parts::updateImage(bool online, bool smudged) {
    const Host::Call call(host);
    const Rect shown = isLost() ? Rect() : layers.show(lastTouched, smudged);
    if (shown.isEmpty()) {
        return;  // nor is it an edit, beside the canvas or what is selected
    }
    layers.edits.drawn();
    if (online) {
        redisplay(shown);
    }
}

// ---- Shapes

double QDDrawCanvas::Parts::recognitionUnit() const {
    const float scale = brush.present().recogPointScale;
    return scale > 0 ? static_cast<double>(scale) : 1.0;
}

// What the stroke was meant as takes its place.
void QDDrawCanvas::Parts::endSketch(QPointF place, bool online) {
    settleSketch();
    const ShapeRecord shape = sketch.end(place, recognitionUnit());
    if (shape && drawOutline(shape, online)) {
        finishStroke(true);
    }
}

bool QDDrawCanvas::Parts::drawShape(const ShapeRecord& shape) {
    const Host::Call call(host);
    if (isDrawing()) {
        qCWarning(lcDabcanvas, "a shape cannot be drawn while a stroke is in progress");
        return false;
    }
    if (!finishPreview() || isLost()) {
        return false;
    }
    settle();
    tell([&](CanvasInput& to) { to.shapeDrawn(shape); });
    if (!shape || !drawOutline(shape, true)) {
        return false;
    }
    finishStroke(true);
    return true;
}

// Into the layers and onto the canvas, as a stroke's segments.
bool QDDrawCanvas::Parts::drawOutline(const ShapeRecord& shape, bool online) {
    const auto touched = painter.drawOutline(scaled(shape, recognitionUnit()));
    if (!touched) {
        const std::string_view kindOfShape = nameOfShapeKind(shape.kind);
        qCWarning(lcDabcanvas, "no %.*s can be drawn from these points and sizes",
                  static_cast<int>(kindOfShape.size()), kindOfShape.data());
        return false;
    }
    showDrawn(touched, online);
    return true;
}

// Dabs that are no segment of a stroke. They may stay in their layer for good, so that nothing is composited with them
// but by name: neither what was drawn before nor what lies between later rectangles.
Rect QDDrawCanvas::Parts::drawPoints(std::span<const LPPoint> points, DrawTarget target) {
    if (target == DrawTarget::smudge && layers.isEmpty(PaintLayer::line)) {
        settle();  // the dabs begin with what the canvas looks like, which no sketch is part of
    }
    layers.flush();
    const Rect touched = painter.drawPoints(points, target);
    layers.drawnIsBelow();
    if (target == DrawTarget::picture && !touched.isEmpty()) {
        layers.edits.changed();  // withdrawing a stroke does not take it back
    }
    return touched;
}

// ---- The brush

// A layer never holds strokes of two kinds. What a stroke in progress has drawn stays as it is, but for a preview's.
void QDDrawCanvas::Parts::settleKind(StrokeKind after) {
    if (kind() == StrokeKind::preview) {
        if (isDrawing()) {
            entry.drop();
        }
        return;
    }
    finishStroke(false);
    if (isDrawing() && after != StrokeKind::preview) {
        painter.restartDabs(after);
    }
}

void QDDrawCanvas::Parts::brushIsGiven(BrushKey key, const BrushValue& value) {
    tell([&](CanvasInput& to) { to.brushSet(key, value); });
}

void QDDrawCanvas::Parts::setSecondLine(float slRadius, float relationValue) {
    tell([&](CanvasInput& to) { to.secondLineSet(slRadius, relationValue); });
    brush.restoreSubLine(slRadius, relationValue);
}

void QDDrawCanvas::Parts::seedRandom(std::uint32_t seed) {
    tell([&](CanvasInput& to) { to.randomSeeded(seed); });
    painter.setSeed(seed);
    if (!isDrawing()) {
        painter.restartRandom();
    }
}

void QDDrawCanvas::Parts::repeatRandom(bool repeats) {
    tell([&](CanvasInput& to) { to.randomRepeats(repeats); });
    painter.setRepeatable(repeats);
    if (!isDrawing()) {
        painter.restartRandom();
    }
}

void QDDrawCanvas::Parts::turnView(float radian, bool mirrored) {
    tell([&](CanvasInput& to) { to.viewTurned(radian, mirrored); });
    brush.setViewTurn(radian, mirrored);
}

void QDDrawCanvas::Parts::setSymmetry(Symmetry symmetry) {
    if (!std::isfinite(symmetry.centreX) || !std::isfinite(symmetry.centreY)) {
        qCWarning(lcDabcanvas, "the centre of a symmetry is a place");
        return;
    }
    symmetry.rays = std::clamp(symmetry.rays, kFewestRays, kMostRays);
    if (symmetry != painter.symmetry()) {
        tell([&](CanvasInput& to) { to.symmetrySet(symmetry); });
        painter.setSymmetry(symmetry);
        preview->setSymmetry(symmetry);
    }
}

void QDDrawCanvas::Parts::setSelection(const QPainterPath& area) {
    const Host::Call call(host);
    const auto outlines = straightOutlines(area);
    if (!outlines) {
        qCWarning(lcDabcanvas, "no selection has places that are not finite or beyond a million pixels");
        return;
    }
    if (*outlines != selection && finishPreview()) {
        tell([&](CanvasInput& to) { to.selectionSet(*outlines); });
        selection = *outlines;
        updateMask();
    }
}

void QDDrawCanvas::Parts::updateMask() {
    layers.setMask(selection.isEmpty() ? nullptr : maskOf(selection, layers.size()));
    preview->setShownArea(selection);
}

void QDDrawCanvas::Parts::brushWillChange(BrushKey key, const BrushValue& value, StrokeKind kindAfter) {
    _kindChanges = kindAfter != kind();
    _valueChanges = _valueChanges || isPicture(value) || brush.value(key) != value;
    _recognisesAnew = key == BrushKey::enableRecogition && std::get<bool>(value) != recognises();
    if (_recognisesAnew) {
        sketch.drop();  // what a stroke in progress has drawn stays, whatever it was to become
    }
    if (_kindChanges) {
        settleKind(kindAfter);
    } else if (_recognisesAnew && !recognises() && isDrawing()) {
        finishStroke(false);
    }
}

void QDDrawCanvas::Parts::brushChanged(BrushKey key) {
    if (std::exchange(_valueChanges, false)) {
        host.brushChanged();
    }
    const bool anew = std::exchange(_recognisesAnew, false);
    updateStyle();
    if (std::exchange(_kindChanges, false) && kind() == StrokeKind::smudge) {
        prepareSmudge();
    }
    switch (key) {
        case BrushKey::brushType:
            return host.showPreview(brush.present().brushType == kPreviewBrush);
        case BrushKey::gaussianRadius:
            return preview->setGaussianRadius(brush.present().gaussianRadius);
        case BrushKey::renderColor:
        case BrushKey::flow:
            return sendPreviewColor();
        // A tip that is drawn may change many times before a stroke does; images are what strokes will be made of.
        case BrushKey::textureImages:
            return layers.makeReady(brush.style());
        case BrushKey::slTextureImage:
            return layers.makeReady(brush.subStyle());
        case BrushKey::enableRecogition:
            if (recognises() && !history.autoMark && !sketch.isOn()) {
                record.refresh(kRecognitionLine);
            }
            if (recognises() && anew && isDrawing()) {
                sketch.begin(entry.lastSample().place);
            }
            // A pointer's stroke that was begun without goes on.
            pointer.canAddPoint = pointer.canAddPoint ||
                                  (recognises() && anew && (pointer.normalMoing || pointer.digitPenMoving));
            return;
        default:
            return;
    }
}

// How layers go onto the canvas. In mid-stroke, what was drawn without a mask must not be masked, nor the other way round.
void QDDrawCanvas::Parts::updateStyle() {
    CompositeStyle style = brush.compositeStyle();
    style.locksAlpha = record.planes().frontSettings().locksAlpha;
    const bool inALine =
        style.masked != layers.style().masked && isDrawing() && kind() != StrokeKind::preview;
    if (inALine) {
        finishStroke(false);
    }
    layers.setStyle(style);
    if (inALine && style.masked) {
        painter.startSubLine(entry.lastSample());
    }
}

// The preview has no flow of its own.
void QDDrawCanvas::Parts::sendPreviewColor() {
    const ESColor& color = brush.present().renderColor;
    preview->setRenderColor(ESColor::rgba(color.red(), color.green(), color.blue(), brush.present().flow));
}
