// SPDX-License-Identifier: MIT
// What a canvas keeps as steps: pictures of tiles, bounded in bytes rather than in number.
#include <QFileInfo>
#include <algorithm>
#include <memory>
#include <utility>

#include "History/ImagesUndoManager.h"
#include "History/StepJournal.h"
#include "History/TempFolder.h"
#include "History/TileStore.h"
#include "Maths/Tools.h"

using namespace dabcanvas;

namespace {

// Writing begins before all of the budget is taken, so that there is room while it goes on.
constexpr qint64 spillFrom(qint64 budget) {
    return budget / 4 * 3;
}

// Of the disk's budget, versions may take so much: what their files hold besides is freed late.
constexpr qint64 liveOf(qint64 budget) {
    return budget / 3 * 2;
}

// Of one file, as the last one is never written anew.
constexpr qint64 fileOf(qint64 budget) {
    constexpr qint64 kMost = 64 << 20;
    return budget > 0 ? std::min(budget / 16, kMost) : kMost;
}

}  // namespace

void ImagesUndoManager::keepTilesIn(std::shared_ptr<TileStore> tiles) {
    const std::lock_guard lock(_operation);
    _tiles = std::move(tiles);
    _tiles->setFileBytes(fileOf(_diskByteBudget));
}

// Another canvas's is kept as bytes.
bool ImagesUndoManager::isOwn(const StepPicture& picture) const {
    const std::lock_guard lock(_operation);
    return picture.tiles() && _tiles && picture.tiles()->isIn(*_tiles);
}

bool ImagesUndoManager::addItemWithPicture(const StepPicture& picture) {
    if (!isOwn(picture)) {
        return addItemWithImageData(picture);
    }
    const std::lock_guard lock(_operation);
    beginItem();
    _store.cache(currentStringItem(), std::make_shared<Snapshot>(picture));
    keepToBudgets();
    return true;
}

bool ImagesUndoManager::resetWithPictureOfCurrentItem(const StepPicture& picture) {
    const std::lock_guard lock(_operation);
    if (!isOwn(picture)) {
        return resetWithImageDataOfCurrentItem(picture);
    }
    reset();
    _store.cache(currentStringItem(), std::make_shared<Snapshot>(picture));
    return true;
}

StepPicture ImagesUndoManager::currentPictureOfItem(QString* problem) {
    const std::lock_guard lock(_operation);
    const StepPicture step = _store.step(currentStringItem());
    return step.isNull() ? StepPicture(currentImageDataOfItem(problem)) : step;
}

bool ImagesUndoManager::undoAtOnce() {
    const std::lock_guard lock(_operation);
    return stepAnyway(Way::back);
}

bool ImagesUndoManager::redoAtOnce() {
    const std::lock_guard lock(_operation);
    return stepAnyway(Way::forth);
}

// ---- As a whole

HistoryMoment ImagesUndoManager::moment() const {
    const std::lock_guard lock(_operation);
    const auto step = [this](const QString& name) {
        return HistoryMoment::Step{name, _store.step(name).tiles()};
    };
    HistoryMoment moment;
    for (const QString& name : undoItems()) {
        moment.undo.push_back(step(name));
    }
    moment.current = step(currentStringItem());
    for (const QString& name : redoItems()) {
        moment.redo.push_back(step(name));
    }
    std::reverse(moment.redo.begin(), moment.redo.end());
    return moment;
}

void ImagesUndoManager::become(const HistoryMoment& moment) {
    const std::lock_guard lock(_operation);
    auto steps = moment.undo;
    steps.push_back(moment.current);
    steps.insert(steps.end(), moment.redo.begin(), moment.redo.end());
    const unsigned most = undoStepCount();
    UndoManager::setUndoStepCount(static_cast<unsigned>(steps.size()));  // while all of them are to be undone
    resetWithCurrentItem(steps.front().name);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        if (i > 0) {
            addItemWithString(steps[i].name);
        }
        if (steps[i].picture) {
            _store.cache(steps[i].name, std::make_shared<Snapshot>(StepPicture(steps[i].picture)));
        }
    }
    for (std::size_t i = 0; i < moment.redo.size(); ++i) {
        stepAnyway(Way::back);
    }
    UndoManager::setUndoStepCount(std::max(most, static_cast<unsigned>(moment.undo.size())));
}

// ---- Budgets

qint64 ImagesUndoManager::cacheByteBudget() const {
    const std::lock_guard lock(_operation);
    return _cacheByteBudget;
}

void ImagesUndoManager::setCacheByteBudget(qint64 bytes) {
    const std::lock_guard lock(_operation);
    _cacheByteBudget = std::max<qint64>(bytes, 0);
    keepToBudgets();
}

qint64 ImagesUndoManager::diskByteBudget() const {
    const std::lock_guard lock(_operation);
    return _diskByteBudget;
}

void ImagesUndoManager::setDiskByteBudget(qint64 bytes) {
    const std::lock_guard lock(_operation);
    _diskByteBudget = std::max<qint64>(bytes, 0);
    if (_tiles) {
        _tiles->setFileBytes(fileOf(_diskByteBudget));
    }
    keepToBudgets();
}

qint64 ImagesUndoManager::cachedBytes() const {
    return _store.cachedBytes() + (_tiles ? _tiles->bytes() : 0);
}

qint64 ImagesUndoManager::bytesOnDisk() const {
    return _tiles ? _tiles->bytesOnDisk() : 0;
}

bool ImagesUndoManager::dropsSteps() const {
    const std::lock_guard lock(_operation);
    return _dropsSteps;
}

void ImagesUndoManager::setDropsSteps(bool drops) {
    const std::lock_guard lock(_operation);
    _dropsSteps = drops;
}

unsigned ImagesUndoManager::stepsDropped() const {
    const std::lock_guard lock(_operation);
    return _stepsDropped;
}

void ImagesUndoManager::relieve(qint64 most) {
    if (!_tiles) {
        return;
    }
    QString folder = tempDirectory();
    if (_folder && !QFileInfo(folder).isDir() && !_folder->restore()) {
        folder.clear();
    }
    _tiles->relieve(std::max<qint64>(most - _store.cachedBytes(), 0), folder);
}

// The oldest, and where there are only undone ones, the one undone first.
bool ImagesUndoManager::dropFarthest() {
    const QStringList undo = undoItems(), redo = redoItems();
    if (!undo.isEmpty()) {
        dropOldestUndoItem();
        ++_stepsDropped;
    } else if (!redo.isEmpty()) {
        dropLastRedoItem();
    } else {
        return false;
    }
    letGoOfUnused({undo.isEmpty() ? redo.first() : undo.first()});
    return true;
}

// Memory first onto the disk; where that is too slow or full, the oldest steps go.
void ImagesUndoManager::keepToBudgets() {
    const std::lock_guard lock(_operation);
    if (!_tiles) {
        return;
    }
    const auto isBeyond = [this] {
        return (_cacheByteBudget > 0 && cachedBytes() > _cacheByteBudget) ||
               (_diskByteBudget > 0 && _tiles->liveBytesOnDisk() > liveOf(_diskByteBudget));
    };
    if (_cacheByteBudget > 0) {
        relieve(spillFrom(_cacheByteBudget));
    }
    if (!_dropsSteps && isBeyond()) {
        _tiles->waitForWrites();
    }
    while (_dropsSteps && isBeyond() && dropFarthest()) {
    }
    _tiles->compress();
}
