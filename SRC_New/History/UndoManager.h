// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSemaphore>
#include <QString>
#include <QStringList>
#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>

#include "History/ItemStack.h"
#include "Maths/Export.h"

/// An undo history of strings: a current item, the earlier ones and the undone ones.
///
/// Thread   any. add, undo, redo and the resets exclude each other; queries do not wait for them.
/// Errors   never throws. A null string is no item: false, or nothing happens. An empty string is one.
class DABCANVAS_CANVAS_API UndoManager {
public:
    /// Empty stacks, the current item "InitString", or the one given. The step count is 0: set it first, as
    /// with 0 at most one undo item is ever kept.
    static std::unique_ptr<UndoManager> init();
    static std::unique_ptr<UndoManager> initWithCurrentItem(const QString& item);

    virtual ~UndoManager() = default;
    UndoManager(const UndoManager&) = delete;
    UndoManager& operator=(const UndoManager&) = delete;

    QString currentStringItem() const;
    virtual void setCurrentItem(const QString& item);
    QStringList undoItems() const;  ///< oldest first
    QStringList redoItems() const;  ///< the one undone last stands last

    /// The current item becomes the last undo item, `item` the current one; what could be redone is dropped.
    /// When the step count is reached, one undo item, the oldest, is dropped.
    virtual bool addItemWithString(const QString& item);
    /// Whether there is a step to go back to, and forth.
    bool canUndo() const;
    bool canRedo() const;
    /// False, and nothing changed, when there is nothing to undo or processCount() is not 0.
    virtual bool undo();
    virtual bool redo();

    /// The most undo items wanted. Lowering it drops nothing at once.
    unsigned undoStepCount() const { return _undoStepCount; }
    virtual void setUndoStepCount(unsigned count) { _undoStepCount = count; }

    virtual void clearUndoItems();
    virtual void clearRedoItems();
    /// Clears both stacks and sets processCount() to 0; the current item stays, or becomes `item`.
    virtual void reset();
    virtual void resetWithCurrentItem(const QString& item);

    /// How many background operations run that undo and redo must not overtake. One that a reset overtook no
    /// longer counts: its end lowers nothing.
    unsigned processCount() const;
    using ProcessTicket = std::uint32_t;
    /// A background operation begins; the ticket is for its end.
    ProcessTicket beginProcess();
    void endProcess(ProcessTicket ticket);  ///< once for each beginProcess(), on any thread

protected:
    UndoManager() = default;
    /// What addItemWithString() drops, in the order in which it goes; not null.
    bool addItem(const QString& item, QStringList* dropped);
    QString dropOldestUndoItem();  ///< of at least one
    QString dropLastRedoItem();    ///< that redo() would reach last; of at least one
    qsizetype undoCount() const;
    qsizetype usesOf(const QString& item) const;  ///< in how many places it is, current or in a stack
    enum class Way : std::uint8_t { back, forth };
    /// undo() or redo(), also while background operations run.
    bool stepAnyway(Way way);
    /// What became of the stacks, and what is current.
    struct Changes {
        dabcanvas::StackChange<QString> undo, redo;
        QString current;
    };
    /// Of the stacks since it was asked last.
    Changes takeChanges();

private:
    using ItemStack = dabcanvas::ItemStack;
    bool step(ItemStack& from, ItemStack& to, bool anyway);
    void select(const QString& item);
    void letGo(const QString& item);
    void forgetProcesses();

    QSemaphore _itemAccessSemaphore{1};  // held for the length of a compound change
    mutable std::mutex _fields;          // held for moments: guards the four below
    ItemStack _undoItems, _redoItems;
    QString _selectItem = QStringLiteral("InitString");
    QHash<QString, qsizetype> _uses{{_selectItem, 1}};
    std::atomic<std::uint64_t> _processes{0};  // high half: resets so far, low half: the count
    std::atomic<unsigned> _undoStepCount{0};
};
