// SPDX-License-Identifier: MIT
// One version of a tile, and what all of a store have in common. For TileStore alone.
#pragma once

#include <QByteArray>
#include <list>
#include <mutex>
#include <optional>
#include <unordered_map>
#include <vector>

#include "History/StepJournal.h"
#include "History/TileJournal.h"
#include "History/TileStore.h"

namespace dabcanvas {

struct TileStore::Shared {
    Shared(const Size& picture, int bytesAPixel);

    using Tiles = std::list<StoredTile*>;

    const int pixelBytes;
    qsizetype rawSize() const { return static_cast<qsizetype>(tileBytes(pixelBytes)); }

    TileJournal journal;
    std::mutex mutex;  // everything below, and what a tile holds
    // Not shown any more: yet to be compressed, in memory all the same, on disk alone. What was shown last stands last.
    Tiles loose, hidden, away;
    std::unordered_map<std::uint64_t, StoredTile*> placed;  // those that the journal has
    std::vector<TilePlace> unneeded;                        // whose version has gone
    std::int64_t bytes = 0;
    std::int64_t bytesToWrite = 0;  // of these
    std::uint64_t lastNumber = 0;
    QString folder, keptFolder;
    StepJournal steps;  // of the background
    std::optional<HistoryChange> noted;
    bool syncs = false;
    bool isEnding = false;  // what is loose stays so
    bool saidFull = false;

    using Loans = std::vector<std::weak_ptr<StoredTile>>;

    // What is yet to be compressed; null when nothing is.
    TileRef nextLoose();
    // What is to be written so that no more than this stays in memory; what is on disk is let go of at once.
    Loans beyond(std::int64_t most, const QString& inFolder);
    // Writes them, and then what holds files that are needed for little else.
    void relieve(const Loans& tiles);
    void writeNoted();
    void keep(bool isKept);
    void freeFiles();

private:
    bool writeSparse(QString* problem);
    void tellFull(const QString& problem);
};

class StoredTile : public std::enable_shared_from_this<StoredTile> {
public:
    StoredTile(std::shared_ptr<TileStore::Shared> shared, SharedTile pixels);
    // One that the journal has.
    StoredTile(std::shared_ptr<TileStore::Shared> shared, std::uint64_t number, const TilePlace& place);
    ~StoredTile();
    StoredTile(const StoredTile&) = delete;
    StoredTile& operator=(const StoredTile&) = delete;

    struct Held {
        SharedTile raw;
        QByteArray packed;
        std::optional<TilePlace> place;
    };
    Held held() const;
    int pixelBytes() const { return _shared->pixelBytes; }
    QByteArray read(const TilePlace& place, QString* problem) const;

    void show();
    void hold(const SharedTile& pixels);  // which are its own
    void hide();
    void pack();  // as a loose one

    // Under the lock. Lets go of the memory, or is to be written first, which true says.
    bool mustBeWritten();
    // Into the journal, in the background: `anew` from where it is there already. False when the disk does not take it.
    bool write(bool anew, QString* problem);
    std::uint64_t number() const { return _number; }
    bool isOf(const TileStore::Shared& shared) const { return _shared.get() == &shared; }
    void endWriting(bool written);

private:
    using Tiles = TileStore::Shared::Tiles;
    void moveTo(Tiles* list);
    void letGo();

    const std::shared_ptr<TileStore::Shared> _shared;
    const std::uint64_t _number;
    Held _held;
    int _places = 0;  // where it is shown
    Tiles _place{this};
    const Tiles::iterator _at = _place.begin();
    Tiles* _list = nullptr;  // that it is in
    std::int64_t _counted = 0;
    std::int64_t _toWrite = 0;  // of what is counted
};

}  // namespace dabcanvas
