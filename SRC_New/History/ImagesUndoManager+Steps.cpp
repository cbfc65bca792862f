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
#include "History/UndoRecovery.h"
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

// While a canvas changes its history, and where that ends.
class ImagesUndoManager::Busy {
public:
    explicit Busy(ImagesUndoManager& history)
        : _history(history), _before(std::exchange(history._isBusy, true)) {}
    ~Busy() { _history._isBusy = _before; }
    Q_DISABLE_COPY_MOVE(Busy)

private:
    ImagesUndoManager& _history;
    const bool _before;
};

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
    const std::lock_guard lock(_operation);
    const Busy busy(*this);
    if (!isOwn(picture)) {
        return addItemWithImageData(picture);
    }
    beginItem();
    _store.cache(currentStringItem(), std::make_shared<Snapshot>(picture));
    keepToBudgets();
    return true;
}

bool ImagesUndoManager::resetWithPictureOfCurrentItem(const StepPicture& picture) {
    const std::lock_guard lock(_operation);
    const Busy busy(*this);
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

HistoryChange ImagesUndoManager::takeChange(bool all) {
    const auto step = [this](const QString& name) {
        return HistoryChange::Step{name, _store.step(name).tiles()};
    };
    const auto steps = [&](const StackChange<QString>& names) {
        StackChange<HistoryChange::Step> change{names.dropped, names.kept, {}};
        std::transform(names.added.begin(), names.added.end(), std::back_inserter(change.added), step);
        return change;
    };
    Changes changes = takeChanges();
    if (std::exchange(_picturesChanged, false) || all) {
        const QStringList undo = undoItems(), redo = redoItems();
        changes.undo = {0, 0, {undo.begin(), undo.end()}};
        changes.redo = {0, 0, {redo.begin(), redo.end()}};
    }
    return {steps(changes.undo), steps(changes.redo), step(changes.current), nullptr};
}

void ImagesUndoManager::writeDown(std::shared_ptr<const TilePicture> present) {
    const std::lock_guard lock(_operation);
    HistoryChange change = takeChange(!std::exchange(_writesDown, true));
    change.present = std::move(present);
    _tiles->note(std::move(change), UndoRecovery::syncs());
}

void ImagesUndoManager::endWritingDown() {
    const std::lock_guard lock(_operation);
    _writesDown = false;
}

void ImagesUndoManager::tell() {
    if (_writesDown && !_isBusy) {
        writeDown(nullptr);
    }
}

// Which is told with what became of the stacks where it is the current one's alone.
void ImagesUndoManager::replaced(const QString& name) {
    const bool isCurrent = name == currentStringItem();
    _picturesChanged = _picturesChanged || usesOf(name) > (isCurrent ? 1 : 0);
}

void ImagesUndoManager::become(const HistoryChange& all) {
    const std::lock_guard lock(_operation);
    const Busy busy(*this);
    auto steps = all.undo.added;
    steps.push_back(all.current);
    steps.insert(steps.end(), all.redo.added.rbegin(), all.redo.added.rend());
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
    for (std::size_t i = 0; i < all.redo.added.size(); ++i) {
        stepAnyway(Way::back);
    }
    UndoManager::setUndoStepCount(std::max(most, static_cast<unsigned>(all.undo.added.size())));
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
    tell();
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
    tell();
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
    if (canUndo()) {
        letGoOfUnused({dropOldestUndoItem()});
        ++_stepsDropped;
    } else if (canRedo()) {
        letGoOfUnused({dropLastRedoItem()});
    } else {
        return false;
    }
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
