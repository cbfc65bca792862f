// SPDX-License-Identifier: MIT
// The choice of what leaves the cache of an undo history; nothing for embedders.
#pragma once

#include <QString>
#include <QStringList>

namespace dabcanvas {

// The cached name farthest from the current step: the undo stack's oldest, or the redo stack's that lies
// deepest. Of names equally far, the one cached first. Null when none is in a stack or current.
// Deliberate: once a redo name was chosen, undo names are not considered any more; and the current name, as
// distance 0, only while nothing else was.
QString farthestFrom(const QStringList& cachedNames, const QStringList& undoItems,
                     const QStringList& redoItems, const QString& currentItem);

}  // namespace dabcanvas
