// SPDX-License-Identifier: MIT
#include "History/RecoveryThumbnail.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

#include "History/Packing.h"
#include "Processor/LayerTiles.h"
#include "Surface/TilePixels.h"

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

// What a layer looks like; null when a tile is lost.
QImage reducedLayer(const JournalContents& contents, const std::vector<TileChange>& tiles, std::size_t layer,
                    int side) {
    const TileLayout layout(contents.pictureSize());
    const bool deep = contents.format.pixelBytes == 8;
    Averages averages(layout.picture(), side);
    for (const TileChange& tile : tiles) {
        if (tile.index / layout.count() != layer) {
            continue;
        }
        const QByteArray pixels = pixelsOf(contents, tile.tile);
        const Rect place = layout.rectOf(tile.index % layout.count());
        if (pixels.isNull()) {
            return {};
        }
        if (deep) {
            averages.add<std::uint16_t>(pixels, place.x, place.y);
        } else {
            averages.add<std::uint8_t>(pixels, place.x, place.y);
        }
    }
    return averages.image(deep ? 65535 : 255);
}

// Small pictures are put together as the canvas is: a tile's worth of them at a time.
void compose(const std::vector<QImage>& layers, const std::vector<Layer>& settings, QImage* result) {
    const auto part = [](const QImage& image, const Rect& place) {
        return PixelView{image.constScanLine(place.y) + qsizetype{place.x} * 4,
                         {place.width, place.height},
                         image.bytesPerLine()};
    };
    const TileLayout layout(Size{result->width(), result->height()});
    for (std::size_t index = 0; index < layout.count(); ++index) {
        const Rect place = layout.rectOf(index);
        const auto composed = newTile(4);
        std::vector<SharedTile> tiles;
        LayeredTile tile{{}, composed.get()};
        for (std::size_t i = 0; i < layers.size(); ++i) {
            const auto pixels = newTile(4);
            copyRows(part(layers[i], place), rowsOfTile(pixels, {place.width, place.height}, 4));
            if (settings[i].settings.isVisible) {
                tile.layers.push_back(
                    {pixels.get(), settings[i].settings.blendType, settings[i].settings.opacity});
            }
            tiles.push_back(pixels);
        }
        composeTiles({&tile, 1}, 4);
        copyRows(rowsOfTile(SharedTile(composed), {place.width, place.height}, 4),
                 {result->scanLine(place.y) + qsizetype{place.x} * 4,
                  {place.width, place.height},
                  result->bytesPerLine()});
    }
}

}  // namespace

QImage thumbnailOf(const JournalContents& contents, int step, int side) {
    if (step < 0) {
        return {};
    }
    const PictureShape& shape = contents.steps[static_cast<std::size_t>(step)].picture;
    const std::vector<TileChange> tiles = contents.pictureOf(step);
    std::vector<QImage> layers;
    for (std::size_t i = 0; i < shape.planes(); ++i) {
        layers.push_back(reducedLayer(contents, tiles, i, side));
        if (layers.back().isNull()) {
            return {};
        }
    }
    if (!shape.layers) {
        return layers.front();
    }
    QImage result(layers.front().size(), QImage::Format_RGBA8888_Premultiplied);
    compose(layers, *shape.layers, &result);
    return result;
}

}  // namespace dabcanvas
