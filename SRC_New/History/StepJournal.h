// SPDX-License-Identifier: MIT
// Writes down what a history is, as far as it has changed since it last did, so that it outlives the process: for
// TileStore, in its background. What it wrote last it also tells a journal that begins another file.
//
// Thread   one at a time.
#pragma once

#include <QHash>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "History/TileJournal.h"
#include "History/TilePicture.h"

namespace dabcanvas {

// What a history is at some moment. A step without a picture of tiles is a host's, and not written.
struct HistoryMoment {
    struct Step {
        QString name;
        std::shared_ptr<const TilePicture> picture;
    };
    std::vector<Step> undo;  // the oldest first
    Step current;
    std::vector<Step> redo;                      // the next first
    std::shared_ptr<const TilePicture> present;  // the canvas, be it a step or not
};

class StepJournal {
public:
    // Has the tile in the journal, and says by which number. Nothing when it cannot be written.
    using Numbered = std::function<std::optional<std::uint64_t>(StoredTile& tile, QString* problem)>;
    explicit StepJournal(Numbered numbered) : _numbered(std::move(numbered)) {}

    // False, and why, when the disk does not take it; then all of it is written next time.
    bool write(const HistoryMoment& moment, TileJournal& journal, QString* problem);
    // All of what was written last; nothing before.
    std::optional<JournalState> whole() const;
    // Lets go of what was written last: its tiles hold the store that holds this.
    void forget() {
        _last.reset();
        _written.clear();
    }

private:
    using Changes = std::vector<TileChange>;
    using Written = QHash<QString, std::shared_ptr<const TilePicture>>;
    std::optional<JournalState> changes(const HistoryMoment& moment, const Written& written,
                                        QString* problem) const;
    std::optional<Changes> difference(const TilePicture* from, const TilePicture& to, QString* problem) const;

    const Numbered _numbered;
    std::optional<HistoryMoment> _last;
    Written _written;  // of the last
};

}  // namespace dabcanvas
