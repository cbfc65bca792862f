// SPDX-License-Identifier: MIT
#include "History/StepJournal.h"

#include <algorithm>
#include <utility>

namespace dabcanvas {

namespace {

// Of another size, or of more layers or fewer, it is none.
bool isBase(const HistoryChange::Step& step, const TilePicture& of) {
    return step.picture && step.picture->shape().hasGridOf(of.shape());
}

constexpr qsizetype kMostName = 1 << 14;  // a journal takes longer ones for nothing

bool isWritable(const HistoryChange::Step& step) {
    return step.picture && !step.name.isEmpty() && step.name.size() <= kMostName;
}

// Null for one that is not: a step of its name may have been.
QString nameOf(const HistoryChange::Step& step) {
    return isWritable(step) ? step.name : QString();
}

StackChange<QString> namesOf(const StackChange<HistoryChange::Step>& stack) {
    StackChange<QString> names{stack.dropped, stack.kept, {}};
    std::transform(stack.added.begin(), stack.added.end(), std::back_inserter(names.added), nameOf);
    return names;
}

}  // namespace

void HistoryChange::then(HistoryChange next) {
    undo.then(std::move(next.undo));
    redo.then(std::move(next.redo));
    current = std::move(next.current);
    if (next.present) {
        present = std::move(next.present);
    }
}

bool StepJournal::write(HistoryChange change, TileJournal& journal, QString* problem) {
    if (!change.present) {
        change.present = _present;
    }
    if (!_isTold) {
        HistoryChange whole = all();
        whole.then(std::move(change));
        change = std::move(whole);
        _undo.clear();
        _redo.clear();
        _current = {};
    }
    const auto state = told(change, _written, problem);
    const bool done = state && journal.appendState(*state, problem);
    if (!done && _isTold) {
        std::transform(_written.cbegin(), _written.cend(), std::back_inserter(_owned),
                       [](const Written& step) { return step.picture; });
        _owned.push_back(std::exchange(_present, nullptr));
        _written.clear();
    }
    apply(change, done);
    _isTold = done;
    return done;
}

HistoryChange StepJournal::all() const {
    return {{0, 0, {_undo.begin(), _undo.end()}}, {0, 0, {_redo.begin(), _redo.end()}}, _current, _present};
}

std::optional<JournalState> StepJournal::whole() const {
    QString problem;
    return _isTold ? told(all(), {}, &problem) : std::nullopt;
}

void StepJournal::forget() {
    _undo.clear();
    _redo.clear();
    _current = {};
    _present.reset();
    _written.clear();
    _owned.clear();
    _isTold = false;
}

// What is written of it stays as it was until the journal tells something else.
void StepJournal::apply(const HistoryChange& change, bool isWritten) {
    std::vector<QString> gone{_current.name};
    const auto let = [&](const Step& step) { gone.push_back(step.name); };
    change.undo.applyTo(_undo, let);
    change.redo.applyTo(_redo, let);
    _current = change.current;
    _present = change.present;
    if (!isWritten) {
        return;
    }
    const auto note = [&](const Step& step) {
        Written& written = _written[step.name];
        written.picture = step.picture;
        ++written.places;
    };
    std::for_each(change.undo.added.begin(), change.undo.added.end(), note);
    std::for_each(change.redo.added.begin(), change.redo.added.end(), note);
    note(_current);
    for (const QString& name : gone) {
        const auto step = _written.find(name);
        if (step != _written.end() && --step->places <= 0) {
            _written.erase(step);
        }
    }
    _owned.clear();
}

// The nearest one that is written.
StepJournal::Step StepJournal::lastKept(const StackChange<Step>& undo) const {
    for (std::size_t i = undo.dropped + undo.kept; i > undo.dropped; --i) {
        if (isWritable(_undo[i - 1])) {
            return _undo[i - 1];
        }
    }
    return {};
}

// Writing a tile may begin a file, which asks for the whole: nothing of this object changes meanwhile.
std::optional<JournalState> StepJournal::told(const HistoryChange& change, const Steps& written,
                                              QString* problem) const {
    JournalState state{{}, namesOf(change.undo), namesOf(change.redo), nameOf(change.current), {}};
    Step base = lastKept(change.undo);
    const Step none;
    bool sound = true;
    // As the change of the step before it, unless it is written already.
    const auto add = [&](const Step& step) {
        if (!sound || !isWritable(step)) {
            return;
        }
        if (written.value(step.name).picture != step.picture) {
            const Step& from = isBase(base, *step.picture) ? base : none;
            auto changed = difference(from.picture.get(), *step.picture, problem);
            sound = changed.has_value();
            state.steps.push_back(
                {step.name, from.name, std::move(changed).value_or(Changes()), step.picture->shape()});
        }
        base = step;
    };
    std::for_each(change.undo.added.begin(), change.undo.added.end(), add);
    add(change.current);
    if (sound && change.present && (!base.picture || *change.present != *base.picture)) {
        const Step& from = isBase(base, *change.present) ? base : none;
        auto changed = difference(from.picture.get(), *change.present, problem);
        sound = changed.has_value();
        state.present =
            JournalPresent{from.name, std::move(changed).value_or(Changes()), change.present->shape()};
    }
    std::for_each(change.redo.added.rbegin(), change.redo.added.rend(), add);
    return sound ? std::optional(std::move(state)) : std::nullopt;
}

std::optional<StepJournal::Changes> StepJournal::difference(const TilePicture* from, const TilePicture& to,
                                                            QString* problem) const {
    const TilePicture blank(to.shape());
    std::vector<TileChange> changes;
    bool sound = true;
    to.forEachDifference(from != nullptr ? *from : blank, [&](std::size_t index) {
        const TileRef& tile = to.at(index);
        const auto number = !sound ? std::nullopt
                            : tile ? _numbered(*tile, problem)
                                   : std::optional<std::uint64_t>(0);
        sound = number.has_value();
        changes.push_back({static_cast<std::uint32_t>(index), number.value_or(0)});
    });
    return sound ? std::optional(std::move(changes)) : std::nullopt;
}

}  // namespace dabcanvas
