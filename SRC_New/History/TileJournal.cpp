// SPDX-License-Identifier: MIT
#include "History/TileJournal.h"

#include <QDateTime>
#include <QFileInfo>
#include <QRandomGenerator>
#include <algorithm>
#include <new>
#include <utility>

#include "History/JournalReader.h"
#include "History/SegmentFile.h"

namespace dabcanvas {

namespace {

constexpr std::int64_t kMostSegment = std::int64_t{1} << 30;
constexpr int kTries = 1000;  // where files of these names are already

qsizetype bytesOf(const std::vector<TileChange>& changes) {
    return 64 + 12 * static_cast<qsizetype>(changes.size());
}

}  // namespace

TileJournal::TileJournal(Settings settings)
    : _settings(std::move(settings)),
      _segmentBytes(_settings.segmentBytes),
      _journal(QRandomGenerator::system()->generate64() | 1) {}

TileJournal::~TileJournal() {
    if (!isKept()) {
        removeFiles();
    }
}

bool TileJournal::adopt(const JournalContents& contents) {
    const std::lock_guard lock(_mutex);
    if (contents.format.pixelBytes != _settings.format.pixelBytes || _last != 0) {
        return false;
    }
    _journal = contents.journal;
    _lastTime = contents.lastRecord;
    _lastSerial = contents.lastSerial;
    for (const JournalSegment& found : contents.segments) {
        Segment& segment = _segments[found.number];
        segment.file = found.file;
        segment.size = found.size;
        _last = std::max(_last, found.number);
    }
    for (const auto& [id, place] : contents.tiles) {
        Segment& segment = _segments[place.segment];
        const std::uint32_t bytes = kRecordHead + kTileHead + place.size;
        segment.tiles.push_back({place.offset, bytes, id});
        segment.live += bytes;
    }
    for (auto& [number, segment] : _segments) {
        std::sort(segment.tiles.begin(), segment.tiles.end(),
                  [](const LiveTile& one, const LiveTile& other) { return one.offset < other.offset; });
    }
    for (const RecoveredStep& step : contents.steps) {
        if (!step.name.isEmpty()) {
            _serials.insert(step.name, step.serial);
        }
    }
    return true;
}

void TileJournal::keep(std::function<std::optional<JournalState>()> checkpoint) {
    closeSegment();
    const std::lock_guard lock(_mutex);
    _settings.checkpoint = std::move(checkpoint);
}

// ---- Tiles

std::optional<TilePlace> TileJournal::appendTile(std::uint64_t id, const QByteArray& bytes, int rawSize,
                                                 QString* problem) {
    if (id == 0 || bytes.isEmpty() || rawSize < bytes.size() ||
        static_cast<std::uint32_t>(rawSize) > _settings.format.mostTileBytes()) {
        *problem =
            QStringLiteral("%1 bytes of %2 are no tile of this picture").arg(bytes.size()).arg(rawSize);
        return {};
    }
    TilePlace place;
    place.size = static_cast<std::uint16_t>(bytes.size());
    place.rawSize = static_cast<std::uint16_t>(rawSize);
    RecordWriter record(RecordType::tile, kTileHead + bytes.size());
    record.put(id).put(place.rawSize).put(bytes);
    if (!append([&] { return write(record, &place, problem); }, problem)) {
        return {};
    }
    const std::lock_guard lock(_mutex);
    Segment& segment = _segments[place.segment];
    const std::uint32_t taken = kRecordHead + kTileHead + place.size;
    segment.tiles.push_back({place.offset, taken, id});
    segment.live += taken;
    return place;
}

QByteArray TileJournal::readTile(const TilePlace& place, std::uint64_t id, QString* problem) const {
    std::shared_ptr<SegmentFile> file;
    {
        const std::lock_guard lock(_mutex);
        const auto segment = _segments.find(place.segment);
        if (segment != _segments.end()) {
            file = segment->second.file;
        }
    }
    if (!file) {
        *problem = QStringLiteral("its file is not there any more");
        return {};
    }
    return readTileRecord(*file, _journal, place, id, problem);
}

// ---- Steps

bool TileJournal::knows(const QString& base, QString* problem) const {
    if (base.isEmpty() || serialOf(base) != 0) {
        return true;
    }
    *problem = QStringLiteral("there is no step \"%1\" to change").arg(base);
    return false;
}

bool TileJournal::appendState(const JournalState& state, QString* problem) {
    return append([&] { return writeState(state, problem); }, problem);
}

bool TileJournal::writeState(const JournalState& state, QString* problem) {
    for (const JournalStep& step : state.steps) {
        if (!writeStep(step, problem)) {
            return false;
        }
    }
    if (state.present && !knows(state.present->base, problem)) {
        return false;
    }
    const StacksChange change = changeOf(state);
    if (!_stacks.fits(change)) {
        *problem = QStringLiteral("there is less of the stacks to keep");
        return false;
    }
    RecordWriter record = _stacks.recordOf(change, now());
    if (state.present) {
        record.put(serialOf(state.present->base))
            .put(shapeOf(state.present->picture))
            .put(state.present->changes);
    }
    TilePlace place;
    if (!write(record, &place, problem)) {
        return false;
    }
    _stacks.become(change, place);
    return true;
}

StacksChange TileJournal::changeOf(const JournalState& state) const {
    const auto entry = [this](const QString& name) { return JournalEntry{serialOf(name), name}; };
    const auto entries = [&](const StackChange<QString>& stack) {
        StackChange<JournalEntry> change{stack.dropped, stack.kept, {}};
        std::transform(stack.added.begin(), stack.added.end(), std::back_inserter(change.added), entry);
        return change;
    };
    return {entries(state.undo), entries(state.redo), entry(state.current)};
}

bool TileJournal::writeStep(const JournalStep& step, QString* problem) {
    if (step.name.isEmpty() || step.name.size() * 2 > kMostNameBytes) {
        *problem = QStringLiteral("a step has a name, of up to %1 letters").arg(kMostNameBytes / 2);
        return false;
    }
    if (!knows(step.base, problem)) {
        return false;
    }
    RecordWriter record(RecordType::step, bytesOf(step.changes) + step.name.size() * 2);
    record.put(++_lastSerial)
        .put(serialOf(step.base))
        .put(now())
        .put(step.name)
        .put(shapeOf(step.picture))
        .put(step.changes);
    if (!write(record, nullptr, problem)) {
        return false;
    }
    _serials.insert(step.name, _lastSerial);
    return true;
}

// The clock may be set back meanwhile.
std::int64_t TileJournal::now() {
    return _lastTime = std::max<std::int64_t>(_lastTime, QDateTime::currentMSecsSinceEpoch());
}

// ---- Segments

bool TileJournal::append(const std::function<bool()>& records, QString* problem) {
    for (int segments = 0; segments < 2 && ready(problem); ++segments) {
        if (records()) {
            return true;
        }
        if (_open != 0) {
            return false;
        }
    }
    return false;
}

bool TileJournal::ready(QString* problem) {
    if (_open != 0) {
        const Segment& segment = openSegment();
        const bool full = segment.size > kMostSegment || segment.size - segment.begin > _segmentBytes;
        const bool away = isKept() && (_settings.folder() != _folder || isAway(segment));
        if (!full && !away) {
            return true;
        }
        closeSegment();
    }
    return startSegment(problem);
}

bool TileJournal::startSegment(QString* problem) {
    auto file = makeFile(problem);
    if (!file) {
        return false;
    }
    const QByteArray head =
        recordOf(SegmentHead{_journal, _last, _settings.format, now()}).sealed(kSegmentHead);
    if (!file->write(0, head.constData(), static_cast<std::size_t>(head.size()))) {
        *problem = file->problem();
        file->remove();
        return false;
    }
    {
        const std::lock_guard lock(_mutex);
        _open = _last;
        Segment& segment = _segments[_open];
        segment.file = std::move(file);
        segment.size = head.size();
        segment.begin = isKept() ? UINT32_MAX : segment.size;  // is not closed in its checkpoint
    }
    if (isKept()) {
        runCheckpoint();
    }
    return true;
}

std::shared_ptr<SegmentFile> TileJournal::makeFile(QString* problem) {
    const QString folder = _settings.folder ? _settings.folder() : QString();
    if (folder.isEmpty()) {
        *problem = QStringLiteral("there is no folder");
        return nullptr;
    }
    {
        const std::lock_guard lock(_mutex);
        _folder = folder;
    }
    for (int i = 0; i < kTries; ++i) {
        const QString path = folder + QLatin1Char('/') + segmentName(++_last);
        auto file = SegmentFile::make(path, problem);
        if (file || !QFileInfo::exists(path)) {
            return file;
        }
    }
    return nullptr;
}

// What it tells is all that later steps can be based on. Without it they go on with what older segments have.
void TileJournal::runCheckpoint() {
    auto former = std::exchange(_serials, {});
    const WrittenStacks formerStacks = _stacks;
    bool holds = false;
    try {
        QString problem;
        const auto state = _settings.checkpoint();
        holds = state && writeState(*state, &problem);
    } catch (const std::bad_alloc&) {  // as if it could not be told
    }
    if (!holds) {
        _serials.swap(former);
        _stacks = formerStacks;
    }
    const std::lock_guard lock(_mutex);
    Segment& segment = _segments.at(_open);
    segment.begin = segment.size;
    if (holds) {
        _checkpointed = _open;
        dropEmpty();
    }
}

// A part of a record that remains is none to who reads; the next one is written over it.
bool TileJournal::write(RecordWriter& record, TilePlace* place, QString* problem) {
    Segment& segment = openSegment();
    const std::int64_t at = segment.size;
    const QByteArray& bytes = record.sealed({_journal, _open, static_cast<std::uint32_t>(at)});
    if (bytes.size() > kRecordHead + kMostRecord || at + bytes.size() > UINT32_MAX) {
        *problem = QStringLiteral("%1 bytes are more than a record takes").arg(bytes.size());
        return false;
    }
    if (segment.file->write(at, bytes.constData(), static_cast<std::size_t>(bytes.size()))) {
        if (place != nullptr) {
            place->segment = _open;
            place->offset = static_cast<std::uint32_t>(at);
        }
        const std::lock_guard lock(_mutex);
        segment.size += bytes.size();
        segment.synced = false;
        return true;
    }
    *problem = segment.file->problem();
    const bool another = segment.file->isTooLarge();
    if ((!segment.file->truncate(at) || another) && at > segment.begin) {
        closeSegment();
    }
    return false;
}

// It stays where it is while others go.
TileJournal::Segment& TileJournal::openSegment() {
    const std::lock_guard lock(_mutex);
    return _segments.at(_open);
}

void TileJournal::closeSegment() {
    const std::lock_guard lock(_mutex);
    _open = 0;
    dropEmpty();
}

bool TileJournal::sync(QString* problem) {
    std::vector<std::pair<std::uint32_t, std::shared_ptr<SegmentFile>>> files;
    {
        const std::lock_guard lock(_mutex);
        for (const auto& [number, segment] : _segments) {
            if (!segment.synced) {
                files.emplace_back(number, segment.file);
            }
        }
    }
    bool all = true;
    for (const auto& [number, file] : files) {
        const bool synced = file->sync();
        const std::lock_guard lock(_mutex);
        const auto segment = _segments.find(number);
        if (!synced) {
            *problem = file->problem();
            all = false;
        } else if (segment != _segments.end()) {
            segment->second.synced = true;
        }
    }
    return all;
}

}  // namespace dabcanvas
