// SPDX-License-Identifier: MIT
#include "History/JournalReader.h"

#include <QDir>
#include <algorithm>
#include <map>
#include <numeric>
#include <utility>

#include "History/JournalScan.h"
#include "History/JournalStacks.h"
#include "History/SegmentFile.h"

namespace dabcanvas {

namespace {

constexpr std::uint32_t kNone = UINT32_MAX;

// All that the records tell, put together as a history.
class Assembly {
public:
    Assembly(JournalContents& contents, TileCheck check) : _contents(contents), _check(check) {}
    void read(const JournalSegment& segment);
    void finish();

private:
    struct Node {
        RecoveredStep step;
        std::uint32_t child = kNone, sibling = kNone;  // who is based on it; the next one on the same base
        bool whole = false, needed = false;
    };
    void takeTile(const RecordHead& head, const JournalSegment& segment, std::uint32_t offset);
    void takeStep(RecordParser& parser);
    void takeStacks(RecordParser& parser, const TilePlace& place);
    void takeCanvas(RecordParser& parser);
    std::optional<int> addNode(RecoveredStep step, std::uint64_t base);
    void note(std::uint64_t serial) { _contents.lastSerial = std::max(_contents.lastSerial, serial); }

    void findWhole();
    int wholeNodeOf(const JournalEntry& entry);
    void choosePosition();
    int latestWhole() const;
    void emitNeeded();
    void keepNamedTiles();

    JournalContents& _contents;
    const TileCheck _check;
    std::vector<char> _payload;
    std::vector<Node> _nodes;
    std::unordered_map<std::uint64_t, int> _bySerial;
    ReadStacks _stacks;
    int _present = -1;
    std::uint32_t _firstRoot = kNone;
};

// ---- Records

void Assembly::read(const JournalSegment& segment) {
    JournalScan scan(segment, _contents.journal);
    while (const auto found = scan.next()) {
        if (found->head.type == RecordType::tile) {
            takeTile(found->head, segment, found->offset);
        } else if (scan.readPayload(*found, &_payload)) {
            RecordParser parser(_payload.data(), _payload.size());
            if (found->head.type == RecordType::step) {
                takeStep(parser);
            } else if (found->head.type == RecordType::stacks) {
                takeStacks(parser, {segment.number, found->offset, 0, 0});
            }
        }
    }
}

void Assembly::takeTile(const RecordHead& head, const JournalSegment& segment, std::uint32_t offset) {
    if (head.length <= kTileHead || head.length > kTileHead + _contents.format.mostTileBytes()) {
        return;
    }
    TilePlace place{segment.number, offset, static_cast<std::uint16_t>(head.length - kTileHead), 0};
    _payload.resize(_check == TileCheck::whole ? head.length : kTileHead);
    if (!segment.file->read(std::int64_t{offset} + kRecordHead, _payload.data(), _payload.size()) ||
        (_check == TileCheck::whole && !isWhole(head, _payload.data()))) {
        return;
    }
    std::uint64_t id = 0;
    RecordParser parser(_payload.data(), _payload.size());
    parser.take(&id);
    parser.take(&place.rawSize);
    if (id != 0 && place.rawSize >= place.size && place.rawSize <= _contents.format.mostTileBytes()) {
        _contents.tiles[id] = place;
        _contents.lastTile = std::max(_contents.lastTile, id);
    }
}

void Assembly::takeStep(RecordParser& parser) {
    RecoveredStep step;
    std::uint64_t base = 0;
    std::int64_t time = 0;
    if (parser.take(&step.serial) && parser.take(&base) && parser.take(&time) && parser.take(&step.name) &&
        parser.take(&step.picture, &step.changes, _contents.format) && parser.isDone()) {
        _contents.lastRecord = std::max(_contents.lastRecord, time);
        note(step.serial);
        const std::uint64_t serial = step.serial;
        const auto node = addNode(std::move(step), base);
        if (node) {
            _bySerial[serial] = *node;
        }
    }
}

// And the rest of the record, which may tell the canvas.
void Assembly::takeStacks(RecordParser& parser, const TilePlace& place) {
    std::int64_t time = 0;
    const bool taken = _stacks.take(parser, place, &time);
    note(_stacks.lastSerial());
    if (taken) {
        _contents.lastRecord = std::max(_contents.lastRecord, time);
        _present = -1;
        takeCanvas(parser);
    }
}

void Assembly::takeCanvas(RecordParser& parser) {
    RecoveredStep step;
    std::uint64_t base = 0;
    if (parser.take(&base) && parser.take(&step.picture, &step.changes, _contents.format) &&
        parser.isDone()) {
        _present = addNode(std::move(step), base).value_or(-1);
    }
}

std::optional<int> Assembly::addNode(RecoveredStep step, std::uint64_t base) {
    note(base);
    for (const TileChange& change : step.changes) {
        _contents.lastTile = std::max(_contents.lastTile, change.tile);
    }
    if (base != 0) {
        const auto known = _bySerial.find(base);
        if (known == _bySerial.end() ||
            !_nodes[static_cast<std::size_t>(known->second)].step.picture.hasGridOf(step.picture)) {
            return {};
        }
        step.base = known->second;
    }
    Node node;
    const auto number = static_cast<std::uint32_t>(_nodes.size());
    std::uint32_t& first = step.base < 0 ? _firstRoot : _nodes[static_cast<std::size_t>(step.base)].child;
    node.sibling = std::exchange(first, number);
    node.step = std::move(step);
    _nodes.push_back(std::move(node));
    return static_cast<int>(number);
}

// ---- What is whole

// Walks the tree of bases with one table of tiles, which each step changes on the way down and back on the way up.
void Assembly::findWhole() {
    std::unordered_map<std::uint32_t, std::uint64_t> table;
    std::vector<TileChange> former;  // what the steps on the way have replaced, the last one's at the end
    struct Level {
        std::uint32_t node;
        std::size_t former;
    };
    std::vector<Level> way;
    std::size_t missing = 0;
    const auto put = [&](const TileChange& change) {
        std::uint64_t& tile = table[change.index];
        const auto isMissing = [&] { return tile != 0 && _contents.tiles.count(tile) == 0 ? 1u : 0u; };
        missing -= isMissing();
        const TileChange before{change.index, std::exchange(tile, change.tile)};
        missing += isMissing();
        return before;
    };
    std::uint32_t next = _firstRoot;
    while (next != kNone || !way.empty()) {
        if (next != kNone) {
            way.push_back({next, former.size()});
            Node& node = _nodes[next];
            for (const TileChange& change : node.step.changes) {
                former.push_back(put(change));
            }
            node.whole = missing == 0;
            next = node.child;
        } else {
            const Level done = way.back();
            way.pop_back();
            for (; former.size() > done.former; former.pop_back()) {
                put(former.back());
            }
            next = _nodes[done.node].sibling;
        }
    }
}

int Assembly::wholeNodeOf(const JournalEntry& entry) {
    const auto found = _bySerial.find(entry.serial);
    if (entry.serial == 0 || found == _bySerial.end() ||
        !_nodes[static_cast<std::size_t>(found->second)].whole) {
        return -1;
    }
    return found->second;
}

int Assembly::latestWhole() const {
    const auto node = std::find_if(_nodes.rbegin(), _nodes.rend(), [](const Node& one) { return one.whole; });
    return static_cast<int>(_nodes.rend() - node) - 1;
}

// Where the current step is lost, the one before it takes its place; else the one after it, or whatever there is.
void Assembly::choosePosition() {
    const auto wholeOf = [&](const std::deque<JournalEntry>& entries, std::vector<int>* result) {
        for (const JournalEntry& entry : entries) {
            const int node = wholeNodeOf(entry);
            if (node >= 0) {
                result->push_back(node);
            }
        }
    };
    wholeOf(_stacks.undo(), &_contents.undo);
    wholeOf(_stacks.redo(), &_contents.redo);
    _contents.current = wholeNodeOf(_stacks.current());
    _contents.present = _present >= 0 && _nodes[static_cast<std::size_t>(_present)].whole ? _present : -1;
    if (_contents.current < 0 && !_contents.undo.empty()) {
        _contents.current = _contents.undo.back();
        _contents.undo.pop_back();
    } else if (_contents.current < 0 && !_contents.redo.empty()) {
        _contents.current = _contents.redo.back();
        _contents.redo.pop_back();
    } else if (_contents.current < 0) {
        _contents.current = _contents.present >= 0 ? _contents.present : latestWhole();
    }
    if (_contents.present < 0) {
        _contents.present = _contents.current;
    }
}

// ---- What is told

void Assembly::emitNeeded() {
    std::vector<int*> places{&_contents.current, &_contents.present};
    const auto all = [&](std::vector<int>& stack) {
        std::for_each(stack.begin(), stack.end(), [&](int& node) { places.push_back(&node); });
    };
    all(_contents.undo);
    all(_contents.redo);
    for (const int* place : places) {
        for (int at = *place; at >= 0 && !_nodes[static_cast<std::size_t>(at)].needed;
             at = _nodes[static_cast<std::size_t>(at)].step.base) {
            _nodes[static_cast<std::size_t>(at)].needed = true;
        }
    }
    std::vector<int> emitted(_nodes.size(), -1);
    for (std::size_t i = 0; i < _nodes.size(); ++i) {
        if (_nodes[i].needed) {
            RecoveredStep& step = _contents.steps.emplace_back(std::move(_nodes[i].step));
            step.base = step.base < 0 ? -1 : emitted[static_cast<std::size_t>(step.base)];
            emitted[i] = static_cast<int>(_contents.steps.size()) - 1;
        }
    }
    std::vector<bool> named(_contents.steps.size(), false);
    for (int* place : places) {
        *place = *place < 0 ? -1 : emitted[static_cast<std::size_t>(*place)];
        if (*place >= 0) {
            named[static_cast<std::size_t>(*place)] = true;
        }
    }
    for (std::size_t i = 0; i < named.size(); ++i) {
        if (!named[i]) {
            _contents.steps[i].name.clear();
        }
    }
}

// A base that is in no stack may name tiles that are gone: those that build on it have others there.
void Assembly::keepNamedTiles() {
    std::unordered_map<std::uint64_t, TilePlace> named;
    for (RecoveredStep& step : _contents.steps) {
        for (TileChange& change : step.changes) {
            const auto tile = _contents.tiles.find(change.tile);
            if (tile == _contents.tiles.end()) {
                change.tile = 0;
            } else {
                named.insert(*tile);
            }
        }
    }
    _contents.tiles = std::move(named);
}

void Assembly::finish() {
    findWhole();
    choosePosition();
    emitNeeded();
    keepNamedTiles();
}

}  // namespace

std::int64_t JournalContents::bytes() const {
    return std::accumulate(
        segments.begin(), segments.end(), std::int64_t{0},
        [](std::int64_t sum, const JournalSegment& segment) { return sum + segment.size; });
}

std::vector<TileChange> JournalContents::pictureOf(int step) const {
    std::vector<int> way;
    for (; step >= 0; step = steps[static_cast<std::size_t>(step)].base) {
        way.push_back(step);
    }
    std::map<std::uint32_t, std::uint64_t> table;
    for (; !way.empty(); way.pop_back()) {
        for (const TileChange& change : steps[static_cast<std::size_t>(way.back())].changes) {
            table[change.index] = change.tile;
        }
    }
    std::vector<TileChange> picture;
    for (const auto& [index, tile] : table) {
        if (tile != 0) {
            picture.push_back({index, tile});
        }
    }
    return picture;
}

QByteArray JournalContents::readTile(std::uint64_t id, QString* problem) const {
    const auto tile = tiles.find(id);
    for (const JournalSegment& segment : segments) {
        if (tile != tiles.end() && segment.number == tile->second.segment) {
            return readTileRecord(*segment.file, journal, tile->second, id, problem);
        }
    }
    *problem = QStringLiteral("there is no such tile");
    return {};
}

std::optional<JournalContents> readJournal(const QString& folder, TileCheck check, QString* problem) {
    JournalContents contents;
    problem->clear();
    if (!openJournal(folder, &contents, problem)) {
        return {};
    }
    Assembly assembly(contents, check);
    for (const JournalSegment& segment : contents.segments) {
        assembly.read(segment);
    }
    assembly.finish();
    return contents;
}

bool isBarren(const QString& folder) {
    QString problem;
    const auto contents = readJournal(folder, TileCheck::heads, &problem);
    return contents ? contents->present < 0 : !mayHoldJournal(folder);
}

}  // namespace dabcanvas
