// SPDX-License-Identifier: MIT
// A history that writes itself down, and what is expected of its journal. What a tile looks like follows from its id.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <map>
#include <random>
#include <set>
#include <tuple>

#include "History/JournalReader.h"
#include "History/TileJournal.h"

namespace dabcanvas {

using Picture = std::map<std::uint32_t, std::uint64_t>;  // without transparent tiles

inline QByteArray tileBytes(std::uint64_t id) {
    QByteArray bytes(static_cast<qsizetype>(20 + id % 60), '\0');
    std::generate(bytes.begin(), bytes.end(),
                  [&] { return static_cast<char>((id = id * 6364136223846793005u + 1) >> 56); });
    return bytes;
}

inline std::vector<TileChange> changesOf(const Picture& from, const Picture& to) {
    Picture all;
    for (const auto& [index, tile] : from) {
        all[index] = 0;
    }
    for (const auto& [index, tile] : to) {
        all[index] = tile;
    }
    std::vector<TileChange> changes;
    for (const auto& [index, tile] : all) {
        const auto before = from.find(index);
        if (before == from.end() || before->second != tile) {
            changes.push_back({index, tile});
        }
    }
    return changes;
}

// A history at one moment, as its user would see it.
struct HistoryState {
    using Step = std::pair<QString, Picture>;
    std::vector<Step> undo, redo;  // the nearest to the current one last
    Step current;
    Picture canvas;

    friend bool operator==(const HistoryState&, const HistoryState&) = default;
};

// What was read, each tile byte for byte what it was.
inline HistoryState stateOf(const JournalContents& contents) {
    const auto stepOf = [&](int step) -> HistoryState::Step {
        if (step < 0) {
            return {};
        }
        Picture picture;
        for (const TileChange& tile : contents.pictureOf(step)) {
            picture[tile.index] = tile.tile;
            QString problem;
            EXPECT_EQ(contents.readTile(tile.tile, &problem), tileBytes(tile.tile)) << problem.toStdString();
        }
        return {contents.steps[static_cast<std::size_t>(step)].name, picture};
    };
    const auto isStep = [&](int step) {
        return step >= 0 && !contents.steps[static_cast<std::size_t>(step)].name.isEmpty();
    };
    for (const RecoveredStep& step : contents.steps) {
        for (const TileChange& change : step.changes) {
            EXPECT_TRUE(change.tile == 0 || contents.tiles.count(change.tile)) << change.tile;
        }
    }
    HistoryState state;
    const auto add = [&](const std::vector<int>& from, std::vector<HistoryState::Step>& to) {
        std::transform(from.begin(), from.end(), std::back_inserter(to), stepOf);
    };
    add(contents.undo, state.undo);
    add(contents.redo, state.redo);
    state.current = stepOf(isStep(contents.current) ? contents.current : -1);
    state.canvas = stepOf(contents.present).second;
    return state;
}

class JournalModel {
public:
    static constexpr JournalFormat kFormat{{640, 400}, 4};

    JournalModel(const QString& folder, std::int64_t segmentBytes, unsigned seed, bool kept = true)
        : _random(seed), _segmentBytes(segmentBytes), _folder(folder), _kept(kept) {
        start();
    }
    // Another process goes on.
    void goOn() {
        const auto contents = readJournal(_folder, TileCheck::whole, &problem);
        ASSERT_TRUE(contents) << problem.toStdString();
        start();
        ASSERT_TRUE(journal->adopt(*contents));
        _places.clear();
        _places.insert(contents->tiles.begin(), contents->tiles.end());
    }

    // From now on in another folder.
    void keepIn(const QString& folder) {
        _folder = folder;
        journal->keep(checkpoint());
        journal->appendState(allOf(_now), &problem);
        moveSparse(0);
    }

    void act() {
        const unsigned what = _random() % 10;
        if (what < 5) {
            paint();
            mark(QString::number(_random() % 30));  // names come again
        } else if (what < 7) {
            paint();
            appendState({});
        } else if (what < 8 && !_now.undo.empty()) {
            move(_now.undo, _now.redo);
        } else if (!_now.redo.empty()) {
            move(_now.redo, _now.undo);
        }
    }
    // Called after every call that appends.
    std::function<void(const HistoryState&)> appended = [](const HistoryState&) {};
    std::unique_ptr<TileJournal> journal;
    QString problem;

    const HistoryState& written() const { return _written; }
    const std::map<std::uint64_t, TilePlace>& places() const { return _places; }
    void moveSparse(double share) {
        for (const std::uint64_t id : journal->tilesInSparseSegments(share)) {
            const TilePlace old = _places.at(id);
            if (const auto place = journal->appendTile(id, tileBytes(id), 100, &problem)) {
                _places[id] = *place;
                journal->release(old);
            }
        }
    }
    bool checkpointHolds = true;

private:
    void start() {
        TileJournal::Settings settings{[this] { return _folder; }, kFormat, _segmentBytes, {}};
        settings.checkpoint = _kept ? checkpoint() : nullptr;
        journal = std::make_unique<TileJournal>(std::move(settings));
    }
    std::function<std::optional<JournalState>()> checkpoint() {
        return [this] { return checkpointHolds ? std::optional(allOf(_written)) : std::nullopt; };
    }
    void told(bool done) {
        if (done) {
            appended(_written);
        }
    }
    void paint() {
        for (unsigned i = _random() % 4; i < 4; ++i) {
            const std::uint32_t index = _random() % kFormat.tiles();
            if (_random() % 5 == 0) {
                _now.canvas.erase(index);
                continue;
            }
            ++_lastTile;
            const auto place = journal->appendTile(_lastTile, tileBytes(_lastTile), 100, &problem);
            if (place) {
                _now.canvas[index] = _lastTile;
                _places[_lastTile] = *place;
            }
            told(place.has_value());
        }
    }
    // A step of the canvas, in the place of those that could be redone, and of one of this name.
    void mark(const QString& name) {
        JournalStep step{name, _now.current.first, changesOf(_now.current.second, _now.canvas)};
        const auto isOld = [&](const HistoryState::Step& old) { return old.first == name; };
        _now.redo.clear();
        if (!_now.current.first.isEmpty() && _now.current.first != name) {
            _now.undo.push_back(_now.current);
        }
        _now.undo.erase(std::remove_if(_now.undo.begin(), _now.undo.end(), isOld), _now.undo.end());
        _now.current = {name, _now.canvas};
        if (_now.undo.size() > 6) {
            _now.undo.erase(_now.undo.begin());
        }
        appendState(std::move(step));
    }
    void move(std::vector<HistoryState::Step>& from, std::vector<HistoryState::Step>& to) {
        to.push_back(_now.current);
        _now.current = from.back();
        from.pop_back();
        _now.canvas = _now.current.second;
        appendState({});
    }
    // With as much kept as can be.
    static StackChange<QString> changeOf(const std::vector<HistoryState::Step>& before,
                                         const std::vector<HistoryState::Step>& after) {
        StackChange<QString> change;
        for (std::size_t dropped = 0; dropped < before.size(); ++dropped) {
            const auto begin = before.begin() + static_cast<std::ptrdiff_t>(dropped);
            const auto kept = static_cast<std::size_t>(
                std::mismatch(begin, before.end(), after.begin(), after.end()).first - begin);
            if (kept > change.kept) {
                change = {dropped, kept, {}};
            }
        }
        std::transform(after.begin() + static_cast<std::ptrdiff_t>(change.kept), after.end(),
                       std::back_inserter(change.added), [](const auto& step) { return step.first; });
        return change;
    }
    static JournalState stacksOf(const HistoryState& state, const HistoryState& before) {
        JournalState stacks;
        stacks.undo = changeOf(before.undo, state.undo);
        stacks.current = state.current.first;
        stacks.redo = changeOf(before.redo, state.redo);
        if (state.canvas != state.current.second) {
            stacks.present = {state.current.first, changesOf(state.current.second, state.canvas)};
        }
        return stacks;
    }
    void appendState(std::optional<JournalStep> step) {
        JournalState state = _failed ? allOf(_now) : stacksOf(_now, _written);
        if (step && !_failed) {
            state.steps.push_back(std::move(*step));
        }
        _failed = !journal->appendState(state, &problem);
        if (!_failed) {
            _written = _now;
            told(true);
            releaseUnused();
        }
    }
    void releaseUnused() {
        std::set<std::uint64_t> used;
        const auto use = [&](const Picture& picture) {
            std::for_each(picture.begin(), picture.end(),
                          [&](const auto& tile) { used.insert(tile.second); });
        };
        const auto useStep = [&](const HistoryState::Step& step) { use(step.second); };
        for (const HistoryState* state : {&_now, &_written}) {
            std::for_each(state->undo.begin(), state->undo.end(), useStep);
            std::for_each(state->redo.begin(), state->redo.end(), useStep);
            useStep(state->current);
            use(state->canvas);
        }
        for (auto place = _places.begin(); place != _places.end();) {
            if (used.count(place->first) == 0) {
                journal->release(place->second);
                place = _places.erase(place);
            } else {
                ++place;
            }
        }
    }
    static JournalState allOf(const HistoryState& history) {
        JournalState state = stacksOf(history, {});
        HistoryState::Step base;
        const auto add = [&](const HistoryState::Step& step) {
            state.steps.push_back({step.first, base.first, changesOf(base.second, step.second)});
            base = step;
        };
        std::for_each(history.undo.begin(), history.undo.end(), add);
        if (!history.current.first.isEmpty()) {
            add(history.current);
        }
        std::for_each(history.redo.rbegin(), history.redo.rend(), add);
        return state;
    }

    std::mt19937 _random;
    const std::int64_t _segmentBytes;
    QString _folder;
    const bool _kept;
    HistoryState _now, _written;
    bool _failed = false;
    std::uint64_t _lastTile = 0;
    std::map<std::uint64_t, TilePlace> _places;
};

}  // namespace dabcanvas
