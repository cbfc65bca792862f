// SPDX-License-Identifier: MIT
// What parts do together with the picture as a whole, its size, and its history.
#include <utility>

#include "Canvas/CanvasLog.h"
#include "Canvas/QDDrawCanvasParts.h"
#include "Canvas/SurfaceChoice.h"
#include "GLSurface/MakeGLSurface.h"

using namespace dabcanvas;

namespace {

PaintColor paintOf(const ESColor& color) {
    const float alpha = color.alpha();
    return {color.red() * alpha, color.green() * alpha, color.blue() * alpha, alpha};
}

}  // namespace

// ---- The picture

void QDDrawCanvas::Parts::clear(const ESColor& color) {
    const Host::Call call(host);
    if (!finishPreview() || isLost()) {
        return;
    }
    tell([&](CanvasInput& to) { to.cleared(color, true); });
    layers.edits.changed();
    layers.forgetDue();
    layers.emptyLines();
    layers.empty(PaintLayer::smudge);
    fill(color);
}

void QDDrawCanvas::Parts::clearPicture(const ESColor& color) {
    const Host::Call call(host);
    if (!finishPreview() || isLost()) {
        return;
    }
    tell([&](CanvasInput& to) { to.cleared(color, false); });
    fill(color);
}

void QDDrawCanvas::Parts::fill(const ESColor& color) {
    settleSketch();
    layers.forgetDue();
    if (isDrawing()) {
        layers.emptyLines();  // what it drew so far is cleared with the canvas, and must not come back
    }
    layers.fill(paintOf(color));
    host.redisplayAll();
    updateBackground(!autoMarked().isNull());
}

// All of it or, with false, nothing.
bool QDDrawCanvas::Parts::place(const PlacedImage& image, const Spot& spot, bool isUndo) {
    const Host::Call call(host);
    if (image.image.isNull()) {
        qCWarning(lcDabcanvas, "there is no image to place");
        return false;
    }
    if (!spot.isUsable() || !finishPreview() || isLost() || !placing.put(image, spot)) {
        return false;
    }
    tellPlaced(image, spot, isUndo);
    const SinceThen unrecorded = layers.edits.unrecorded;
    layers.edits.changed();
    if (isUndo) {
        layers.edits.unrecorded = unrecorded;
    }
    host.redisplayAll();
    if (!placing.rules.neglects) {
        updateBackground(isUndo ? !record.data().isNull() : !autoMarked().isNull());
        if (!isUndo && kind() == StrokeKind::smudge) {
            prepareSmudge();
        }
    }
    return true;
}

bool QDDrawCanvas::Parts::read(const Rect& part, const MutablePixelView& rows) {
    return layers.read(part, rows) && !isLost();
}

void QDDrawCanvas::Parts::updateScale() {
    const QSizeF frame = host.shownFrame().size();
    const QSizeF buffer = bufferSize();
    if (!(frame.width() > 0 && frame.height() > 0)) {
        return;  // nothing is shown, and nothing could be scaled to it
    }
    outScale = QSizeF(frame.width() / buffer.width(), frame.height() / buffer.height());
    view.perPixel = frame != buffer ? outScale : QSizeF(1, 1);
}

void QDDrawCanvas::Parts::redisplay(const Rect& area) {
    if (!area.isEmpty()) {
        const QSizeF& to = view.perPixel;
        host.redisplay(QRectF(area.x * to.width(), area.y * to.height(), area.width * to.width(),
                              area.height * to.height()));
    }
}

// ---- The history

bool QDDrawCanvas::Parts::isLost() const {
    return layers.isLost();
}

// Whether the canvas holds, or will hold, what no step does. A stroke in progress cannot be undone and does not count.
bool QDDrawCanvas::Parts::isUnrecorded() const {
    return (isDrawing() ? layers.edits.unrecorded.withoutStroke : layers.edits.unrecorded.now) ||
           preview->isPending();
}

bool QDDrawCanvas::Parts::canUndo() const {
    return !host.isLossTold() && history.canUndo(isUnrecorded());
}

bool QDDrawCanvas::Parts::canRedo() const {
    return !host.isLossTold() && history.canRedo(isUnrecorded());
}

StepPicture QDDrawCanvas::Parts::mark() {
    const Host::Call call(host);
    if (!finishPreview()) {
        return {};
    }
    settleSketch();
    return history.mark();
}

// The mark of a step that has just been drawn; null where none is to be recorded.
StepPicture QDDrawCanvas::Parts::autoMarked() {
    if (!history.autoMark) {
        return {};
    }
    settleSketch();
    return history.mark();
}

StepPicture QDDrawCanvas::Parts::resetHistory() {
    const Host::Call call(host);
    if (!finishPreview() || isLost()) {
        return {};
    }
    settleSketch();
    tell([](CanvasInput& to) { to.historyReset(); });
    return history.reset();
}

StepPicture QDDrawCanvas::Parts::undo() {
    const Host::Call call(host);
    Rect changed;
    return !finishPreview() || refuses(canUndo())
               ? StepPicture()
               : went(history.undo(changed), changed, &CanvasInput::undone);
}

StepPicture QDDrawCanvas::Parts::redo() {
    const Host::Call call(host);
    Rect changed;
    return !finishPreview() || refuses(canRedo())
               ? StepPicture()
               : went(history.redo(changed), changed, &CanvasInput::redone);
}

StepPicture QDDrawCanvas::Parts::went(CanvasHistory::Outcome outcome, const Rect& changed,
                                      bool (CanvasInput::*step)()) {
    const bool wasUntold = std::exchange(isUntold, true);
    layersChanged();
    const StepPicture picture = stepped(outcome, changed);
    isUntold = wasUntold;
    tellStep(outcome, step);
    return picture;
}

bool QDDrawCanvas::Parts::refuses(bool hasStep) {
    refusal = isLost()      ? UndoRefusal::deviceLost
              : isDrawing() ? UndoRefusal::drawing
              : !hasStep    ? UndoRefusal::noStep
                            : UndoRefusal::none;
    _refusedStep = refusal == UndoRefusal::drawing;
    return refusal != UndoRefusal::none;
}

SurfaceOptions QDDrawCanvas::Parts::presentOptions() {
    SurfaceOptions present = options;
    present.kind = asGLSurface(layers.surface()) != nullptr ? SurfaceKind::gpu : SurfaceKind::processor;
    return present;
}

bool QDDrawCanvas::Parts::comesToRest(const char* complaint) {
    if (isDrawing() || !finishPreview() || isLost()) {
        qCWarning(lcDabcanvas, "%s", complaint);
        return false;
    }
    settleSketch();
    settle();
    return true;
}

bool QDDrawCanvas::Parts::setArea(const QRect& area) {
    const Host::Call call(host);
    if (area == QRect(QPoint(), bufferSize().toSize())) {
        return true;
    }
    if (!comesToRest("a canvas cannot change its size in mid-stroke")) {
        return false;
    }
    // Before anybody painted it is as if the canvas had been made so.
    const bool isAsMade = !layers.edits.unsaved.now && !layers.edits.unrecorded.now && !history.isMade();
    history.noteBeforeChange();
    if (!cropTo({area.x(), area.y(), area.width(), area.height()})) {
        return false;
    }
    tell([&](CanvasInput& to) { static_cast<void>(to.areaSet(area)); });
    if (!isAsMade) {
        layers.edits.changed();
    }
    if (autoMarked().isNull()) {
        history.note();
    }
    return true;
}

// Nothing is drawn or told but that it has another size.
bool QDDrawCanvas::Parts::cropTo(const Rect& area) {
    const Host::Call call(host);
    QString problem;
    auto surface = makeSurface(QSizeF(area.width, area.height), presentOptions());
    auto others = record.cropped(area, &problem);
    if (!others) {
        qCWarning(lcDabcanvas, "the canvas keeps its size: %ls", qUtf16Printable(problem));
    }
    if (!surface || !others || !layers.cropTo(std::move(surface), area)) {
        return false;
    }
    record.forgetCanvas(std::move(*others));
    lastTouched = {};
    makePreview();
    updateMask();
    host.showPreview(brush.present().brushType == kPreviewBrush);
    updateScale();
    host.canvasSizeChanged();
    host.redisplayAll();
    if (kind() == StrokeKind::smudge) {
        prepareSmudge();
    }
    return true;
}

bool QDDrawCanvas::Parts::recover(const QString& id, QString* problem) {
    const Host::Call call(host);
    if (!finishPreview() || isDrawing() || isLost()) {
        *problem = QStringLiteral("the canvas cannot take it now");
        return false;
    }
    if (!history.recover(id, problem)) {
        return false;
    }
    layersChanged();
    host.redisplayAll();
    if (kind() == StrokeKind::smudge) {
        prepareSmudge();
    }
    tellPicture(true);
    return true;
}

bool QDDrawCanvas::Parts::recoverFromLoss(SurfaceKind wanted) {
    const Host::Call call(host);
    if (!isLost()) {
        return true;
    }
    entry.drop();
    SurfaceOptions next = options;
    next.kind = wanted;
    next.canvasDepth = layers.surface().pixelBytes() * 2;  // bits a channel
    auto surface = makeSurface(bufferSize(), next);
    if (!surface) {
        return false;
    }
    QString problem;
    const QImage shown = record.planes().isPlain() ? layers.lastDisplay() : QImage();
    if (!record.fallBackOn(*surface, shown, layers.edits.unrecorded.withoutStroke, &problem)) {
        qCWarning(lcDabcanvas, "the canvas stays lost: %ls", qUtf16Printable(problem));
        return false;
    }
    layers.replaceLost(std::move(surface));
    host.lossIsOver();
    history.noteFallenBack();
    lastTouched = {};
    host.redisplayAll();
    if (kind() == StrokeKind::smudge) {
        prepareSmudge();
    }
    tellPicture(!isUnrecorded());
    return true;
}

bool QDDrawCanvas::Parts::isModified() const {
    return layers.edits.unsaved.now || preview->isPending();
}

void QDDrawCanvas::Parts::setModified(bool modified) {
    const Host::Call call(host);
    if (modified) {
        layers.edits.unsaved = {true, true};
    } else if (finishPreview()) {
        settleSketch();
        history.noteSaved();
    }
}

bool QDDrawCanvas::Parts::canUndoAgain() {
    return !isDrawing() && std::exchange(_refusedStep, false);
}

std::pair<int, int> QDDrawCanvas::Parts::stepsDropped() {
    return history.stepsDropped();
}

StepPicture QDDrawCanvas::Parts::stepped(CanvasHistory::Outcome outcome, const Rect& changed) {
    switch (outcome) {
        case CanvasHistory::Outcome::refused:
            refusal = isLost() ? UndoRefusal::deviceLost : UndoRefusal::unreadable;
            return {};
        case CanvasHistory::Outcome::lost: {
            const bool marks = std::exchange(history.autoMark, false);  // clearing is no step of its own here
            clear({});
            history.autoMark = marks;
            layers.edits.unrecorded = {};  // it is what the step has become
            break;
        }
        case CanvasHistory::Outcome::restored:
            redisplay(changed);
            if (kind() == StrokeKind::smudge) {
                prepareSmudge();
            }
            break;
    }
    return record.data();
}
