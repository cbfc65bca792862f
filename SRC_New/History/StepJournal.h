// SPDX-License-Identifier: MIT
// Writes down what a history is, as far as it has changed since it last did, so that it outlives the process: for
// TileStore, in its background. What it wrote last it also tells a journal that begins another file.
//
// Thread   one at a time.
#pragma once

#include <QHash>
#include <QString>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "History/TileJournal.h"
#include "History/TilePicture.h"

namespace dabcanvas {

// What a history has become since the change before, or, as a first one, what it is.
struct HistoryChange {
    // Without a picture of tiles it is a host's, and not written.
    struct Step {
        QString name;
        std::shared_ptr<const TilePicture> picture;
    };
    StackChange<Step> undo, redo;
    Step current;
    std::shared_ptr<const TilePicture> present;  // the canvas, be it a step or not; null: as it was

    void then(HistoryChange next);
};

class StepJournal {
public:
    // Has the tile in the journal, and says by which number. Nothing when it cannot be written.
    using Numbered = std::function<std::optional<std::uint64_t>(StoredTile& tile, QString* problem)>;
    explicit StepJournal(Numbered numbered) : _numbered(std::move(numbered)) {}

    // False, and why, when the disk does not take it; then all of it is written next time.
    bool write(HistoryChange change, TileJournal& journal, QString* problem);
    // All of what was written last; nothing before, and while it is not what the journal tells.
    std::optional<JournalState> whole() const;
    // Lets go of all of it: the tiles hold the store that holds this.
    void forget();

private:
    using Step = HistoryChange::Step;
    using Picture = std::shared_ptr<const TilePicture>;
    using Changes = std::vector<TileChange>;
    struct Written {
        Picture picture;
        int places = 0;  // in the stacks
    };
    using Steps = QHash<QString, Written>;

    HistoryChange all() const;
    std::optional<JournalState> told(const HistoryChange& change, const Steps& written,
                                     QString* problem) const;
    Step lastKept(const StackChange<Step>& undo) const;
    std::optional<Changes> difference(const TilePicture* from, const TilePicture& to, QString* problem) const;
    void apply(const HistoryChange& change, bool isWritten);

    const Numbered _numbered;
    std::deque<Step> _undo, _redo;  // the nearest to the current one last
    Step _current;
    Picture _present;
    Steps _written;               // by name
    bool _isTold = false;         // all of this in the journal
    std::vector<Picture> _owned;  // what the journal tells meanwhile: its tiles are not to go
};

}  // namespace dabcanvas
