// SPDX-License-Identifier: MIT
#include "History/UndoManager.h"

#include <algorithm>

namespace {

constexpr std::uint64_t kCountBits = 0xffffffffu;

// The semaphore for one scope.
class Compound {
public:
    explicit Compound(QSemaphore& semaphore) : _semaphore(semaphore) { _semaphore.acquire(); }
    ~Compound() { _semaphore.release(); }
    Compound(const Compound&) = delete;
    Compound& operator=(const Compound&) = delete;

private:
    QSemaphore& _semaphore;
};

}  // namespace

std::unique_ptr<UndoManager> UndoManager::init() {
    return std::unique_ptr<UndoManager>(new UndoManager);
}

std::unique_ptr<UndoManager> UndoManager::initWithCurrentItem(const QString& item) {
    auto manager = init();
    manager->setCurrentItem(item);
    return manager;
}

QString UndoManager::currentStringItem() const {
    const std::lock_guard lock(_fields);
    return _selectItem;
}

void UndoManager::setCurrentItem(const QString& item) {
    if (item.isNull()) {
        return;
    }
    const std::lock_guard lock(_fields);
    letGo(_selectItem);
    select(item);
}

void UndoManager::select(const QString& item) {
    _selectItem = item;
    ++_uses[item];
}

void UndoManager::letGo(const QString& item) {
    const auto uses = _uses.find(item);
    if (--*uses == 0) {
        _uses.erase(uses);
    }
}

qsizetype UndoManager::usesOf(const QString& item) const {
    const std::lock_guard lock(_fields);
    return _uses.value(item);
}

QStringList UndoManager::undoItems() const {
    const std::lock_guard lock(_fields);
    return _undoItems.items();
}

QStringList UndoManager::redoItems() const {
    const std::lock_guard lock(_fields);
    return _redoItems.items();
}

qsizetype UndoManager::undoCount() const {
    const std::lock_guard lock(_fields);
    return _undoItems.size();
}

bool UndoManager::canUndo() const {
    return undoCount() != 0;
}

bool UndoManager::canRedo() const {
    const std::lock_guard lock(_fields);
    return !_redoItems.isEmpty();
}

UndoManager::Changes UndoManager::takeChanges() {
    const std::lock_guard lock(_fields);
    return {_undoItems.takeChange(), _redoItems.takeChange(), _selectItem};
}

bool UndoManager::addItemWithString(const QString& item) {
    QStringList dropped;
    return addItem(item, &dropped);
}

bool UndoManager::addItem(const QString& item, QStringList* dropped) {
    if (item.isNull()) {
        return false;
    }
    const Compound compound(_itemAccessSemaphore);
    const std::lock_guard lock(_fields);
    // Deliberate: one item an add, so a lowered step count takes effect gradually; 0 keeps one.
    if (!_undoItems.isEmpty() && static_cast<std::uint64_t>(_undoItems.size()) >= _undoStepCount) {
        dropped->append(_undoItems.dropFarthest());
    }
    _undoItems.push(_selectItem);
    select(item);
    dropped->append(_redoItems.clear());
    std::for_each(dropped->cbegin(), dropped->cend(), [this](const QString& one) { letGo(one); });
    return true;
}

QString UndoManager::dropOldestUndoItem() {
    const Compound compound(_itemAccessSemaphore);
    const std::lock_guard lock(_fields);
    const QString item = _undoItems.dropFarthest();
    letGo(item);
    return item;
}

QString UndoManager::dropLastRedoItem() {
    const Compound compound(_itemAccessSemaphore);
    const std::lock_guard lock(_fields);
    const QString item = _redoItems.dropFarthest();
    letGo(item);
    return item;
}

bool UndoManager::undo() {
    return step(_undoItems, _redoItems, false);
}

bool UndoManager::redo() {
    return step(_redoItems, _undoItems, false);
}

bool UndoManager::stepAnyway(Way way) {
    return way == Way::back ? step(_undoItems, _redoItems, true) : step(_redoItems, _undoItems, true);
}

bool UndoManager::step(ItemStack& from, ItemStack& to, bool anyway) {
    const Compound compound(_itemAccessSemaphore);
    const std::lock_guard lock(_fields);
    if (from.isEmpty() || (!anyway && processCount() != 0)) {
        return false;
    }
    to.push(_selectItem);
    _selectItem = from.pop();
    return true;
}

void UndoManager::clearUndoItems() {
    const std::lock_guard lock(_fields);
    const QStringList gone = _undoItems.clear();
    std::for_each(gone.begin(), gone.end(), [this](const QString& item) { letGo(item); });
}

void UndoManager::clearRedoItems() {
    const std::lock_guard lock(_fields);
    const QStringList gone = _redoItems.clear();
    std::for_each(gone.begin(), gone.end(), [this](const QString& item) { letGo(item); });
}

void UndoManager::reset() {
    const Compound compound(_itemAccessSemaphore);
    clearUndoItems();
    clearRedoItems();
    forgetProcesses();
}

void UndoManager::resetWithCurrentItem(const QString& item) {
    const Compound compound(_itemAccessSemaphore);
    clearUndoItems();
    setCurrentItem(item);
    clearRedoItems();
    forgetProcesses();
}

unsigned UndoManager::processCount() const {
    return static_cast<unsigned>(_processes & kCountBits);
}

UndoManager::ProcessTicket UndoManager::beginProcess() {
    return static_cast<ProcessTicket>(++_processes >> 32);
}

void UndoManager::endProcess(ProcessTicket ticket) {
    std::uint64_t seen = _processes;
    while (seen >> 32 == ticket && (seen & kCountBits) != 0 &&
           !_processes.compare_exchange_weak(seen, seen - 1)) {
    }
}

void UndoManager::forgetProcesses() {
    std::uint64_t seen = _processes;
    while (!_processes.compare_exchange_weak(seen, ((seen >> 32) + 1) << 32)) {
    }
}
