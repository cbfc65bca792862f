// SPDX-License-Identifier: MIT
#include "History/JournalScan.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <unordered_map>

#include "History/SegmentFile.h"

namespace dabcanvas {

namespace {

constexpr std::int64_t kWindow = 64 << 10;

struct OpenedSegment {
    JournalSegment segment;
    std::optional<SegmentHead> head;
};

std::vector<OpenedSegment> openSegments(const QString& folder, QString* problem) {
    std::vector<OpenedSegment> opened;
    const QStringList names = QDir(folder).entryList({QStringLiteral("tiles-*.journal")},
                                                     QDir::Files | QDir::NoSymLinks, QDir::NoSort);
    for (const QString& name : names) {
        OpenedSegment one;
        one.segment.number = numberOfSegment(name);
        one.segment.file = SegmentFile::open(folder + QLatin1Char('/') + name, problem);
        if (one.segment.number == 0 || !one.segment.file) {
            continue;
        }
        one.segment.size = std::min<std::int64_t>(one.segment.file->size(), UINT32_MAX);
        char head[kSegmentHeadBytes];
        if (one.segment.file->read(0, head, sizeof head)) {
            one.head = segmentHeadOf(head);
        }
        opened.push_back(std::move(one));
    }
    std::sort(opened.begin(), opened.end(), [](const OpenedSegment& one, const OpenedSegment& other) {
        return one.segment.number < other.segment.number;
    });
    return opened;
}

bool isInPlace(const OpenedSegment& one) {
    return one.head && one.head->segment == one.segment.number;
}

// Most segments are of the journal that the folder is of.
const SegmentHead* commonHead(const std::vector<OpenedSegment>& opened) {
    std::unordered_map<std::uint64_t, int> counts;
    const SegmentHead* common = nullptr;
    for (const OpenedSegment& one : opened) {
        if (isInPlace(one) && ++counts[one.head->journal] >= (common ? counts[common->journal] : 0)) {
            common = &*one.head;
        }
    }
    return common;
}

}  // namespace

bool openJournal(const QString& folder, JournalContents* contents, QString* problem) {
    std::vector<OpenedSegment> opened = openSegments(folder, problem);
    const SegmentHead* head = commonHead(opened);
    if (head == nullptr && problem->isEmpty()) {
        *problem = QStringLiteral("%1 holds no journal that can be read").arg(folder);
    }
    if (!problem->isEmpty()) {
        return false;
    }
    contents->journal = head->journal;
    contents->format = head->format;
    contents->lastRecord = head->created;
    for (OpenedSegment& one : opened) {
        const bool ours =
            isInPlace(one) && one.head->journal == contents->journal && one.head->format == contents->format;
        if (ours || !one.head) {  // one whose head is damaged has records all the same
            contents->segments.push_back(std::move(one.segment));
        }
    }
    return true;
}

bool mayHoldJournal(const QString& folder) {
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    return !QFileInfo(folder).isReadable() ||
           std::any_of(files.begin(), files.end(), [](const QFileInfo& info) {
               char head[4096];
               QFile file(info.filePath());
               const qint64 size = file.open(QIODevice::ReadOnly) ? file.read(head, sizeof head) : -1;
               return size < 0 || beginsSegment(head, static_cast<std::size_t>(size));
           });
}

std::optional<JournalScan::Found> JournalScan::foundAt(const char* bytes, std::int64_t offset) const {
    const auto place = RecordPlace{_journal, _segment.number, static_cast<std::uint32_t>(offset)};
    const auto head = headOf(bytes, place);
    if (!head || head->length > kMostRecord || head->length > _segment.size - offset - kRecordHead) {
        return {};
    }
    return Found{*head, place.offset};
}

std::optional<JournalScan::Found> JournalScan::next() {
    char bytes[kRecordHead];
    if (_segment.size - _at < kRecordHead) {
        return {};
    }
    std::optional<Found> found;
    if (_segment.file->read(_at, bytes, sizeof bytes)) {
        found = foundAt(bytes, _at);
    }
    if (!found) {
        found = search();
    }
    _at = found ? std::int64_t{found->offset} + kRecordHead + found->head.length : _segment.size;
    return found;
}

// Behind damage records begin where a head is found.
std::optional<JournalScan::Found> JournalScan::search() {
    std::vector<char> window(kWindow);
    for (std::int64_t from = _at + 1; _segment.size - from >= kRecordHead;
         from += kWindow - kRecordHead + 1) {
        const auto length = static_cast<std::size_t>(std::min(kWindow, _segment.size - from));
        if (!_segment.file->read(from, window.data(), length)) {
            continue;
        }
        for (std::size_t i = 0; i + kRecordHead <= length; ++i) {
            const auto found = foundAt(window.data() + i, from + static_cast<std::int64_t>(i));
            if (found) {
                return found;
            }
        }
    }
    return {};
}

bool JournalScan::readPayload(const Found& found, std::vector<char>* payload) const {
    payload->resize(found.head.length);
    return _segment.file->read(std::int64_t{found.offset} + kRecordHead, payload->data(), payload->size()) &&
           isWhole(found.head, payload->data());
}

}  // namespace dabcanvas
