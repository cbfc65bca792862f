// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include "History/StackChange.h"

namespace dabcanvas {

/// One of the two stacks of an undo history. What it costs does not depend on how many items there are.
class ItemStack {
public:
    const QStringList& items() const { return _items; }  ///< the nearest to the current one last
    bool isEmpty() const { return _items.isEmpty(); }
    qsizetype size() const { return _items.size(); }

    void push(const QString& item) { _items.append(item); }
    /// Of at least one.
    QString pop() {
        _kept = (std::min)(_kept, _items.size() - 1);
        return _items.takeLast();
    }
    /// The one farthest from the current item goes, of at least one.
    QString dropFarthest() {
        if (_kept > 0) {
            ++_dropped;
            --_kept;
        }
        return _items.takeFirst();
    }
    /// All of them go, and are returned.
    QStringList clear() {
        _kept = 0;
        return std::exchange(_items, {});
    }

    /// Since it was asked last.
    StackChange<QString> takeChange() {
        StackChange<QString> change{static_cast<std::size_t>(std::exchange(_dropped, 0)),
                                    static_cast<std::size_t>(_kept),
                                    {_items.begin() + _kept, _items.end()}};
        _kept = _items.size();
        return change;
    }

private:
    QStringList _items;
    qsizetype _dropped = 0, _kept = 0;
};

}  // namespace dabcanvas
