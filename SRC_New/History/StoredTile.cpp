// SPDX-License-Identifier: MIT
#include "History/StoredTile.h"

#include <new>
#include <utility>

#include "History/HistoryLog.h"
#include "History/Packing.h"

namespace dabcanvas {
namespace {

// Files of which less than this share is needed are written anew, without the rest.
constexpr double kSparse = 0.75;
QByteArray viewOf(const SharedTile& raw, qsizetype size) {
    return QByteArray::fromRawData(reinterpret_cast<const char*>(raw.get()), size);
}

}  // namespace

// ---- What a store's tiles have in common

TileStore::Shared::Shared(const Size& picture, int bytesAPixel)
    : pixelBytes(bytesAPixel),
      journal({.folder =
                   [this] {
                       const std::lock_guard lock(mutex);
                       return keptFolder.isEmpty() ? folder : keptFolder;
                   },
               .format = {picture, bytesAPixel},
               .checkpoint = {}}),
      steps([](StoredTile& tile, QString* problem) {
          return tile.write(false, problem) ? std::optional(tile.number()) : std::nullopt;
      }) {}

TileRef TileStore::Shared::nextLoose() {
    const std::lock_guard lock(mutex);
    for (StoredTile* const tile : loose) {
        if (TileRef held = isEnding ? nullptr : tile->weak_from_this().lock()) {
            return held;  // another one is just going
        }
    }
    return nullptr;
}

TileStore::Shared::Loans TileStore::Shared::beyond(std::int64_t most, const QString& inFolder) {
    const std::lock_guard lock(mutex);
    folder = inFolder;
    Loans tiles;
    for (Tiles* const list : {&hidden, &loose}) {
        for (auto next = list->begin(); next != list->end() && bytes - bytesToWrite > most;) {
            StoredTile& tile = **next++;
            tiles.emplace_back();  // before it counts as being written
            if (tile.mustBeWritten()) {
                tiles.back() = tile.weak_from_this();
            } else {
                tiles.pop_back();
            }
        }
    }
    return tiles;
}

void TileStore::Shared::relieve(const Loans& tiles) {
    QString problem;
    bool takes = true, took = false;
    for (const auto& loan : tiles) {
        if (const TileRef tile = loan.lock()) {
            takes = takes && tile->write(false, &problem);
            took = takes;
            tile->endWriting(takes);
        }
    }
    freeFiles();
    if (!takes || !writeSparse(&problem)) {
        return tellFull(problem);
    }
    const std::lock_guard lock(mutex);
    saidFull = saidFull && !took;
}

bool TileStore::Shared::writeSparse(QString* problem) {
    for (const std::uint64_t number : journal.tilesInSparseSegments(kSparse)) {
        TileRef tile;
        {
            const std::lock_guard lock(mutex);
            const auto found = placed.find(number);
            tile = found == placed.end() ? nullptr : found->second->weak_from_this().lock();
        }
        if (tile && !tile->write(true, problem)) {
            return false;
        }
    }
    freeFiles();
    return true;
}

void TileStore::Shared::keep(bool isKept) {
    if (isKept) {
        journal.keep([this] { return steps.whole(); });
    } else {
        journal.keep(nullptr);
        steps.forget();
    }
}

void TileStore::Shared::writeNoted() {
    std::optional<HistoryChange> change;
    bool isWanted = false, waitsForDisk = false;
    {
        const std::lock_guard lock(mutex);
        change.swap(noted);
        isWanted = change && !isEnding;
        waitsForDisk = syncs;
    }
    if (!isWanted) {
        return;
    }
    QString problem;
    bool done = steps.write(std::move(*change), journal, &problem);
    change.reset();
    freeFiles();
    if (done) {  // what lies in a folder that was removed has to move before the disk can be waited for
        done = writeSparse(&problem);
        done = (!waitsForDisk || journal.sync(&problem)) && done;
    }
    if (!done) {
        tellFull(problem);
    }
}

void TileStore::Shared::freeFiles() {
    std::vector<TilePlace> places;
    {
        const std::lock_guard lock(mutex);
        places.swap(unneeded);
    }
    for (const TilePlace& place : places) {
        journal.release(place);
    }
}

void TileStore::Shared::tellFull(const QString& problem) {
    const std::lock_guard lock(mutex);
    if (!std::exchange(saidFull, true)) {
        qCWarning(lcHistory, "Undo steps stay in memory until the disk takes them: %ls",
                  qUtf16Printable(problem));
    }
}

// ---- A tile

StoredTile::StoredTile(std::shared_ptr<TileStore::Shared> shared, SharedTile pixels)
    : _shared(std::move(shared)), _number(++_shared->lastNumber), _held{std::move(pixels), {}, {}} {}

StoredTile::StoredTile(std::shared_ptr<TileStore::Shared> shared, std::uint64_t number,
                       const TilePlace& place)
    : _shared(std::move(shared)), _number(number), _held{{}, {}, place} {
    const std::lock_guard lock(_shared->mutex);
    _shared->placed.insert_or_assign(_number, this);
    moveTo(&_shared->away);
}

StoredTile::~StoredTile() {
    const std::lock_guard lock(_shared->mutex);
    moveTo(nullptr);
    if (_held.place) {
        _shared->placed.erase(_number);
        try {
            _shared->unneeded.push_back(*_held.place);
        } catch (const std::bad_alloc&) {
            _shared->journal.release(*_held.place);
        }
    }
}

StoredTile::Held StoredTile::held() const {
    const std::lock_guard lock(_shared->mutex);
    return _held;
}

QByteArray StoredTile::read(const TilePlace& place, QString* problem) const {
    return _shared->journal.readTile(place, _number, problem);
}

// Its node in a list is made with it: hiding needs no memory.
void StoredTile::moveTo(Tiles* list) {
    Tiles& from = _list != nullptr ? *_list : _place;
    Tiles& to = list != nullptr ? *list : _place;
    to.splice(to.end(), from, _at);
    _list = list;
    const std::int64_t raw = list != nullptr && _held.raw ? _shared->rawSize() : 0;
    const std::int64_t now = list != nullptr ? raw + _held.packed.size() : 0;
    _shared->bytes += now - std::exchange(_counted, now);
    _shared->bytesToWrite -= std::exchange(_toWrite, 0);
}

void StoredTile::show() {
    const std::lock_guard lock(_shared->mutex);
    ++_places;
    moveTo(nullptr);
}

void StoredTile::hold(const SharedTile& pixels) {
    const std::lock_guard lock(_shared->mutex);
    if (!_held.raw) {
        _held.raw = pixels;
        moveTo(_list);
    }
}

void StoredTile::hide() {
    const std::lock_guard lock(_shared->mutex);
    if (--_places > 0) {
        return;
    }
    const bool isPacked = !_held.packed.isNull();
    if (isPacked) {
        _held.raw.reset();
    }
    const bool isAway = !_held.raw && !isPacked;  // it was shown from the disk
    moveTo(isAway ? &_shared->away : isPacked || !canPack() ? &_shared->hidden : &_shared->loose);
}

void StoredTile::pack() {
    const SharedTile raw = held().raw;
    const QByteArray compressed = raw ? packed(viewOf(raw, _shared->rawSize())) : QByteArray();
    const std::lock_guard lock(_shared->mutex);
    if (_list != &_shared->loose) {
        return;  // it is shown again, or on disk
    }
    if (!compressed.isNull()) {
        _held.packed = compressed;
        _held.raw.reset();
    }
    moveTo(&_shared->hidden);
}

// ---- Onto disk

bool StoredTile::mustBeWritten() {
    if (_toWrite != 0) {
        return false;
    }
    if (_held.place) {
        letGo();
        return false;
    }
    _toWrite = _counted;
    _shared->bytesToWrite += _toWrite;
    return true;
}

bool StoredTile::write(bool anew, QString* problem) {
    const Held before = held();
    if (before.place && !anew) {
        return true;
    }
    const QByteArray bytes = before.place             ? read(*before.place, problem)
                             : before.packed.isNull() ? viewOf(before.raw, _shared->rawSize())
                                                      : before.packed;
    if (bytes.isNull()) {
        return before.place.has_value();  // it is lost already
    }
    const auto place =
        _shared->journal.appendTile(_number, bytes, static_cast<int>(_shared->rawSize()), problem);
    if (!place) {
        return false;
    }
    const std::lock_guard lock(_shared->mutex);
    _shared->placed.insert_or_assign(_number, this);
    if (const auto old = std::exchange(_held.place, place)) {
        _shared->unneeded.push_back(*old);
    }
    return true;
}

void StoredTile::endWriting(bool written) {
    const std::lock_guard lock(_shared->mutex);
    _shared->bytesToWrite -= std::exchange(_toWrite, 0);
    if (written && _list != nullptr) {
        letGo();
    }
}

void StoredTile::letGo() {
    _held.raw.reset();
    _held.packed.clear();
    moveTo(&_shared->away);
}

}  // namespace dabcanvas
