// SPDX-License-Identifier: MIT
// The two stacks as a journal tells them: all of them now and then, and what changed in between. A record tells what the few
// before it did, too, so that those may be lost; where more are, it does not tell what lies below, which is left out then.
//
//     time                                     8
//     segment and offset of the whole          8   what this follows: 0 and 0, where it is whole itself
//     its number since then, from 1            4
//     the first that it may follow             4
//     undo stack, current entry, redo stack        a stack: first place that is in use, first place that is told anew, count
//                                                  (4 each), entries, the nearest last; places are counted since the whole
//     entry                                        number of its step (8), name
//     and the canvas, where it is not the current step: base (8), changes
#pragma once

#include <QString>
#include <array>
#include <deque>
#include <optional>

#include "History/JournalRecord.h"
#include "History/StackChange.h"

namespace dabcanvas {

struct JournalEntry {
    std::uint64_t serial = 0;  // of the step's record; 0: it has none
    QString name;
};

struct StacksChange {
    StackChange<JournalEntry> undo, redo;
    JournalEntry current;

    bool isWhole() const { return undo.kept == 0 && redo.kept == 0; }
};

struct JournalStack {
    std::deque<JournalEntry> entries;  // the nearest last
    std::uint32_t first = 0;           // place of the first one
};

// As they were written last.
class WrittenStacks {
public:
    // Whether there is what it keeps.
    bool fits(const StacksChange& change) const;
    // Begins the record that tells it.
    RecordWriter recordOf(const StacksChange& change, std::int64_t time) const;
    // It was written there.
    void become(const StacksChange& change, const TilePlace& place);

private:
    static constexpr std::size_t kLost = 7;  // records in a row that may be

    using Kept = std::array<std::uint32_t, 2>;  // up to which place, of undo and redo stack
    bool tellsAll(const StacksChange& change) const;
    std::uint32_t told(const JournalStack& stack, const StackChange<JournalEntry>& change,
                       std::size_t which) const;
    void put(RecordWriter& record, const JournalStack& stack, const StackChange<JournalEntry>& change,
             std::optional<std::uint32_t> from) const;
    static void apply(JournalStack& stack, const StackChange<JournalEntry>& change, bool restarts);

    JournalStack _undo, _redo;
    std::optional<TilePlace> _whole;
    std::uint32_t _number = 0;  // of records since
    std::size_t _told = 0;      // entries in them
    std::deque<Kept> _lately;   // of the last of them
};

// As they come out of the records, in their order.
class ReadStacks {
public:
    // Takes a record up to where the canvas is told. False, and nothing changed, for none.
    bool take(RecordParser& parser, const TilePlace& place, std::int64_t* time);

    const std::deque<JournalEntry>& undo() const { return _undo.entries; }  // the nearest last
    const std::deque<JournalEntry>& redo() const { return _redo.entries; }
    const JournalEntry& current() const { return _current; }
    std::uint64_t lastSerial() const { return _lastSerial; }  // the greatest of all that were read

private:
    struct Told {
        std::uint32_t first = 0, from = 0;
        std::vector<JournalEntry> entries;
    };
    bool parse(RecordParser& parser, JournalEntry* entry);
    bool parse(RecordParser& parser, Told* told);
    static void apply(JournalStack& stack, const Told& told, bool follows);

    JournalStack _undo, _redo;
    JournalEntry _current;
    std::uint32_t _segment = 0, _offset = 0, _number = 0;
    std::uint64_t _lastSerial = 0;
};

}  // namespace dabcanvas
