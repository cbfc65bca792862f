// SPDX-License-Identifier: MIT
#include "History/RecoveryThumbnail.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

#include "History/Packing.h"
#include "Surface/TileSet.h"

namespace dabcanvas {

namespace {

// Sums up the pixels of a picture by the pixel of a smaller one that they lie below.
class Averages {
public:
    Averages(const Size& picture, int side) : _picture(picture) {
        const int longer = std::max({picture.width, picture.height, side});
        const auto reduced = [&](int length) {
            return std::max(1, static_cast<int>(std::int64_t{length} * side / longer));
        };
        _small = {reduced(picture.width), reduced(picture.height)};
        _sums.resize(static_cast<std::size_t>(Rect::of(_small).area()));
    }

    // Channels of 8 or 16 bits, premultiplied RGBA, kTileSide pixels a row.
    template <typename Channel>
    void add(const QByteArray& tile, int x, int y) {
        const int columns = std::min(kTileSide, _picture.width - x),
                  rows = std::min(kTileSide, _picture.height - y);
        for (int row = 0; row < rows; ++row) {
            const char* from = tile.constData() + qsizetype{row} * kTileSide * 4 * qsizetype{sizeof(Channel)};
            for (int column = 0; column < columns; ++column, from += 4 * sizeof(Channel)) {
                Channel pixel[4];
                std::memcpy(pixel, from, sizeof pixel);
                Sum& sum = _sums[indexOf(x + column, y + row)];
                for (std::size_t i = 0; i < 4; ++i) {
                    sum[i] += pixel[i];
                }
            }
        }
    }

    // Of channels whose full scale this is.
    QImage image(std::uint64_t full) const {
        QImage image(_small.width, _small.height, QImage::Format_RGBA8888_Premultiplied);
        for (int y = 0; y < image.height(); ++y) {
            uchar* to = image.scanLine(y);
            for (int x = 0; x < image.width(); ++x, to += 4) {
                const std::uint64_t whole =
                    below(x, _small.width, _picture.width) * below(y, _small.height, _picture.height) * full;
                const Sum& sum = _sums[static_cast<std::size_t>(y) * static_cast<std::size_t>(_small.width) +
                                       static_cast<std::size_t>(x)];
                for (std::size_t i = 0; i < 4; ++i) {
                    to[i] = static_cast<uchar>((sum[i] * 255 + whole / 2) / whole);
                }
            }
        }
        return image;
    }

private:
    using Sum = std::array<std::uint64_t, 4>;

    static std::int64_t reduced(std::int64_t at, int small, int large) { return at * small / large; }
    std::size_t indexOf(int x, int y) const {
        return static_cast<std::size_t>(reduced(y, _small.height, _picture.height) * _small.width +
                                        reduced(x, _small.width, _picture.width));
    }
    // How many of a side's pixels lie below one.
    static std::uint64_t below(std::int64_t at, int small, int large) {
        const auto begin = [&](std::int64_t one) { return (one * large + small - 1) / small; };
        return static_cast<std::uint64_t>(begin(at + 1) - begin(at));
    }

    const Size _picture;
    Size _small;
    std::vector<Sum> _sums;
};

QByteArray pixelsOf(const JournalContents& contents, std::uint64_t tile) {
    QString problem;
    const QByteArray stored = contents.readTile(tile, &problem);
    const auto expected = qsizetype{contents.format.mostTileBytes()};
    const qsizetype rawSize = contents.tiles.at(tile).rawSize;
    const QByteArray pixels =
        stored.size() == rawSize || stored.isNull() ? stored : unpacked(stored, rawSize);
    return pixels.size() == expected ? pixels : QByteArray();
}

}  // namespace

QImage thumbnailOf(const JournalContents& contents, int step, int side) {
    if (step < 0) {
        return {};
    }
    const Size& picture = contents.pictureSize();
    const bool deep = contents.format.pixelBytes == 8;
    Averages averages(picture, side);
    const auto columns = static_cast<std::uint32_t>((picture.width + kTileSide - 1) / kTileSide);
    for (const TileChange& tile : contents.pictureOf(step)) {
        const QByteArray pixels = pixelsOf(contents, tile.tile);
        const int x = static_cast<int>(tile.index % columns) * kTileSide;
        const int y = static_cast<int>(tile.index / columns) * kTileSide;
        if (pixels.isNull()) {
            return {};
        }
        if (deep) {
            averages.add<std::uint16_t>(pixels, x, y);
        } else {
            averages.add<std::uint8_t>(pixels, x, y);
        }
    }
    return averages.image(deep ? 65535 : 255);
}

}  // namespace dabcanvas
