// SPDX-License-Identifier: MIT
// What a journal holds (TileJournal.h): all that was appended up to where it is cut off or damaged. A record that is damaged
// is as if it had not been written: a step that was, or whose base was, or of whose picture a tile is gone, is left out, and
// every picture that is told is the one that was meant.
//
// Thread   any.
// Errors   throws std::bad_alloc, nothing else. Never asks for more memory than a few times what the files hold.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "History/JournalRecord.h"

namespace dabcanvas {

// A picture, as the change of an earlier one in the list.
struct RecoveredStep {
    QString name;   // empty: it is in no stack, but another's base, or the present canvas
    int base = -1;  // -1: blank
    std::vector<TileChange> changes;
    PictureShape picture;  // its base has the same grid
    std::uint64_t serial = 0;
};

struct JournalSegment {
    std::uint32_t number = 0;
    std::int64_t size = 0;
    std::shared_ptr<SegmentFile> file;
};

struct JournalContents {
    JournalFormat format;
    std::uint64_t journal = 0;
    std::int64_t lastRecord =
        0;  // milliseconds since 1970, when the last step or change of the stacks was appended

    std::vector<RecoveredStep> steps;  // each after its base
    std::vector<int> undo, redo;       // steps, the one nearest to the current one last
    int current = -1;  // the step before the present, where that itself is lost; -1: none is left
    int present = -1;  // the canvas; the current step, where it was no other or is lost
    std::unordered_map<std::uint64_t, TilePlace> tiles;  // all that the steps name

    // For who goes on: what comes later has greater ones.
    std::uint64_t lastTile = 0, lastSerial = 0;
    std::vector<JournalSegment> segments;

    // Of the canvas.
    const Size& pictureSize() const {
        return present < 0 ? format.picture : steps[static_cast<std::size_t>(present)].picture.size;
    }
    int stepCount() const { return static_cast<int>(undo.size() + redo.size()) + (current >= 0 ? 1 : 0); }
    std::int64_t bytes() const;
    // The tiles of a step's whole picture, by index, without transparent ones.
    std::vector<TileChange> pictureOf(int step) const;
    QByteArray readTile(std::uint64_t id, QString* problem) const;
};

enum class TileCheck {
    whole,  // every byte is looked at
    heads   // for an overview: only that they are there
};

// None when there is no journal in the folder, of which `problem` tells.
std::optional<JournalContents> readJournal(const QString& folder, TileCheck check, QString* problem);

// Whether nobody will ever find a step or a canvas there: its process died before it wrote one, or all is damaged. Journals
// of other versions, and those that cannot be opened now, may hold some.
bool isBarren(const QString& folder);

}  // namespace dabcanvas
