// SPDX-License-Identifier: MIT
#include "Canvas/CanvasHistory.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <new>
#include <utility>
#include <vector>

#include "Canvas/CanvasLog.h"
#include "Canvas/Clock.h"
#include "History/ImagesUndoManager.h"
#include "History/JournalReader.h"
#include "History/KeptHistories.h"
#include "History/MemoryBudget.h"
#include "History/StepJournal.h"
#include "History/TempFolder.h"
#include "History/UndoRecovery.h"
#include "Maths/Tools.h"

namespace dabcanvas {
namespace {

constexpr double kDrawingNoted = 1;  // seconds; a stroke may be long
// Of the fixed message
constexpr int kLoadLine = 57, kResetLine = 92, kMarkLine = 128;

// Null without the memory.
StepPicture blankOf(const Size& size) {
    try {
        return StepPicture(std::make_shared<const TilePicture>(size));
    } catch (const std::bad_alloc&) {
        return {};
    }
}

using Pictures = std::vector<std::shared_ptr<const TilePicture>>;

Pictures picturesOf(const JournalContents& contents, const TileStore& tiles) {
    Pictures pictures;
    for (const RecoveredStep& step : contents.steps) {
        auto picture = step.base < 0
                           ? std::make_shared<TilePicture>(step.picture)
                           : std::make_shared<TilePicture>(*pictures[static_cast<std::size_t>(step.base)]);
        picture->setShape(step.picture);
        for (const TileChange& change : step.changes) {
            picture->set(change.index, tiles.adopted(change.tile));
        }
        pictures.push_back(std::move(picture));
    }
    return pictures;
}

HistoryChange historyOf(const JournalContents& contents, const Pictures& pictures) {
    const auto step = [&](int index) {
        const auto at = static_cast<std::size_t>(index);
        return HistoryChange::Step{contents.steps[at].name, pictures[at]};
    };
    const auto steps = [&](const std::vector<int>& stack) {
        StackChange<HistoryChange::Step> all;
        std::transform(stack.begin(), stack.end(), std::back_inserter(all.added), step);
        return all;
    };
    const bool hasCurrent =
        contents.current >= 0 && !contents.steps[static_cast<std::size_t>(contents.current)].name.isEmpty();
    auto present = pictures[static_cast<std::size_t>(contents.present)];
    auto current = hasCurrent ? step(contents.current) : HistoryChange::Step{Tools::dateString(), present};
    return {steps(contents.undo), steps(contents.redo), std::move(current), std::move(present)};
}

}  // namespace

CanvasHistory::CanvasHistory(PaintLayers& layers, RecordedCanvas& record, Resize resize)
    : _layers(layers), _record(record), _resize(std::move(resize)) {}

CanvasHistory::~CanvasHistory() = default;

// It begins with the canvas as it was made. That was transparent, so nothing need be read.
ImagesUndoManager& CanvasHistory::images(bool leavesRecord) {
    if (_images == nullptr) {
        _images = ImagesUndoManager::init();
        _images->keepTilesIn(_record.tiles());
        _images->setCacheByteBudget(defaultMemoryBudget());
        _images->setDiskByteBudget(kDefaultDiskBudget);
        auto blank = blankOf(_layers.size());
        if (blank.isNull()) {
            tellNoMemory(kLoadLine);
        } else {
            _images->resetWithPictureOfCurrentItem(blank);
        }
        if (!leavesRecord) {
            _record.giveBlank();
        }
        _images->setFilePathExtension({});  // raw pixels
        if (!_layers.edits.unsaved.now) {
            noteSaved();
        } else if (_savedAsMade) {
            _saved = blank.tiles();
        }
    }
    return *_images;
}

// Nothing is read while there are no steps by which the canvas could come back to it.
void CanvasHistory::noteSaved() {
    _layers.edits.unsaved = {false, !_layers.strokeArea().isEmpty()};
    _savedAsMade = !_layers.edits.unrecorded.now && _layers.painted().isEmpty();
    _saved = _images == nullptr ? nullptr : _record.present();
}

bool CanvasHistory::showsSaved() {
    const auto shown = _saved != nullptr ? _record.present() : nullptr;
    return shown != nullptr && shown->hasSameTiles(*_saved);
}

void CanvasHistory::noteFallenBack() {
    const auto shown = _record.present(), told = _record.data().tiles();
    if (shown && told) {
        const bool differs = !shown->hasSameTiles(*told);
        _layers.edits.unrecorded = {differs, differs};
    }
    if (showsSaved()) {
        _layers.edits.unsaved = {};
    }
    note();
}

StepPicture CanvasHistory::load(bool sketching) {
    images(sketching).setFilePathExtension({});
    markTimeInterval = 0;
    _lastMark = steadySeconds();
    return _record.data();
}

StepPicture CanvasHistory::reset() {
    // Nothing may have been touched, and yet a device be lost that nobody has missed.
    std::array<std::uint8_t, 4> pixel{};
    const bool isThere = _layers.read({0, 0, 1, 1}, MutablePixelView::topRowFirst(pixel.data(), {1, 1}));
    if (!isThere || !_record.read(kResetLine)) {
        if (_images != nullptr && !_layers.isLost()) {
            _images->resetWithPictureOfCurrentItem(_images->currentPictureOfItem());
        }
        return {};
    }
    ImagesUndoManager& steps = images(true);
    noteRecorded();
    steps.resetWithPictureOfCurrentItem(_record.data());
    note();
    return _record.data();
}

void CanvasHistory::noteBeforeChange() {
    if (_images != nullptr || autoMark) {
        record();
    }
}

StepPicture CanvasHistory::mark() {
    const double passed = steadySeconds() - _lastMark;
    const bool tooSoon = autoMark && passed >= 0 && passed < static_cast<double>(markTimeInterval);
    return tooSoon ? StepPicture() : record();
}

// Null where nothing was drawn since the last step, and without the memory or the surface.
StepPicture CanvasHistory::record() {
    if (!_layers.edits.unrecorded.now || _layers.isLost()) {
        return {};
    }
    _lastMark = steadySeconds();
    if (!_record.read(kMarkLine)) {
        if (!_layers.isLost()) {
            qCWarning(lcDabcanvas, "Create Buffer Error!");
        }
        return {};
    }
    ImagesUndoManager& steps =
        images(true);  // a new one begins with the canvas as it was made, which is not recorded
    noteRecorded();
    steps.addItemWithPicture(_record.data());
    note();
    stepRecorded();
    return _record.data();
}

// A step recorded in mid-stroke holds what withdrawing the stroke takes back: the canvas without it is another picture.
void CanvasHistory::noteRecorded() {
    _layers.edits.unrecorded = {false, !_layers.strokeArea().isEmpty()};
}

std::pair<int, int> CanvasHistory::stepsDropped() {
    if (_images == nullptr) {
        return {};
    }
    const unsigned dropped = _images->stepsDropped();
    if (dropped == _droppedTold) {
        return {};  // as after nearly every event
    }
    return {static_cast<int>(dropped - std::exchange(_droppedTold, dropped)),
            static_cast<int>(_images->undoItems().size())};
}

bool CanvasHistory::canUndo(bool unrecorded) const {
    return unrecorded || (_images != nullptr && _images->canUndo());
}

bool CanvasHistory::canRedo(bool unrecorded) const {
    return !unrecorded && _images != nullptr && _images->canRedo();
}

CanvasHistory::Outcome CanvasHistory::undo(Rect& changed) {
    if (_layers.edits.unrecorded.now && record().isNull()) {
        return Outcome::refused;  // what was drawn since the last step would be lost
    }
    return go(&ImagesUndoManager::undoAtOnce, &ImagesUndoManager::redoAtOnce, changed);
}

CanvasHistory::Outcome CanvasHistory::redo(Rect& changed) {
    return go(&ImagesUndoManager::redoAtOnce, &ImagesUndoManager::undoAtOnce, changed);
}

CanvasHistory::Outcome CanvasHistory::go(Step there, Step back, Rect& changed) {
    if (_images == nullptr || _layers.isLost() || !(_images.get()->*there)()) {
        return Outcome::refused;
    }
    QString problem;
    const StepPicture picture = _images->currentPictureOfItem(&problem);
    const auto refuse = [&] {
        if (!problem.isEmpty() && !_layers.isLost()) {
            qCWarning(lcDabcanvas, "%ls", qUtf16Printable(problem));
        }
        (_images.get()->*back)();
        return Outcome::refused;
    };
    if (picture.isNull() && _images->hasCurrentImage()) {  // but no memory for it
        return refuse();
    }
    if (!picture.tiles() && picture.size() != _record.bytesOfCanvas()) {
        qCWarning(
            lcDabcanvas, "%ls; the canvas is cleared",
            qUtf16Printable(problem.isEmpty() ? QStringLiteral("An undo step has no image of this canvas")
                                              : problem));
        return Outcome::lost;
    }
    // All of it, whatever a host has restricted placing to.
    _layers.settle();
    const auto shown = showResized(picture, &problem);
    if (!shown) {
        return refuse();
    }
    changed = *shown;
    const bool differs = !showsSaved();
    _layers.edits.unsaved = {differs, differs};
    _images->keepToBudgets();
    note();
    return Outcome::restored;
}

// A step of another size makes the canvas as large, and the canvas is as it was where it cannot be had then.
std::optional<Rect> CanvasHistory::showResized(const StepPicture& picture, QString* problem) {
    const Size before = _layers.size();
    const Size after = picture.tiles() ? picture.tiles()->layout().picture() : before;
    if (after == before) {
        return _record.show(picture, problem);
    }
    const auto present = _record.present();
    if (!present || !_resize(after)) {
        *problem = QStringLiteral("there is no surface for a step of another size");
        return {};
    }
    const auto shown = _record.show(picture, problem);
    if (!shown && _resize(before)) {
        QString unheard;
        _record.show(StepPicture(present), &unheard);
    }
    return shown;
}

// ---- Kept

bool CanvasHistory::keep(bool keeps, QString* problem) {
    if (keeps == isKept()) {
        return true;
    }
    UndoRecovery::makeRoom([](const RecoverableHistory& history) {
        qCInfo(lcDabcanvas, "%ls goes, as older histories have no room any more",
               qUtf16Printable(history.path));
        return true;
    });
    auto folder = keeps ? startKeptHistory(problem) : nullptr;
    if (keeps && !folder) {
        return false;
    }
    images(_record.isGiven());
    _images->endWritingDown();
    _record.tiles()->keepIn(std::move(folder));
    setWords(_words);
    note();
    return true;
}

bool CanvasHistory::setWords(const QString& words) {
    _words = words;
    const QString path = _record.tiles()->keptPath();
    return !path.isEmpty() && writeKeptWords(path, words);
}

void CanvasHistory::noteDrawing() {
    if (isKept() && steadySeconds() - _lastNoted >= kDrawingNoted) {
        note();
    }
}

void CanvasHistory::note() {
    if (!isKept() || _images == nullptr) {
        return;
    }
    _lastNoted = steadySeconds();
    QString problem;
    TileStore& tiles = *_record.tiles();
    if (!tiles.holdsFolder()) {
        if (auto folder = startKeptHistory(&problem)) {
            tiles.keepIn(std::move(folder));
            setWords(_words);
        }
    }
    _images->writeDown(_record.present());
}

bool CanvasHistory::recover(const QString& id, QString* problem) {
    auto folder = claimKeptHistory(id, problem);
    if (!folder) {
        return false;
    }
    const auto refuse = [&] {
        folder->leave();  // for another try
        return false;
    };
    try {
        const auto contents = readJournal(folder->path(), TileCheck::whole, problem);
        if (!contents) {
            return refuse();
        }
        if (contents->present < 0 || contents->pictureSize() != _layers.size() ||
            contents->format.pixelBytes != _layers.surface().pixelBytes()) {
            *problem = QStringLiteral("it is of a canvas of %1 x %2 pixels and %3 bits")
                           .arg(contents->pictureSize().width)
                           .arg(contents->pictureSize().height)
                           .arg(contents->format.pixelBytes * 2);
            return refuse();
        }
        images(false).endWritingDown();
        _layers.settle();
        _record.startAnew();
        _images->keepTilesIn(_record.tiles());
        if (!_record.tiles()->adopt(*contents)) {
            return refuse();
        }
        const auto pictures = picturesOf(*contents, *_record.tiles());
        const HistoryChange history = historyOf(*contents, pictures);
        if (!_record.show(StepPicture(pictures[static_cast<std::size_t>(contents->present)]), problem)) {
            return refuse();
        }
        _images->become(history);
        _layers.edits.changed();  // it is nowhere saved as a picture
        const bool isStep = history.current.picture == history.present;
        _layers.edits.unrecorded = {!isStep, !isStep};
    } catch (const std::bad_alloc&) {
        *problem = QStringLiteral("there is no memory for it");
        return refuse();
    }
    _words = keptWords(folder->path());
    folder->renumber();
    _record.tiles()->keepIn(std::move(folder));
    note();
    problem->clear();
    return true;
}

}  // namespace dabcanvas
