// SPDX-License-Identifier: MIT
// The tiles of a history on disk: files that only grow, to which tiles are appended that leave memory, and in which a
// history that is to survive its process writes its steps down as well (JournalReader reads them).
//
// Segments  a file is closed when it has grown large, and deleted when nothing in it is needed any more. All stay open.
// Kept      with a checkpoint, that is: each segment then begins with all that lives of the steps, so that older ones
//           are needed for tiles only. Whatever is cut off at the end, what was appended before it comes back. So a tile
//           is released after the records that do without it were appended, not before.
// Reaches   the system when an append returns, so that the process may die; the disk after sync().
// Thread    append..., adopt() and sync() one at a time; readTile(), release() and the counts from any, at any time.
//           The checkpoint is called by the thread that appends, in the course of a call, without a lock.
// Errors    never throws, but std::bad_alloc. `problem` says in words why something was not written; what was is whole, and
//           the next append tries anew.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "History/JournalStacks.h"

namespace dabcanvas {

struct JournalContents;

// A step as the change of another one's picture, whose name it was appended by last; of a blank one when that is empty.
struct JournalStep {
    QString name;
    QString base;
    std::vector<TileChange> changes;
    PictureShape picture{};  // empty: as large as the journal's; its base has the same grid
};

// The canvas where it is not the current step, likewise.
struct JournalPresent {
    QString base;
    std::vector<TileChange> changes;
    PictureShape picture{};
};

// What becomes of the history in one go: steps, each after its base, and what changed of the stacks since they were
// appended last.
struct JournalState {
    std::vector<JournalStep> steps;
    StackChange<QString> undo, redo;
    QString current;
    std::optional<JournalPresent> present;
};

class TileJournal {
public:
    struct Settings {
        // Asked whenever a file is made, and, in a kept journal, at every append, as all that is needed lies in one folder.
        // Empty: there is none.
        std::function<QString()> folder;
        JournalFormat format;
        // From its checkpoint on, before it is closed, see setSegmentBytes(); at most 1 GiB.
        std::int64_t segmentBytes = 64 << 20;
        // All that lives, as it was appended last: every step, not only new ones, and nothing kept of the stacks. None when
        // it cannot be told now; then the older segments stay. Null: nothing outlives the journal.
        std::function<std::optional<JournalState>()> checkpoint;
    };
    explicit TileJournal(Settings settings);
    ~TileJournal();  // with its files, unless it is kept
    TileJournal(const TileJournal&) = delete;
    TileJournal& operator=(const TileJournal&) = delete;

    // Goes on where another ended: its tiles can be read, and new segments follow with the next append. Before anything
    // is appended; false, and nothing changed, for other pixels.
    bool adopt(const JournalContents& contents);

    // From now on it is kept, or, by null, not any more. The next append begins a segment.
    void keep(std::function<std::optional<JournalState>()> checkpoint);
    void setSegmentBytes(std::int64_t bytes) { _segmentBytes = bytes; }

    // ---- Tiles

    // The bytes as they are to come back, packed or not, which rawSize tells; no more than a tile has.
    std::optional<TilePlace> appendTile(std::uint64_t id, const QByteArray& bytes, int rawSize,
                                        QString* problem);
    // Null, and why, when they are damaged or gone.
    QByteArray readTile(const TilePlace& place, std::uint64_t id, QString* problem) const;
    void release(const TilePlace& place);  // of a place that was released before: nothing

    // ---- Steps, which only a kept journal is asked for

    // Steps that are new, in the place of older ones of their names, and the stacks. A name without a step is one without a
    // picture. After a crash all of it comes back, or what was before. False when a base is not known, too; then all that
    // lives is told again, and nothing kept of the stacks.
    bool appendState(const JournalState& state, QString* problem);

    bool sync(QString* problem);

    // ---- Room

    std::int64_t bytesOnDisk() const;
    std::int64_t liveBytes() const;  // of tiles that are not released
    // The tiles of closed segments of which less than this share is live, and, in a kept journal, those whose file is in
    // another folder, or in none any more. Who appends them again and releases these places gets the room back.
    std::vector<std::uint64_t> tilesInSparseSegments(double share) const;
    // Deletes all files; what was appended can be read until it is released.
    void removeFiles();

private:
    struct LiveTile {
        std::uint32_t offset;
        std::uint32_t bytes;  // of the record; 0 once it is released
        std::uint64_t id;
    };
    struct Segment {
        std::shared_ptr<SegmentFile> file;
        std::int64_t size = 0;
        std::int64_t begin = 0;  // where what is no checkpoint begins
        std::int64_t live = 0;   // bytes
        bool synced = false;
        std::vector<LiveTile> tiles;  // by offset
    };

    bool isKept() const { return static_cast<bool>(_settings.checkpoint); }
    bool isAway(const Segment& segment) const;
    // Has `records` written by a call of it; in a new segment, again, where the file may not grow any more.
    bool append(const std::function<bool()>& records, QString* problem);
    bool ready(QString* problem);
    bool startSegment(QString* problem);
    std::shared_ptr<SegmentFile> makeFile(QString* problem);
    void runCheckpoint();
    bool writeState(const JournalState& state, QString* problem);
    bool writeStep(const JournalStep& step, QString* problem);
    bool write(RecordWriter& record, TilePlace* place, QString* problem);
    Segment& openSegment();
    void closeSegment();
    void dropEmpty();
    std::uint64_t serialOf(const QString& name) const { return _serials.value(name, 0); }
    StacksChange changeOf(const JournalState& state) const;
    PictureShape shapeOf(const PictureShape& picture) const {
        return picture.size.width <= 0 ? PictureShape(_settings.format.picture) : picture;
    }
    bool knows(const QString& base, QString* problem) const;
    std::int64_t now();
    std::int64_t sumOf(std::int64_t Segment::*bytes) const;

    Settings _settings;
    std::atomic<std::int64_t> _segmentBytes;
    mutable std::mutex _mutex;  // guards the segments; but only who appends changes which one is open
    std::map<std::uint32_t, Segment> _segments;
    QString _folder;                  // where the last file was made
    std::uint32_t _open = 0;          // the number of the one that grows; 0 while there is none
    std::uint32_t _last = 0;          // number given
    std::uint32_t _checkpointed = 0;  // older segments are needed for tiles only
    std::uint64_t _journal = 0;       // the id of all its segments
    std::int64_t _lastTime = 0;       // of a record; later ones are never earlier, whatever the clock does
    // Each record of a step has a number, as a name may come again with another picture: by number others are based on it.
    QHash<QString, std::uint64_t> _serials;
    std::uint64_t _lastSerial = 0;
    WrittenStacks _stacks;
};

}  // namespace dabcanvas
