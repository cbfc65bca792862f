// SPDX-License-Identifier: MIT
#include "History/JournalRecord.h"

#include <algorithm>
#include <new>
#include <utility>

#define XXH_INLINE_ALL
#include <xxhash.h>

#include "History/SegmentFile.h"
#include "Surface/TileSet.h"

namespace dabcanvas {

namespace {

constexpr std::uint32_t kMark = 0x7B54D700;  // the lowest byte is the type
constexpr std::uint32_t kLengthAt = 4, kHeadSumAt = 8, kSumAt = 12;
constexpr std::size_t kChangeBytes = 12;
constexpr int kMostSide = 1 << 20;
constexpr std::uint8_t kVisible = 1, kLocked = 2;  // of a layer

std::uint64_t seedOf(const char* head, const RecordPlace& place) {
    const std::uint64_t where = place.journal ^ (std::uint64_t{place.segment} << 32 | place.offset);
    return XXH3_64bits_withSeed(head, kHeadSumAt, where);
}

template <typename Number>
Number numberAt(const char* bytes) {
    return qFromLittleEndian<Number>(bytes);
}

}  // namespace

bool JournalFormat::isSound() const {
    return picture.width > 0 && picture.width <= kMostSide && picture.height > 0 &&
           picture.height <= kMostSide && (pixelBytes == 4 || pixelBytes == 8);
}

std::uint32_t JournalFormat::tiles() const {
    const auto tilesOf = [](int side) {
        return static_cast<std::uint32_t>((side + kTileSide - 1) / kTileSide);
    };
    return tilesOf(picture.width) * tilesOf(picture.height);
}

std::uint32_t JournalFormat::mostTileBytes() const {
    return static_cast<std::uint32_t>(kTileSide * kTileSide * pixelBytes);
}
static_assert(kTileSide * kTileSide * 8 <= UINT16_MAX, "a TilePlace tells every tile's size");

// ---- Writing

RecordWriter& RecordWriter::put(const QString& name) {
    put(static_cast<std::uint32_t>(name.size()) * 2);
    for (const QChar letter : name) {
        put(static_cast<std::uint16_t>(letter.unicode()));
    }
    return *this;
}

RecordWriter& RecordWriter::put(const std::vector<TileChange>& changes) {
    put(static_cast<std::uint32_t>(changes.size()));
    for (const TileChange& change : changes) {
        put(change.index).put(change.tile);
    }
    return *this;
}

RecordWriter& RecordWriter::put(const PictureShape& picture) {
    put(static_cast<std::uint32_t>(picture.size.width)).put(static_cast<std::uint32_t>(picture.size.height));
    put(static_cast<std::uint32_t>(picture.layers ? picture.layers->size() : 0));
    put(static_cast<std::uint32_t>(picture.front));
    for (const Layer& layer : picture.layers ? *picture.layers : std::vector<Layer>()) {
        const LayerSettings& settings = layer.settings;
        put(layer.id).put(settings.name).put(settings.opacity).put(settings.blendType);
        put(static_cast<std::uint8_t>((settings.isVisible ? kVisible : 0) |
                                      (settings.locksAlpha ? kLocked : 0)));
    }
    return *this;
}

const QByteArray& RecordWriter::sealed(const RecordPlace& place) {
    char* head = _bytes.data();
    const auto length = static_cast<std::uint32_t>(_bytes.size()) - kRecordHead;
    qToLittleEndian(kMark | static_cast<std::uint32_t>(_type), head);
    qToLittleEndian(length, head + kLengthAt);
    const std::uint64_t seed = seedOf(head, place);
    qToLittleEndian(static_cast<std::uint32_t>(seed), head + kHeadSumAt);
    qToLittleEndian(std::uint64_t{XXH3_64bits_withSeed(head + kRecordHead, length, seed)}, head + kSumAt);
    return _bytes;
}

// ---- Reading

bool RecordParser::take(QString* name) {
    std::uint32_t bytes = 0;
    if (!take(&bytes) || bytes > kMostNameBytes || bytes % 2 != 0 || !has(bytes)) {
        return _sound = false;
    }
    name->resize(static_cast<qsizetype>(bytes / 2));
    for (QChar& letter : *name) {
        letter = QChar(numberAt<std::uint16_t>(_at));
        skip(2);
    }
    return true;
}

// Of none, there is nothing to say of the single one.
bool RecordParser::takeLayers(PictureShape* picture) {
    std::uint32_t count = 0, front = 0;
    if (!take(&count) || !take(&front) || count > kMostLayers || front >= (std::max)(count, 1u)) {
        return _sound = false;
    }
    std::vector<Layer> layers(count);
    for (Layer& layer : layers) {
        LayerSettings& settings = layer.settings;
        std::uint8_t flags = 0;
        const bool taken = take(&layer.id) && take(&settings.name) && take(&settings.opacity) &&
                           take(&settings.blendType) && take(&flags);
        if (!taken || !(settings.opacity >= 0 && settings.opacity <= 1)) {
            return _sound = false;
        }
        settings.isVisible = (flags & kVisible) != 0;
        settings.locksAlpha = (flags & kLocked) != 0;
    }
    picture->front = front;
    picture->layers = count > 0 ? std::make_shared<const std::vector<Layer>>(std::move(layers)) : nullptr;
    return true;
}

bool RecordParser::take(PictureShape* picture, std::vector<TileChange>* changes,
                        const JournalFormat& format) {
    std::uint32_t width = 0, height = 0, count = 0;
    if (!take(&width) || !take(&height) || width > kMostSide || height > kMostSide) {
        return _sound = false;
    }
    picture->size = {static_cast<int>(width), static_cast<int>(height)};
    const JournalFormat own{picture->size, format.pixelBytes};
    if (!takeLayers(picture) || !own.isSound() || !take(&count) || !has(std::size_t{count} * kChangeBytes)) {
        return _sound = false;
    }
    const std::uint64_t tiles = own.tiles() * std::uint64_t{picture->planes()};
    changes->resize(count);
    for (TileChange& change : *changes) {
        take(&change.index);
        take(&change.tile);
        _sound = _sound && change.index < tiles;
    }
    return _sound;
}

std::optional<RecordHead> headOf(const char* bytes, const RecordPlace& place) {
    const auto mark = numberAt<std::uint32_t>(bytes);
    const auto type = static_cast<RecordType>(mark & 0xFF);
    if ((mark & ~0xFFu) != kMark || type < RecordType::segment || type > RecordType::stacks) {
        return {};
    }
    const std::uint64_t seed = seedOf(bytes, place);
    if (numberAt<std::uint32_t>(bytes + kHeadSumAt) != static_cast<std::uint32_t>(seed)) {
        return {};
    }
    return RecordHead{type, numberAt<std::uint32_t>(bytes + kLengthAt), seed,
                      numberAt<std::uint64_t>(bytes + kSumAt)};
}

bool isWhole(const RecordHead& head, const char* payload) {
    return XXH3_64bits_withSeed(payload, head.length, head.seed) == head.sum;
}

// ---- Segments

RecordWriter recordOf(const SegmentHead& head) {
    RecordWriter record(RecordType::segment, kSegmentHeadBytes);
    record.put(kJournalVersion).put(head.segment).put(head.journal).put(head.created);
    record.put(std::int32_t{head.format.picture.width}).put(std::int32_t{head.format.picture.height});
    record.put(std::int32_t{head.format.pixelBytes}).put(std::int32_t{kTileSide});
    return record;
}

std::optional<SegmentHead> segmentHeadOf(const char* bytes) {
    const auto head = headOf(bytes, kSegmentHead);
    if (!head || head->type != RecordType::segment || head->length != kSegmentHeadBytes - kRecordHead ||
        !isWhole(*head, bytes + kRecordHead)) {
        return {};
    }
    SegmentHead result;
    std::uint32_t version = 0;
    std::int32_t width = 0, height = 0, pixelBytes = 0, tileSide = 0;
    RecordParser parser(bytes + kRecordHead, head->length);
    parser.take(&version);
    parser.take(&result.segment);
    parser.take(&result.journal);
    parser.take(&result.created);
    parser.take(&width);
    parser.take(&height);
    parser.take(&pixelBytes);
    parser.take(&tileSide);
    result.format = {{width, height}, pixelBytes};
    const bool known = parser.isDone() && version == kJournalVersion && tileSide == kTileSide;
    return known && result.format.isSound() && result.segment != 0 ? std::optional(result) : std::nullopt;
}

bool beginsSegment(const char* bytes, std::size_t size) {
    const auto head = size < kRecordHead ? std::nullopt : headOf(bytes, kSegmentHead);
    return head && head->type == RecordType::segment && head->length <= size - kRecordHead &&
           isWhole(*head, bytes + kRecordHead);
}

QString segmentName(std::uint32_t number) {
    return QStringLiteral("tiles-%1.journal").arg(number, 8, 10, QLatin1Char('0'));
}

std::uint32_t numberOfSegment(const QString& name) {
    const std::uint32_t number = name.mid(6, 8).toUInt();
    return number != 0 && name == segmentName(number) ? number : 0;
}

// ---- Tiles

QByteArray readTileRecord(const SegmentFile& file, std::uint64_t journal, const TilePlace& place,
                          std::uint64_t id, QString* problem) {
    constexpr std::size_t kHeads = kRecordHead + kTileHead;
    try {
        std::vector<char> record(kHeads + place.size);
        if (!file.read(place.offset, record.data(), record.size())) {
            *problem = QStringLiteral("%1 is shorter than it was").arg(file.path());
            return {};
        }
        const auto head = headOf(record.data(), {journal, place.segment, place.offset});
        const char* payload = record.data() + kRecordHead;
        if (!head || head->type != RecordType::tile || head->length != kTileHead + place.size ||
            !isWhole(*head, payload) || numberAt<std::uint64_t>(payload) != id ||
            numberAt<std::uint16_t>(payload + 8) != place.rawSize) {
            *problem = QStringLiteral("%1 is damaged at %2").arg(file.path()).arg(place.offset);
            return {};
        }
        return QByteArray(payload + kTileHead, place.size);
    } catch (const std::bad_alloc&) {
        *problem = QStringLiteral("there is no memory");
        return {};
    }
}

}  // namespace dabcanvas
