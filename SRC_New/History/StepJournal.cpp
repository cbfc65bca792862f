// SPDX-License-Identifier: MIT
#include "History/StepJournal.h"

#include <algorithm>
#include <utility>

namespace dabcanvas {

namespace {

constexpr qsizetype kMostName = 1 << 14;  // a journal takes longer ones for nothing

bool isWritable(const HistoryMoment::Step& step) {
    return step.picture && !step.name.isEmpty() && step.name.size() <= kMostName;
}

}  // namespace

bool StepJournal::write(const HistoryMoment& moment, TileJournal& journal, QString* problem) {
    const auto state = changes(moment, _written, problem);
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

std::optional<JournalState> StepJournal::whole() const {
    QString problem;
    return _last ? changes(*_last, {}, &problem) : std::nullopt;
}

// Writing a tile may begin a file, which asks for the whole: nothing of this object changes meanwhile.
std::optional<JournalState> StepJournal::changes(const HistoryMoment& moment, const Written& written,
                                                 QString* problem) const {
    JournalState state;
    HistoryMoment::Step base;  // the last step that is written
    bool sound = true;
    // As the change of the step before it, unless it is written already.
    const auto add = [&](const HistoryMoment::Step& step) {
        if (!sound || !isWritable(step)) {
            return;
        }
        if (written.value(step.name) != step.picture) {
            auto changed = difference(base.picture.get(), *step.picture, problem);
            sound = changed.has_value();
            state.steps.push_back({step.name, base.name, std::move(changed).value_or(Changes())});
        }
        base = step;
    };
    for (const auto& step : moment.undo) {
        add(step);
        state.undo.append(step.name);
    }
    add(moment.current);
    state.current = moment.current.name;
    if (sound && moment.present && (!base.picture || *moment.present != *base.picture)) {
        auto changed = difference(base.picture.get(), *moment.present, problem);
        sound = changed.has_value();
        state.present = JournalPresent{base.name, std::move(changed).value_or(Changes())};
    }
    for (const auto& step : moment.redo) {
        add(step);
        state.redo.append(step.name);
    }
    return sound ? std::optional(std::move(state)) : std::nullopt;
}

std::optional<StepJournal::Changes> StepJournal::difference(const TilePicture* from, const TilePicture& to,
                                                            QString* problem) const {
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
