// SPDX-License-Identifier: MIT
// Versions of tiles: what the pictures of a history are made of. One that the canvas shows is shared with it and counts
// for nothing; what it showed before is compressed in the background and, where memory is to be had back, written to disk,
// the versions first that were not shown for longest.
//
// Owns     the versions' bytes and the files of those on disk, together with whoever holds a TileRef; those may outlive
//          the store.
// Thread   one for the store, waiting apart; TileRefs may be read and let go of on any.
// Errors   null pixels where they cannot be had; `problem` says why. What cannot be written stays in memory, with one log
//          line until the disk takes tiles again.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <unordered_map>

#include "History/BackgroundQueue.h"
#include "Surface/TilePixels.h"

namespace dabcanvas {

class StoredTile;
class TempFolder;
struct HistoryChange;
struct JournalContents;
// A version of a tile; null is the transparent one.
using TileRef = std::shared_ptr<StoredTile>;

// Null, and `problem` in words where it is asked for, without the memory, or when the disk has lost them.
SharedTile pixelsOf(const StoredTile& tile, QString* problem = nullptr);
int pixelBytesOf(const StoredTile& tile);

class TileStore {
public:
    // 4 or 8 bytes a pixel.
    explicit TileStore(const Size& picture, int pixelBytes = 4);
    ~TileStore();
    TileStore(const TileStore&) = delete;
    TileStore& operator=(const TileStore&) = delete;

    // A new version, yet to be shown. Throws std::bad_alloc.
    TileRef keep(SharedTile pixels);
    bool owns(const StoredTile& tile) const;
    // They are shown in one more place, or in one less; see compress().
    static void show(StoredTile& tile);
    static void retire(StoredTile& tile);
    // These are its pixels: they need not be looked for again while it is shown.
    static void hold(StoredTile& tile, const SharedTile& pixels);
    // In the background, what is not shown any more; and files go that nothing needs.
    void compress();
    // Of the files to come.
    void setFileBytes(std::int64_t bytes);
    // Has so much written to files of this folder, in the background, that no more than this is left in memory.
    void relieve(std::int64_t most, const QString& folder);

    // What versions take in memory that are not shown, those counted that are yet to be written.
    std::int64_t bytes() const;
    std::int64_t bytesOnDisk() const;      // that files take
    std::int64_t liveBytesOnDisk() const;  // of versions that somebody holds
    void waitForCompression() { _packing.wait(); }
    void waitForWrites() { _writing.wait(); }

    // ---- A history that outlives its process

    // Takes over what a journal holds; before anything was written. False, and nothing changed, for another picture.
    bool adopt(const JournalContents& contents);
    TileRef adopted(std::uint64_t number) const;  // null for none
    // From now on in this folder; null: not any more.
    void keepIn(std::unique_ptr<TempFolder> folder);
    bool isKept() const { return _kept != nullptr; }
    QString keptPath() const;  // of that folder; empty for none
    // False where somebody has removed that folder and it cannot be made again, as another history may have it now.
    bool holdsFolder();
    // Writes down what the history has become, in the background; the first time, what it is. sync: waits for the disk, so
    // that it outlives the machine, too.
    void note(HistoryChange change, bool sync);

private:
    friend class StoredTile;
    friend SharedTile pixelsOf(const StoredTile& tile, QString* problem);
    struct Shared;

    std::shared_ptr<Shared> _shared;
    std::unique_ptr<TempFolder> _kept;
    std::unordered_map<std::uint64_t, TileRef> _adopted;  // until the history is what it was
    BackgroundQueue _packing{1}, _writing{1};             // end first, as their tasks use all the others
};

}  // namespace dabcanvas
