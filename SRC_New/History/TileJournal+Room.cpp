// SPDX-License-Identifier: MIT
// What is needed of a journal, and what goes.
#include <algorithm>
#include <numeric>
#include <utility>

#include "History/SegmentFile.h"
#include "History/TileJournal.h"

namespace dabcanvas {

void TileJournal::release(const TilePlace& place) {
    const std::lock_guard lock(_mutex);
    const auto found = _segments.find(place.segment);
    if (found == _segments.end()) {
        return;
    }
    Segment& segment = found->second;
    const auto before = [](const LiveTile& tile, std::uint32_t at) { return tile.offset < at; };
    const auto tile = std::lower_bound(segment.tiles.begin(), segment.tiles.end(), place.offset, before);
    if (tile != segment.tiles.end() && tile->offset == place.offset && tile->bytes != 0) {
        segment.live -= std::exchange(tile->bytes, 0);
        if (segment.live == 0) {
            dropEmpty();
        }
    }
}

void TileJournal::dropEmpty() {
    for (auto segment = _segments.begin(); segment != _segments.end();) {
        const auto& [number, part] = *segment;
        if (number != _open && part.live == 0 && (!isKept() || number < _checkpointed)) {
            part.file->remove();
            segment = _segments.erase(segment);
        } else {
            ++segment;
        }
    }
}

bool TileJournal::isAway(const Segment& segment) const {
    return !segment.file->path().startsWith(_folder + QLatin1Char('/')) || !segment.file->isInFolder();
}

std::int64_t TileJournal::sumOf(std::int64_t Segment::*bytes) const {
    const std::lock_guard lock(_mutex);
    const auto add = [bytes](std::int64_t sum, const auto& segment) { return sum + segment.second.*bytes; };
    return std::accumulate(_segments.begin(), _segments.end(), std::int64_t{0}, add);
}

std::int64_t TileJournal::bytesOnDisk() const {
    return sumOf(&Segment::size);
}

std::int64_t TileJournal::liveBytes() const {
    return sumOf(&Segment::live);
}

std::vector<std::uint64_t> TileJournal::tilesInSparseSegments(double share) const {
    const std::lock_guard lock(_mutex);
    std::vector<std::uint64_t> tiles;
    for (const auto& [number, segment] : _segments) {
        const bool sparse =
            number != _open && static_cast<double>(segment.live) < share * static_cast<double>(segment.size);
        if (sparse || (isKept() && isAway(segment))) {
            for (const LiveTile& tile : segment.tiles) {
                if (tile.bytes != 0) {
                    tiles.push_back(tile.id);
                }
            }
        }
    }
    return tiles;
}

void TileJournal::removeFiles() {
    const std::lock_guard lock(_mutex);
    for (const auto& [number, segment] : _segments) {
        segment.file->remove();
    }
}

}  // namespace dabcanvas
