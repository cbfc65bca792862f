// SPDX-License-Identifier: MIT
#include "History/JournalStacks.h"

#include <algorithm>

namespace dabcanvas {

// ---- Writing

bool WrittenStacks::fits(const StacksChange& change) const {
    const auto fit = [](const JournalStack& stack, const StackChange<JournalEntry>& one) {
        return one.kept == 0 ||
               (one.dropped <= stack.entries.size() && one.kept <= stack.entries.size() - one.dropped);
    };
    return fit(_undo, change.undo) && fit(_redo, change.redo);
}

// So that all records since the whole one are not much longer than that is.
bool WrittenStacks::tellsAll(const StacksChange& change) const {
    return !_whole || change.isWhole() || _told > change.undo.sizeAfter() + change.redo.sizeAfter();
}

// The first place that a record tells.
std::uint32_t WrittenStacks::told(const JournalStack& stack, const StackChange<JournalEntry>& change,
                                  std::size_t which) const {
    const std::uint32_t first = stack.first + static_cast<std::uint32_t>(change.dropped);
    std::uint32_t from = first + static_cast<std::uint32_t>(change.kept);
    for (const Kept& kept : _lately) {
        from = std::min(from, kept[which]);
    }
    return std::max(first, from);
}

// from: the first place that is told; none: as a whole.
void WrittenStacks::put(RecordWriter& record, const JournalStack& stack,
                        const StackChange<JournalEntry>& change, std::optional<std::uint32_t> from) const {
    const std::uint32_t first = stack.first + static_cast<std::uint32_t>(change.dropped);
    const std::size_t begin = from.value_or(first) - stack.first;
    const std::size_t end = std::max(begin, change.dropped + change.kept);
    record.put(from ? first : 0).put(from.value_or(0));
    record.put(static_cast<std::uint32_t>(end - begin + change.added.size()));
    for (std::size_t i = begin; i < end; ++i) {
        record.put(stack.entries[i].serial).put(stack.entries[i].name);
    }
    for (const JournalEntry& entry : change.added) {
        record.put(entry.serial).put(entry.name);
    }
}

RecordWriter WrittenStacks::recordOf(const StacksChange& change, std::int64_t time) const {
    RecordWriter record(RecordType::stacks, 256);
    std::optional<std::uint32_t> undo, redo;
    TilePlace whole;
    std::uint32_t number = 0;
    if (!tellsAll(change)) {
        undo = told(_undo, change.undo, 0);
        redo = told(_redo, change.redo, 1);
        whole = *_whole;
        number = _number + 1;
    }
    const std::uint32_t follows = number == 0 ? 0 : _number - static_cast<std::uint32_t>(_lately.size());
    record.put(time).put(whole.segment).put(whole.offset).put(number).put(follows);
    put(record, _undo, change.undo, undo);
    record.put(change.current.serial).put(change.current.name);
    put(record, _redo, change.redo, redo);
    return record;
}

void WrittenStacks::apply(JournalStack& stack, const StackChange<JournalEntry>& change, bool restarts) {
    change.applyTo(stack.entries, [](const JournalEntry&) {});
    stack.first = restarts ? 0 : stack.first + static_cast<std::uint32_t>(change.dropped);
}

void WrittenStacks::become(const StacksChange& change, const TilePlace& place) {
    const bool restarts = tellsAll(change);
    const auto keptOf = [](const JournalStack& stack, const StackChange<JournalEntry>& one) {
        return stack.first + static_cast<std::uint32_t>(one.dropped + one.kept);
    };
    const auto toldOf = [&](const JournalStack& stack, const StackChange<JournalEntry>& one,
                            std::size_t which) {
        return keptOf(stack, one) + one.added.size() - told(stack, one, which);
    };
    if (restarts) {
        _whole = place;
        _number = 0;
        _told = 0;
        _lately.clear();
    } else {
        ++_number;
        _told += toldOf(_undo, change.undo, 0) + toldOf(_redo, change.redo, 1) + 1;
        _lately.push_back({keptOf(_undo, change.undo), keptOf(_redo, change.redo)});
        if (_lately.size() > kLost) {
            _lately.pop_front();
        }
    }
    apply(_undo, change.undo, restarts);
    apply(_redo, change.redo, restarts);
}

// ---- Reading

bool ReadStacks::parse(RecordParser& parser, JournalEntry* entry) {
    const bool taken = parser.take(&entry->serial) && parser.take(&entry->name);
    _lastSerial = std::max(_lastSerial, taken ? entry->serial : 0);
    return taken;
}

bool ReadStacks::parse(RecordParser& parser, Told* told) {
    std::uint32_t count = 0;
    bool sound = parser.take(&told->first) && parser.take(&told->from) && parser.take(&count);
    for (std::uint32_t i = 0; sound && i < count; ++i) {
        sound = parse(parser, &told->entries.emplace_back());
    }
    return sound && told->from >= told->first;
}

void ReadStacks::apply(JournalStack& stack, const Told& told, bool follows) {
    auto& entries = stack.entries;
    const auto end = stack.first + entries.size();
    if (!follows || told.from < stack.first || told.from > end) {  // what lies below is not known
        entries.clear();
        stack.first = told.from;
    } else {
        entries.resize(told.from - stack.first);
    }
    for (; !entries.empty() && stack.first < told.first; ++stack.first) {
        entries.pop_front();
    }
    entries.insert(entries.end(), told.entries.begin(), told.entries.end());
}

bool ReadStacks::take(RecordParser& parser, const TilePlace& place, std::int64_t* time) {
    std::uint32_t segment = 0, offset = 0, number = 0, follows = 0;
    Told undo, redo;
    JournalEntry current;
    if (!parser.take(time) || !parser.take(&segment) || !parser.take(&offset) || !parser.take(&number) ||
        !parser.take(&follows) || !parse(parser, &undo) || !parse(parser, &current) ||
        !parse(parser, &redo)) {
        return false;
    }
    if (segment == 0) {  // it is whole itself
        segment = place.segment;
        offset = place.offset;
        _undo = _redo = {};
    }
    const bool isSame = segment == _segment && offset == _offset;
    const bool isKnown = number == 0 || (isSame && _number >= follows && _number < number);
    apply(_undo, undo, isKnown);
    apply(_redo, redo, isKnown);
    _current = std::move(current);
    _segment = segment;
    _offset = offset;
    _number = number;
    return true;
}

}  // namespace dabcanvas
