// SPDX-License-Identifier: MIT
// Inputs of JournalReadFuzz. Sums of 64 bits are never hit by chance, so that most inputs leave them to be made:
//
//     0, then any bytes                              a segment as it is
//     1, then frames: op, length (2 bytes), bytes    segments: ops 2 to 4 are records of these types, whose sums are made;
//                                                    6 begins another segment, all others are bytes between the records
#pragma once

#include <QByteArray>
#include <cstdint>
#include <utility>
#include <vector>

#include "History/JournalRecord.h"

namespace dabcanvas {

inline constexpr std::uint64_t kFramesJournal = 0x0123456789ABCDEF;
inline constexpr JournalFormat kFramesFormat{{320, 200}, 4};
inline constexpr std::uint8_t kNextSegment = 6;

using NumberedSegment = std::pair<std::uint32_t, QByteArray>;

inline NumberedSegment segmentBegun(std::uint32_t number) {
    return {number, recordOf(SegmentHead{kFramesJournal, number, kFramesFormat, 1}).sealed(kSegmentHead)};
}

inline std::vector<NumberedSegment> segmentsOf(const std::uint8_t* data, std::size_t size) {
    const auto bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (size == 0 || data[0] != 1) {
        return {{1, bytes.mid(1)}};
    }
    std::vector<NumberedSegment> segments{segmentBegun(1)};
    for (qsizetype at = 1; at + 3 <= bytes.size();) {
        const auto op = static_cast<std::uint8_t>(bytes[at]);
        const QByteArray payload =
            bytes.mid(at + 3, qFromLittleEndian<std::uint16_t>(bytes.constData() + at + 1));
        at += 3 + payload.size();
        auto& [number, file] = segments.back();
        if (op == kNextSegment) {
            segments.push_back(segmentBegun(number + 1));
        } else if (op >= static_cast<std::uint8_t>(RecordType::tile) &&
                   op <= static_cast<std::uint8_t>(RecordType::stacks)) {
            RecordWriter record(static_cast<RecordType>(op), payload.size());
            record.put(payload);
            file += record.sealed({kFramesJournal, number, static_cast<std::uint32_t>(file.size())});
        } else {
            file += payload;
        }
    }
    return segments;
}

}  // namespace dabcanvas
