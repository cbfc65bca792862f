// SPDX-License-Identifier: MIT
#include "History/UndoContainer.h"

#include <utility>

#include "History/HistoryLog.h"

UndoContainer& UndoContainer::defaultContainer() {
    static UndoContainer container;
    return container;
}

std::shared_ptr<UndoManager> UndoContainer::undoManagerForKey(const QString& key) const {
    const std::lock_guard lock(_mutex);
    return _managers.value(key);
}

void UndoContainer::setUndoManager(std::shared_ptr<UndoManager> manager, const QString& forKey) {
    if (forKey.isNull()) {
        qCWarning(lcHistory, "An undo manager needs a key that is not null");
        return;
    }
    // What was there is let go only outside the lock: ending an image history waits for its writes.
    const std::lock_guard lock(_mutex);
    auto& place = _managers[forKey];
    place.swap(manager);
    if (!place) {
        _managers.remove(forKey);
    }
}
