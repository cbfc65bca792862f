// SPDX-License-Identifier: MIT
// How a journal lies in its files, for those who write and those who read it.
//
// A journal is a folder of segments, "tiles-00000001.journal" and so on; a segment is records without gaps, of which the
// first tells what journal it is of. Numbers are little endian on every machine.
//
//     mark and type  4   which records are found by after damage
//     length         4   bytes of the payload
//     head's sum     4   of the eight bytes before
//     sum            8   of the payload, seeded by the head's
//     payload
//
// Both are XXH3 and begin with the place, that is journal, segment and offset: what lies elsewhere than it was written,
// or is left of an older file, is no record. Neither is a tile's pixels, whatever they look like.
#pragma once

#include <QByteArray>
#include <QString>
#include <QtEndian>
#include <cstdint>
#include <cstring>
#include <optional>
#include <vector>

#include "History/PictureShape.h"

namespace dabcanvas {

class SegmentFile;

// ---- What a journal holds

struct JournalFormat {
    Size picture;        // as the journal began: steps tell their own
    int pixelBytes = 4;  // or 8

    friend bool operator==(const JournalFormat&, const JournalFormat&) = default;
    bool isSound() const;
    std::uint32_t tiles() const;  // in the grid
    std::uint32_t mostTileBytes() const;
};

// Where a tile lies: 12 bytes, as there are many.
struct TilePlace {
    std::uint32_t segment = 0;  // from 1
    std::uint32_t offset = 0;   // of the record
    std::uint16_t size = 0;     // of the tile as it is stored
    std::uint16_t rawSize = 0;  // and unpacked; the same: it is not packed

    friend bool operator==(const TilePlace&, const TilePlace&) = default;
};

struct TileChange {
    std::uint32_t index = 0;  // in the grid, row by row
    std::uint64_t tile = 0;   // 0: the transparent one

    friend bool operator==(const TileChange&, const TileChange&) = default;
};

// ---- Its records

enum class RecordType : std::uint8_t { segment = 1, tile, step, stacks };

inline constexpr std::uint32_t kRecordHead = 20;
inline constexpr std::uint32_t kTileHead = 10;  // of a tile's payload: its id and its size unpacked
inline constexpr std::uint32_t kMostRecord = 64 << 20;
inline constexpr std::uint32_t kJournalVersion = 4;
inline constexpr std::uint32_t kMostNameBytes = 1 << 16;

struct RecordPlace {
    std::uint64_t journal = 0;
    std::uint32_t segment = 0;
    std::uint32_t offset = 0;
};
// The first record of every segment, whose journal is not known yet.
inline constexpr RecordPlace kSegmentHead{};

// Begins with room for the head, and for about so many bytes more.
class RecordWriter {
public:
    RecordWriter(RecordType type, qsizetype about) : _type(type) {
        _bytes.reserve(qsizetype{kRecordHead} + about);
        _bytes.resize(kRecordHead);
    }
    template <typename Number>
    RecordWriter& put(Number number) {
        char bytes[sizeof number];
        qToLittleEndian(number, bytes);
        _bytes.append(bytes, sizeof bytes);
        return *this;
    }
    RecordWriter& put(const QByteArray& bytes) {
        _bytes.append(bytes);
        return *this;
    }
    RecordWriter& put(const QString& name);  // as it is, whatever is in it
    RecordWriter& put(const std::vector<TileChange>& changes);
    RecordWriter& put(const PictureShape& picture);

    // Writes the head; may be done again for another place.
    const QByteArray& sealed(const RecordPlace& place);
    std::int64_t size() const { return _bytes.size(); }

private:
    QByteArray _bytes;
    RecordType _type;
};

// Takes a payload apart. False, from then on, when it does not hold what is asked for.
class RecordParser {
public:
    RecordParser(const char* payload, std::size_t size) : _at(payload), _left(size) {}
    template <typename Number>
    bool take(Number* number) {
        if (!has(sizeof *number)) {
            return false;
        }
        *number = qFromLittleEndian<Number>(_at);
        skip(sizeof *number);
        return true;
    }
    bool take(QString* name);
    // What a picture is and what changed of it; pixels are of the format.
    bool take(PictureShape* picture, std::vector<TileChange>* changes, const JournalFormat& format);
    bool isDone() const { return _sound && _left == 0; }

private:
    bool takeLayers(PictureShape* picture);
    bool has(std::size_t bytes) { return _sound = _sound && bytes <= _left; }
    void skip(std::size_t bytes) {
        _at += bytes;
        _left -= bytes;
    }

    const char* _at;
    std::size_t _left;
    bool _sound = true;
};

struct RecordHead {
    RecordType type;
    std::uint32_t length;  // of the payload
    std::uint64_t seed, sum;
};
// Of kRecordHead bytes; none where no record begins.
std::optional<RecordHead> headOf(const char* bytes, const RecordPlace& place);
bool isWhole(const RecordHead& head, const char* payload);

struct SegmentHead {
    std::uint64_t journal = 0;
    std::uint32_t segment = 0;
    JournalFormat format;
    std::int64_t created = 0;  // milliseconds since 1970
};
RecordWriter recordOf(const SegmentHead& head);
inline constexpr std::uint32_t kSegmentHeadBytes = kRecordHead + 40;
// Of kSegmentHeadBytes; none for another version, too.
std::optional<SegmentHead> segmentHeadOf(const char* bytes);
// Whether these begin with one, of whatever version.
bool beginsSegment(const char* bytes, std::size_t size);

QString segmentName(std::uint32_t number);
std::uint32_t numberOfSegment(const QString& name);  // 0 for another file's

// The bytes of a tile as they were given; null, and why, when they are not there any more or damaged.
QByteArray readTileRecord(const SegmentFile& file, std::uint64_t journal, const TilePlace& place,
                          std::uint64_t id, QString* problem);

}  // namespace dabcanvas
