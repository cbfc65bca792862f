// SPDX-License-Identifier: MIT
#include "Canvas/CanvasHistory.h"

#include "Canvas/CanvasLog.h"
#include "Canvas/Clock.h"
#include "History/ImagesUndoManager.h"

namespace dabcanvas {
namespace {

// Of the fixed message
constexpr int kLoadLine = 57, kResetLine = 92, kMarkLine = 128;

}  // namespace

CanvasHistory::CanvasHistory(PaintLayers& layers, RecordedCanvas& record)
    : _layers(layers), _record(record) {}

CanvasHistory::~CanvasHistory() = default;

// It begins with the canvas as it was made. That was transparent, so nothing need be read.
ImagesUndoManager& CanvasHistory::images(bool sketching) {
    if (_images == nullptr) {
        const QByteArray blank = bytesOf(_record.bytesOfCanvas());
        if (blank.isNull()) {
            tellNoMemory(kLoadLine);
            _images = ImagesUndoManager::init();
        } else {
            _images = ImagesUndoManager::initWithCurrentImageOfData(blank);
            _images->resetWithImageDataOfCurrentItem(blank);
        }
        if (!sketching) {
            _record.give(blank);
            _record.takeGiven();
        }
        _images->setFilePathExtension({});  // raw pixels
    }
    return *_images;
}

QByteArray CanvasHistory::load(bool sketching) {
    images(sketching).setFilePathExtension({});
    markTimeInterval = 0;
    _lastMark = steadySeconds();
    return _record.data();
}

QByteArray CanvasHistory::reset() {
    const QByteArray data = _record.snapshot(kResetLine);
    if (data.isNull()) {
        if (_images != nullptr && !_layers.surface().isLost()) {
            _images->resetWithImageDataOfCurrentItem(_images->currentImageDataOfItem());
        }
        return {};
    }
    ImagesUndoManager& steps = images(false);
    noteRecorded(data);
    steps.resetWithImageDataOfCurrentItem(data);
    return data;
}

QByteArray CanvasHistory::mark() {
    const double passed = steadySeconds() - _lastMark;
    const bool tooSoon = autoMark && passed >= 0 && passed < static_cast<double>(markTimeInterval);
    return tooSoon ? QByteArray() : record();
}

// Null where nothing was drawn since the last step, and without the memory or the surface.
QByteArray CanvasHistory::record() {
    if (!_layers.edits.edited || _layers.surface().isLost()) {
        return {};
    }
    _lastMark = steadySeconds();
    // Before there is a history: a new one records the canvas as it was made, which no sketch is to be taken back to.
    const QByteArray data = _record.snapshot(kMarkLine);
    if (data.isNull()) {
        if (!_layers.surface().isLost()) {
            qCWarning(lcDabcanvas, "Create Buffer Error!");
        }
        return {};
    }
    ImagesUndoManager& steps = images(false);
    noteRecorded(data);
    steps.addItemWithImageData(data);
    return data;
}

// A step recorded in mid-stroke holds what withdrawing the stroke takes back: the canvas without it is another picture.
void CanvasHistory::noteRecorded(const QByteArray& data) {
    _record.take(data);
    _layers.edits.edited = false;
    _layers.edits.withoutStroke = !_layers.strokeArea().isEmpty();
}

bool CanvasHistory::canUndo(bool unrecorded) const {
    return unrecorded || (_images != nullptr && _images->canUndo());
}

bool CanvasHistory::canRedo(bool unrecorded) const {
    return !unrecorded && _images != nullptr && _images->canRedo();
}

CanvasHistory::Outcome CanvasHistory::undo() {
    return recordUnrecorded() ? go(&ImagesUndoManager::undo, &ImagesUndoManager::redo) : Outcome::refused;
}

CanvasHistory::Outcome CanvasHistory::redo() {
    return go(&ImagesUndoManager::redo, &ImagesUndoManager::undo);
}

// False when what was drawn since the last step cannot become one now.
bool CanvasHistory::recordUnrecorded() {
    if (!_layers.edits.edited) {
        return true;
    }
    if ((_images != nullptr && _images->processCount() != 0) || record().isNull()) {
        return false;  // undo() would be refused in any case
    }
    _images
        ->waitForWrites();  // of an older step that gave way to this one: undo() must not be refused for that
    return true;
}

CanvasHistory::Outcome CanvasHistory::go(Step there, Step back) {
    if (_images == nullptr || _layers.surface().isLost() || !(_images.get()->*there)()) {
        return Outcome::refused;
    }
    QString problem;
    const QByteArray data = _images->currentImageDataOfItem(&problem);
    if (data.isNull() && _images->hasCurrentImage()) {  // but no memory for it
        if (!problem.isEmpty()) {
            qCWarning(lcDabcanvas, "%ls", qUtf16Printable(problem));
        }
        (_images.get()->*back)();
        return Outcome::refused;
    }
    const PixelView rows = _record.rowsOf(data);
    if (rows.isNull()) {
        qCWarning(
            lcDabcanvas, "%ls; the canvas is cleared",
            qUtf16Printable(problem.isEmpty() ? QStringLiteral("An undo step has no image of this canvas")
                                              : problem));
        return Outcome::lost;
    }
    // All of it, whatever a host has restricted placing to.
    _layers.settle();
    if (!_layers.paint(_layers.whole(), rows)) {
        if (!_layers.isLost()) {
            qCWarning(lcDabcanvas, "there is no memory to put a step back");
        }
        (_images.get()->*back)();
        return Outcome::refused;
    }
    _record.take(data);
    return Outcome::restored;
}

}  // namespace dabcanvas
