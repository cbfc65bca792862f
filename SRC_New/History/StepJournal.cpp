// SPDX-License-Identifier: MIT
#include "History/StepJournal.h"

#include <algorithm>
#include <utility>

namespace dabcanvas {

bool StepJournal::write(const HistoryMoment& moment, TileJournal& journal, QString* problem) {
    const auto state = changes(moment, false, problem);
    if (!state || !journal.appendState(*state, problem)) {
        _written.clear();
        return false;
    }
    _last = moment;  // what only the one before held goes now, that the journal does without it
    _written.clear();
    const auto note = [&](const HistoryMoment::Step& step) { _written.insert(step.name, step.picture); };
    std::for_each(moment.undo.begin(), moment.undo.end(), note);
    note(moment.current);
    std::for_each(moment.redo.begin(), moment.redo.end(), note);
    return true;
}

std::optional<JournalState> StepJournal::whole() {
    QString problem;
    return _last ? changes(*_last, true, &problem) : std::nullopt;
}

std::optional<JournalState> StepJournal::changes(const HistoryMoment& moment, bool all, QString* problem) {
    if (all) {
        _written.clear();
    }
    JournalState state;
    _base = {};
    bool sound = true;
    const auto addTo = [&](QStringList* names, const HistoryMoment::Step& step) {
        sound = sound && add(step, state, problem);
        if (names != nullptr) {
            names->append(step.name);
        }
    };
    for (const auto& step : moment.undo) {
        addTo(&state.undo, step);
    }
    addTo(nullptr, moment.current);
    state.current = moment.current.name;
    const HistoryMoment::Step& base = moment.current.picture ? moment.current : _base;
    if (sound && moment.present && (!base.picture || *moment.present != *base.picture)) {
        auto changed = difference(base.picture.get(), *moment.present, problem);
        sound = changed.has_value();
        state.present = JournalPresent{base.name, std::move(changed).value_or(std::vector<TileChange>())};
    }
    for (const auto& step : moment.redo) {
        addTo(&state.redo, step);
    }
    return sound ? std::optional(std::move(state)) : std::nullopt;
}

// As the change of the step before it, unless it is written already.
bool StepJournal::add(const HistoryMoment::Step& step, JournalState& state, QString* problem) {
    if (!step.picture) {
        return true;
    }
    if (_written.value(step.name) != step.picture) {
        auto changed = difference(_base.picture.get(), *step.picture, problem);
        if (!changed) {
            return false;
        }
        state.steps.push_back({step.name, _base.name, std::move(*changed)});
    }
    _base = step;
    return true;
}

std::optional<std::vector<TileChange>> StepJournal::difference(const TilePicture* from, const TilePicture& to,
                                                               QString* problem) {
    const TilePicture blank(to.layout().picture());
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
