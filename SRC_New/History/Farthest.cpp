// SPDX-License-Identifier: MIT
#include "History/Farthest.h"

#include <QHash>

namespace dabcanvas {

namespace {

// How far each item of a stack is from the current one, the last being nearest. Of equal items the first
// counts.
QHash<QString, qsizetype> distances(const QStringList& stack) {
    QHash<QString, qsizetype> all;
    for (qsizetype i = stack.size(); i-- > 0;) {
        all[stack[i]] = stack.size() - i;
    }
    return all;
}

}  // namespace

QString farthestFrom(const QStringList& cachedNames, const QStringList& undoItems,
                     const QStringList& redoItems, const QString& currentItem) {
    const auto undo = distances(undoItems);
    const auto redo = distances(redoItems);
    QString chosen;
    qsizetype best = -1;
    bool redoChosen = false;
    for (const QString& name : cachedNames) {
        const auto inUndo = redoChosen ? undo.cend() : undo.constFind(name);
        if (inUndo != undo.cend()) {
            if (*inUndo > best) {
                best = *inUndo;
                chosen = name;
            }
            continue;
        }
        const auto inRedo = redo.constFind(name);
        if (inRedo != redo.cend()) {
            if (*inRedo > best) {
                best = *inRedo;
                chosen = name;
                redoChosen = true;
            }
        } else if (name == currentItem && best == -1) {
            best = 0;
            chosen = name;
        }
    }
    return chosen;
}

}  // namespace dabcanvas
