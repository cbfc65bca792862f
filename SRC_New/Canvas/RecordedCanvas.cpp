// SPDX-License-Identifier: MIT
#include "Canvas/RecordedCanvas.h"

#include <cstdio>
#include <cstring>
#include <new>
#include <optional>
#include <utility>

#include "Surface/DepthRows.h"

namespace dabcanvas {
namespace {

constexpr PictureId kPicture = PictureId::first;

bool looksAlike(const SharedTile& one, const SharedTile& other, int pixelBytes) {
    const auto bytes = [](const SharedTile& tile) { return tile ? tile.get() : kTransparentTile; };
    return one == other || std::memcmp(bytes(one), bytes(other), tileBytes(pixelBytes)) == 0;
}

template <typename Result, typename Work>
Result withMemory(const Work& work, Result otherwise) {
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return otherwise;
    }
}

}  // namespace

void tellNoMemory(int line) {
    std::printf("创建数据失败(%s:%d)!", "SRC_New/QDEAGLView/QDDrawView", line);
}

RecordedCanvas::RecordedCanvas(PaintLayers& layers)
    : _layers(layers),
      _tiles(std::make_shared<TileStore>(layers.size(), layers.surface().pixelBytes())),
      _planes(layers.size()) {}

// ---- Given

void RecordedCanvas::give(const QByteArray& data) {
    become(nullptr);
    _told = nullptr;
    _bytes = data;
    _isCanvas = false;
    _given = hasCanvasSize();
}

void RecordedCanvas::startAnew() {
    auto tiles = std::make_shared<TileStore>(_layers.size(), _layers.surface().pixelBytes());
    LayerPlanes::Others others = othersIn(*tiles);
    give({});
    becomeLayers(_planes.shape(), std::move(others));
    _tiles = std::move(tiles);
}

void RecordedCanvas::forgetCanvas(LayerPlanes::Others others) {
    become(nullptr);
    PictureShape shape = _planes.shape();
    shape.size = _layers.size();
    becomeLayers(shape, std::move(others));
    _told = nullptr;
    _bytes.clear();
    _isCanvas = false;
}

bool RecordedCanvas::giveBlank() {
    give({});
    return withMemory(
        [&] {
            become(std::make_shared<const TilePicture>(_layers.size()));
            _told = _picture;
            return true;
        },
        false);
}

// Of a picture that a host keeps: tiles that are the canvas's already are not kept twice. Throws std::bad_alloc.
TilePicture RecordedCanvas::tilesOf(const QByteArray& bytes) {
    if (bytes.size() != bytesOfCanvas()) {
        throw std::bad_alloc();  // there was no memory for them
    }
    const auto* const block = reinterpret_cast<const std::uint8_t*>(bytes.constData());
    return tilesOf(PixelView::bottomRowFirst(block, _layers.size()),
                   _picture && _isCanvas ? *_picture : TilePicture(_layers.size()));
}

TilePicture RecordedCanvas::tilesOf(const PixelView& rows, TilePicture picture) {
    const int pixelBytes = _layers.surface().pixelBytes();
    for (std::size_t index = 0; index < picture.layout().count(); ++index) {
        const Rect rect = picture.layout().rectOf(index);
        const auto tile = newTile(pixelBytes);
        const MutablePixelView to = rowsOfTile(tile, {rect.width, rect.height}, pixelBytes);
        pixelBytes == rows.pixelBytes ? copyRows(rows.part(rect), to) : widenRows(rows.part(rect), to);
        picture.set(index, version({index, tile}, picture.at(index)));
    }
    return picture;
}

// ---- Reading

// The version that a tile is: the one before where nothing changed.
TileRef RecordedCanvas::version(const PlacedTile& read, const TileRef& before) {
    const SharedTile old = before ? pixelsOf(*before) : nullptr;
    if ((!before || old) && looksAlike(read.tile, old, _layers.surface().pixelBytes())) {
        return before;
    }
    return read.tile ? _tiles->keep(read.tile) : nullptr;
}

TileSet RecordedCanvas::tilesIn(const Rect& area) const {
    TileSet tiles(_layers.size());
    tiles.add(area);
    return tiles;
}

// Throws std::bad_alloc.
std::optional<RecordedCanvas::Changes> RecordedCanvas::readTiles(const TilePicture& before) {
    Changes changes;
    PlacedTile last;  // a colour that fills the canvas is one tile in all places
    TileRef lastVersion;
    const auto look = [&](const PlacedTile& tile) {
        const TileRef& old = before.at(tile.index);
        if (!tile.tile || tile.tile != last.tile) {
            lastVersion = version(tile, old);
            last = tile;
        }
        if (lastVersion != old) {
            changes.emplace_back(tile.index, lastVersion);
        }
    };
    const bool read = _isCanvas ? _layers.keep(_layers.surface().touched(kPicture), look)
                                : _layers.keep(tilesIn(_layers.whole()), look);
    return read ? std::optional(std::move(changes)) : std::nullopt;
}

bool RecordedCanvas::readCanvas() {
    return withMemory(
        [&] {
            auto next = std::make_shared<TilePicture>(_picture && _isCanvas ? *_picture
                                                                            : TilePicture(_layers.size()));
            const auto changes = readTiles(*next);
            for (const auto& [index, tile] : changes.value_or(Changes())) {
                next->set(index, tile);
            }
            if (changes) {
                become(changes->empty() && _isCanvas && _picture ? _picture : next);
                _isCanvas = true;
                _layers.surface().forgetTouched(kPicture);
            }
            return changes.has_value();
        },
        false);
}

bool RecordedCanvas::read(int line) {
    const Picture whole = readCanvas() ? wholePicture() : nullptr;
    if (whole) {
        _told = whole;
        _bytes.clear();
        return true;
    }
    if (!_layers.isLost()) {
        tellNoMemory(line);
    }
    return false;
}

std::shared_ptr<const TilePicture> RecordedCanvas::present() {
    return !_given && readCanvas() ? wholePicture() : nullptr;
}

void RecordedCanvas::refresh(int line) {
    if (!read(line) && !_layers.isLost()) {  // of a lost one, what was last recorded is all there is
        give({});
    }
}

// ---- Putting back

std::optional<Rect> RecordedCanvas::restore(const Rect& area) {
    if (_given) {
        QString problem;
        const auto changed = show(data(), &problem);
        return changed ? std::optional(_layers.whole()) : std::nullopt;
    }
    if (!_picture) {
        return std::nullopt;
    }
    return withMemory(
        [&] {
            std::vector<PlacedTile> placed;
            bool all = true;
            tilesIn(area).forEach(
                [&](std::size_t index) { all = all && place(*_picture, index, placed, nullptr); });
            return all && _layers.put(placed, area) ? std::optional(area) : std::nullopt;
        },
        std::optional<Rect>());
}

// False when the tile cannot be had. One that lies in many places, as a colour does that fills the canvas, is had once.
bool RecordedCanvas::place(const TilePicture& picture, std::size_t index, std::vector<PlacedTile>& placed,
                           QString* problem) {
    const TileRef& tile = picture.at(index);
    const bool isLast = !placed.empty() && picture.at(placed.back().index) == tile;
    SharedTile pixels = !tile ? nullptr : isLast ? placed.back().tile : pixelsOf(*tile, problem);
    placed.push_back({index, std::move(pixels)});
    return !tile || placed.back().tile;
}

// Those that look another way than the known ones, or all of them.
std::vector<PlacedTile> RecordedCanvas::shownTiles(const QImage& shown,
                                                   const std::vector<PlacedTile>& known) const {
    const int pixelBytes = _layers.surface().pixelBytes();
    const PixelView all{shown.constBits(), _layers.size(), shown.bytesPerLine()};
    const TileLayout layout(_layers.size());
    std::vector<PlacedTile> tiles;
    for (std::size_t index = 0; index < layout.count(); ++index) {
        const Rect rect = layout.rectOf(index);
        const Size size{rect.width, rect.height};
        const auto now = newTile(4), before = newTile(4);
        copyRows(all.part(rect), rowsOfTile(now, size, 4));
        if (!known.empty()) {
            const PixelView rows = rowsOfTile(known[index].tile, size, pixelBytes);
            pixelBytes == 4 ? copyRows(rows, rowsOfTile(before, size, 4))
                            : roundRows(rows, rowsOfTile(before, size, 4), rect.x, rect.y);
        }
        if (!known.empty() && looksAlike(now, before, 4)) {
            continue;
        }
        const auto tile = pixelBytes == 4 ? now : newTile(pixelBytes);
        if (tile != now) {
            widenRows(rowsOfTile(SharedTile(now), size, 4), rowsOfTile(tile, size, pixelBytes));
        }
        tiles.push_back({index, tile});
    }
    return tiles;
}

bool RecordedCanvas::fallBackOn(PaintSurface& surface, const QImage& shown, bool asShown,
                                QString* problem) const {
    *problem = QStringLiteral("there is no memory for its picture");
    return withMemory(
        [&] {
            std::vector<PlacedTile> known, seen;
            bool all = true;
            if (_isCanvas && _picture) {
                tilesIn(_layers.whole()).forEach([&](std::size_t index) {
                    all = all && place(*_picture, index, known, problem);
                });
            } else if (shown.isNull()) {
                *problem = QStringLiteral("its picture is known neither by a step nor by having been shown");
                return false;
            }
            if (!shown.isNull() && (known.empty() || asShown)) {
                seen = shownTiles(shown, known);
            }
            const SurfaceScope scope(surface);
            if (!all || !scope || !surface.put(kPicture, known)) {
                return false;
            }
            surface.forgetTouched(kPicture);
            return surface.put(kPicture, seen);
        },
        false);
}

// What this holds is what is shown: each version knows in how many places.
void RecordedCanvas::changeShown(const TilePicture* from, const TilePicture* to) {
    const auto show = [](const TileRef& tile) { tile ? TileStore::show(*tile) : void(); };
    const auto retire = [](const TileRef& tile) { tile ? TileStore::retire(*tile) : void(); };
    const auto all = [](const TilePicture* picture, const auto& change) {
        for (std::size_t index = 0; picture != nullptr && index < picture->tiles(); ++index) {
            change(picture->at(index));
        }
    };
    if (from != nullptr && to != nullptr && from->shape().hasGridOf(to->shape())) {
        to->forEachDifference(*from, [&](std::size_t index) {
            show(to->at(index));
            retire(from->at(index));
        });
    } else {
        all(to, show);
        all(from, retire);
    }
}

void RecordedCanvas::become(Picture picture) {
    changeShown(_picture.get(), picture.get());
    _picture = std::move(picture);
    _given = false;
    _tiles->compress();
}

}  // namespace dabcanvas
