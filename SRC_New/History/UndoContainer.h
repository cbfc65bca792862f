// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <memory>
#include <mutex>

#include "History/UndoManager.h"
#include "Maths/Export.h"

/// Undo managers by key, so that several canvases or documents each have a history of their own.
///
/// Owns     its managers, together with whoever else holds them.
/// Thread   any.
/// Errors   never throws; a null key gets one log line, and null or nothing.
class DABCANVAS_CANVAS_API UndoContainer {
public:
    UndoContainer() = default;
    UndoContainer(const UndoContainer&) = delete;
    UndoContainer& operator=(const UndoContainer&) = delete;

    /// The one that all of the process share. Take image histories out of it before main() returns.
    static UndoContainer& defaultContainer();

    /// Null when there is none.
    std::shared_ptr<UndoManager> undoManagerForKey(const QString& key) const;
    /// Replaces an earlier one; a null manager removes it.
    void setUndoManager(std::shared_ptr<UndoManager> manager, const QString& forKey);

private:
    mutable std::mutex _mutex;
    QHash<QString, std::shared_ptr<UndoManager>> _managers;
};
