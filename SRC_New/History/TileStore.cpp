// SPDX-License-Identifier: MIT
#include "History/TileStore.h"

#include <QFileInfo>
#include <new>
#include <utility>
#include <vector>

#include "History/JournalReader.h"
#include "History/Packing.h"
#include "History/StoredTile.h"
#include "History/TempFolder.h"

namespace dabcanvas {
namespace {

SharedTile unpackedTile(const QByteArray& bytes, int pixelBytes) {
    const auto pixels = newTile(pixelBytes);
    auto* const to = reinterpret_cast<char*>(pixels.get());
    return restoreInto(bytes, to, static_cast<qsizetype>(tileBytes(pixelBytes))) ? SharedTile(pixels)
                                                                                 : nullptr;
}

}  // namespace

SharedTile pixelsOf(const StoredTile& tile, QString* problem) {
    QString why = QStringLiteral("there is no memory for a tile of it");
    try {
        StoredTile::Held held = tile.held();
        if (held.raw) {
            return held.raw;
        }
        QByteArray bytes = held.packed;
        // Again where it was written anew meanwhile.
        for (std::optional<TilePlace> place; bytes.isNull() && held.place != place; held = tile.held()) {
            place = held.place;
            bytes = tile.read(*place, &why);
        }
        if (!bytes.isNull()) {
            if (SharedTile pixels = unpackedTile(bytes, tile.pixelBytes())) {
                return pixels;
            }
            why = QStringLiteral("it is damaged");
        }
    } catch (const std::bad_alloc&) {
    }
    if (problem != nullptr) {
        *problem = why;
    }
    return nullptr;
}

int pixelBytesOf(const StoredTile& tile) {
    return tile.pixelBytes();
}

TileStore::TileStore(const Size& picture, int pixelBytes)
    : _shared(std::make_shared<Shared>(picture, pixelBytes)) {}

TileStore::~TileStore() {
    std::optional<HistoryChange> noted;
    {
        const std::lock_guard lock(_shared->mutex);
        _shared->isEnding = true;
        _shared->noted.swap(noted);
    }
    _packing.wait();
    _writing.wait();
    _shared->steps.forget();
}

TileRef TileStore::keep(SharedTile pixels) {
    return std::make_shared<StoredTile>(_shared, std::move(pixels));
}

bool TileStore::owns(const StoredTile& tile) const {
    return tile.isOf(*_shared);
}

void TileStore::show(StoredTile& tile) {
    tile.show();
}

void TileStore::retire(StoredTile& tile) {
    tile.hide();
}

void TileStore::hold(StoredTile& tile, const SharedTile& pixels) {
    tile.hold(pixels);
}

void TileStore::compress() {
    const std::lock_guard lock(_shared->mutex);
    if (!_shared->loose.empty()) {
        _packing.run([shared = _shared.get()] {
            for (TileRef tile = shared->nextLoose(); tile; tile = shared->nextLoose()) {
                tile->pack();
            }
        });
    }
    if (!_shared->unneeded.empty()) {
        _writing.run([shared = _shared.get()] { shared->freeFiles(); });
    }
}

void TileStore::setFileBytes(std::int64_t bytes) {
    _shared->journal.setSegmentBytes(bytes);
}

void TileStore::relieve(std::int64_t most, const QString& folder) {
    auto tiles = _shared->beyond(most, folder);
    if (!tiles.empty()) {
        _writing.run([shared = _shared.get(), tiles = std::move(tiles)] { shared->relieve(tiles); });
    }
}

// ---- A history that outlives its process

bool TileStore::adopt(const JournalContents& contents) {
    std::unordered_map<std::uint64_t, TileRef> tiles;
    if (!_shared->journal.adopt(contents)) {
        return false;
    }
    for (const auto& [number, place] : contents.tiles) {
        tiles.emplace(number, std::make_shared<StoredTile>(_shared, number, place));
    }
    _adopted = std::move(tiles);
    _shared->lastNumber = contents.lastTile;
    return true;
}

TileRef TileStore::adopted(std::uint64_t number) const {
    const auto found = _adopted.find(number);
    return found == _adopted.end() ? nullptr : found->second;
}

void TileStore::keepIn(std::unique_ptr<TempFolder> folder) {
    _adopted.clear();
    {
        const std::lock_guard lock(_shared->mutex);
        _shared->keptFolder = folder ? folder->path() : QString();
    }
    _writing.run([shared = _shared.get(), isKept = folder != nullptr] { shared->keep(isKept); });
    _writing.wait();  // before the former folder goes
    _kept = std::move(folder);
}

void TileStore::note(HistoryChange change, bool sync) {
    std::optional<HistoryChange> all;
    {
        const std::lock_guard lock(_shared->mutex);
        all.swap(_shared->noted);
        _shared->syncs = sync;
    }
    if (all) {  // without the lock, as what goes now takes it
        all->then(std::move(change));
    } else {
        all = std::move(change);
    }
    {
        const std::lock_guard lock(_shared->mutex);
        _shared->noted = std::move(all);
    }
    _writing.run([shared = _shared.get()] { shared->writeNoted(); });
}

QString TileStore::keptPath() const {
    return _kept ? _kept->path() : QString();
}

bool TileStore::holdsFolder() {
    return !_kept || (_kept->isOurs() && QFileInfo(_kept->path()).isDir()) || _kept->restore();
}

std::int64_t TileStore::bytes() const {
    const std::lock_guard lock(_shared->mutex);
    return _shared->bytes;
}

std::int64_t TileStore::bytesOnDisk() const {
    return _shared->journal.bytesOnDisk();
}

std::int64_t TileStore::liveBytesOnDisk() const {
    return _shared->journal.liveBytes();
}

}  // namespace dabcanvas
