// SPDX-License-Identifier: MIT
// The segments of a journal's folder, and the records of a segment one by one, past what is damaged.
//
// Errors   throws std::bad_alloc, nothing else.
#pragma once

#include <optional>
#include <vector>

#include "History/JournalReader.h"

namespace dabcanvas {

// Fills in format, id and segments, in order. Files of other journals and whatever else is there are left out. False,
// and why, without one segment that can be read, and where there are too many for now: a part would be taken for all.
bool openJournal(const QString& folder, JournalContents* contents, QString* problem);

// Whether a file there looks like a segment, of whatever version, or cannot be looked at.
bool mayHoldJournal(const QString& folder);

class JournalScan {
public:
    JournalScan(const JournalSegment& segment, std::uint64_t journal)
        : _segment(segment), _journal(journal), _at(kSegmentHeadBytes) {}

    struct Found {
        RecordHead head;
        std::uint32_t offset;
    };
    // The next one that lies wholly in the file; its payload may be damaged.
    std::optional<Found> next();
    // False when it is.
    bool readPayload(const Found& found, std::vector<char>* payload) const;

private:
    std::optional<Found> foundAt(const char* head, std::int64_t offset) const;
    std::optional<Found> search();

    const JournalSegment& _segment;
    const std::uint64_t _journal;
    std::int64_t _at;
};

}  // namespace dabcanvas
