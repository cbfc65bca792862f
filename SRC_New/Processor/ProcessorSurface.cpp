// SPDX-License-Identifier: MIT
#include "Processor/ProcessorSurface.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <new>
#include <string>
#include <utility>

#include "Processor/BlendRows.h"
#include "Processor/MakeProcessorSurface.h"
#include "Processor/PlaceRows.h"
#include "Surface/BlendType.h"
#include "Surface/SurfaceLog.h"

namespace dabcanvas {
namespace {

using Picture8 = TileGrid<std::uint8_t>;
using Layer16 = TileGrid<std::uint16_t>;

MutablePixelView viewOf(Tile<std::uint8_t>& tile, const Rect& part) {
    return {tile.at(part.x % kTileSide, part.y % kTileSide), {part.width, part.height}, kTileSide * 4};
}

PixelView viewOf(const Tile<std::uint8_t>* tile, const Rect& part) {
    static const Tile<std::uint8_t> kTransparent;
    return {(tile != nullptr ? tile : &kTransparent)->at(part.x % kTileSide, part.y % kTileSide),
            {part.width, part.height},
            kTileSide * 4};
}

// copyRows() of rows of a tile: so short that calling for each would take as long as copying it.
void copyShortRows(const PixelView& from, const MutablePixelView& to) {
    constexpr std::ptrdiff_t kPiece = 32;
    const std::ptrdiff_t bytes = std::ptrdiff_t{4} * from.size.width;
    if (bytes < kPiece) {
        return copyRows(from, to);
    }
    for (int y = 0; y < from.size.height; ++y) {
        const std::uint8_t* const source = from.row(y);
        std::uint8_t* const target = to.row(y);
        for (std::ptrdiff_t at = 0; at + kPiece <= bytes; at += kPiece) {
            std::memcpy(target + at, source + at, kPiece);
        }
        std::memcpy(target + bytes - kPiece, source + bytes - kPiece, kPiece);
    }
}

// `to` becomes `from`, of the same size, in the rectangle: whole tiles by sharing. Calls changed(index) for each tile that
// was another.
template <typename Changed>
void copyTiles(const Picture8& from, Picture8& to, const Rect& rect, Changed&& changed) {
    to.forEachIn(rect, [&](std::size_t index, const Rect& part) {
        if (to.sharesWith(from, index)) {
            return;
        }
        changed(index);
        if (part == to.rectOf(index)) {
            return to.share(from, index);
        }
        copyShortRows(viewOf(from.tile(index), part), viewOf(to.writable(index), part));
    });
}

void copyTiles(const Picture8& from, Picture8& to, const Rect& rect) {
    copyTiles(from, to, rect, [](std::size_t) {});
}

std::uint8_t byteOf(float value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0.0f, 1.0f) * 255 + 0.5f);
}

// Runs what needs memory; false, after one line, where there is none.
template <typename Work>
bool withMemory(const char* what, Work&& work) {
    try {
        work();
        return true;
    } catch (const std::bad_alloc&) {
        logSurfaceProblem(("there is no memory to " + std::string(what)).c_str());
        return false;
    }
}

}  // namespace

// ---- Making

std::unique_ptr<PaintSurface> makeProcessorSurface(const Size& size) {
    constexpr int kMost = ProcessorSurface::kMostSide;
    const auto isSide = [](int side) { return side >= 1 && side <= kMost; };
    std::unique_ptr<PaintSurface> surface;
    if (isSide(size.width) && isSide(size.height)) {
        withMemory("make a surface", [&] { surface = std::make_unique<ProcessorSurface>(size); });
    } else {
        logSurfaceProblem(("a surface of " + std::to_string(size.width) + " x " +
                           std::to_string(size.height) + " pixels cannot be made: sides are from 1 to " +
                           std::to_string(kMost))
                              .c_str());
    }
    return surface;
}

ProcessorSurface::ProcessorSurface(const Size& size)
    : PaintSurface(size),
      _picture(size),
      _background(size),
      _line{Layer16(size), {}},
      _subLine{Layer16(size), {}},
      _straight{Layer16(size), {}},
      _smudges(size, _painter),
      _kept(_picture.count()) {}

std::string ProcessorSurface::name() {
    return std::string("processor (") + vectorsInUse() + ")";
}

void ProcessorSurface::noteChanged(PictureId picture, const Rect& rect) {
    noteTouched(picture, rect.intersected(Rect::of(size())));
}

// ---- Layers

void ProcessorSurface::makeReady(const DabStyle& style) {
    withMemory("make a brush ready", [&] { _painter.makeReady(style); });
}

Rect ProcessorSurface::drawInto(Layer& layer, std::span<const Dab> dabs, const DabStyle& style) {
    const Rect touched = _painter.draw(layer.grid, dabs, style, layer.dabs);
    layer.dabs += dabs.size();
    layer.holds = layer.holds.united(touched);
    return touched;
}

Rect ProcessorSurface::draw(PaintLayer layer, std::span<const Dab> dabs, const DabStyle& style) {
    Rect touched;
    withMemory("draw", [&] { touched = drawInto(layerOf(layer), dabs, style); });
    return touched;
}

// Drawn by themselves and then put over the picture, which comes to the same.
Rect ProcessorSurface::draw(PictureId picture, std::span<const Dab> dabs, const DabStyle& style) {
    Rect touched;
    const bool isDone = withMemory("draw", [&] {
        touched = drawInto(_straight, dabs, style);
        _picture.forEachIn(touched, [&](std::size_t index, const Rect& part) { putStraight(index, part); });
    });
    if (isDone) {
        clear(_straight, _straight.holds);
    } else {
        _straight.grid.fill({});
        _straight.holds = {};
        _straight.dabs = 0;
    }
    noteChanged(picture, touched);
    return touched;
}

void ProcessorSurface::putStraight(std::size_t index, const Rect& part) {
    const auto* from = _straight.grid.tile(index);
    if (from == nullptr) {
        return;
    }
    const int x = part.x % kTileSide, y = part.y % kTileSide;
    std::uint8_t* const rows = _picture.writable(index).at(x, y);
    blendRows(
        ESBlendTypeNormal,
        {rows, rows, from->at(x, y), nullptr, part.width, 1, noiseAt(part.x, part.y, _kept[index].times)},
        part.height);
    ++_kept[index].times;
}

void ProcessorSurface::clear(PaintLayer which, const Rect& rect) {
    if (which == PaintLayer::smudge) {
        return _smudges.forget();
    }
    if (which == PaintLayer::line) {
        _smudges.clearExchanged(rect);
    }
    clear(layerOf(which), rect);
}

void ProcessorSurface::clear(Layer& layer, const Rect& rect) {
    const bool all = rect.contains(layer.holds);
    layer.grid.forEachIn(rect.intersected(layer.holds), [&](std::size_t index, const Rect& part) {
        if (layer.grid.tile(index) == nullptr) {
            return;
        }
        if (all || part == layer.grid.rectOf(index)) {
            return layer.grid.drop(index);
        }
        auto& tile = layer.grid.writable(index);
        for (int y = part.y; y < part.bottom(); ++y) {
            std::fill_n(tile.at(part.x % kTileSide, y % kTileSide), static_cast<std::size_t>(part.width) * 4,
                        std::uint16_t{0});
        }
    });
    if (all) {
        layer.holds = {};
        layer.dabs = 0;
    }
}

// ---- Smudging

bool ProcessorSurface::prepareSmudge(PictureId) {
    return withMemory("smudge", [&] { _smudges.show(_background); });
}

Rect ProcessorSurface::smudge(std::span<const SmudgeDab> dabs, const DabStyle& style, float load) {
    Rect touched;
    withMemory("smudge", [&] { touched = _smudges.smudge(dabs, style, load); });
    return touched;
}

// ---- Pictures

void ProcessorSurface::compositeTile(std::size_t index, const Rect& part, const CompositeStyle& style) {
    _kept[index].isBlended = true;
    if (style.smudged) {
        if (_smudges.hasExchanged(index)) {
            _smudges.composite(index, part, _picture.writable(index), _background.tile(index), style.opacity,
                               _kept[index].times);
        }
        return;
    }
    const auto* line = _line.grid.tile(index);
    const auto* mask = style.masked ? _subLine.grid.tile(index) : nullptr;
    const bool bare = line == nullptr || (style.masked && mask == nullptr);
    if (bare && style.blendType != ESBlendTypeReplace) {
        const bool leaves = style.blendType != ESBlendTypeNormal && style.blendType != ESBlendTypeReset;
        return leaves ? void() : copyTiles(_background, _picture, part);
    }
    static const Tile<std::uint16_t> kEmpty;
    auto& picture = _picture.writable(index);
    const int x = part.x % kTileSide;
    const PixelView background = viewOf(_background.tile(index), part);
    const int y = part.y % kTileSide;
    blendRows(style.blendType,
              {.picture = picture.at(x, y),
               .background = background.bytes,
               .layer = (line != nullptr ? line : &kEmpty)->at(x, y),
               .mask = style.masked ? (mask != nullptr ? mask : &kEmpty)->at(x, y) : nullptr,
               .count = part.width,
               .opacity = style.opacity,
               .noise = noiseAt(part.x, part.y, _kept[index].times)},
              part.height);
}

void ProcessorSurface::composite(PictureId picture, std::span<const Rect> rects,
                                 const CompositeStyle& style) {
    for (const Rect& rect : rects) {
        withMemory("composite", [&] {
            _picture.forEachIn(
                rect, [&](std::size_t index, const Rect& part) { compositeTile(index, part, style); });
        });
        noteChanged(picture, rect);
    }
}

void ProcessorSurface::revert(PictureId picture, const Rect& rect) {
    withMemory("take a stroke back", [&] { copyTiles(_background, _picture, rect); });
    noteChanged(picture, rect);
}

void ProcessorSurface::commit(PictureId, const Rect& rect) {
    _smudges.noteChanged(rect);
    withMemory("keep a stroke", [&] {
        copyTiles(_picture, _background, rect, [this](std::size_t index) {
            _kept[index].times += std::exchange(_kept[index].isBlended, false) ? 1 : 0;
        });
    });
}

void ProcessorSurface::fill(PictureId picture, const PaintColor& color) {
    withMemory("fill a picture", [&] {
        _picture.fill({byteOf(color.red), byteOf(color.green), byteOf(color.blue), byteOf(color.alpha)});
    });
    std::fill(_kept.begin(), _kept.end(), Kept{});
    noteChanged(picture, Rect::of(size()));
}

bool ProcessorSurface::place(PictureId picture, const Placed& placed) {
    const Rect clip = placed.clip.intersected(Rect::of(size()));
    if (placed.pixels.isNull() || clip.isEmpty()) {
        return false;
    }
    Rect touched;
    if (!withMemory("place a picture", [&] { touched = placeRows(placed, clip, _background, _picture); })) {
        return false;
    }
    noteChanged(picture, touched);
    return true;
}

// ---- Rows

bool ProcessorSurface::read(PictureId, const Rect& rect, const MutablePixelView& rows) {
    if (!isPart(rect, rows)) {
        return false;
    }
    _picture.forEachIn(rect, [&](std::size_t index, const Rect& part) {
        copyShortRows(viewOf(_picture.tile(index), part),
                      rows.part({part.x - rect.x, part.y - rect.y, part.width, part.height}));
    });
    return true;
}

bool ProcessorSurface::write(PictureId picture, const Rect& rect, const PixelView& rows) {
    if (!isPart(rect, rows)) {
        return false;
    }
    // A copy shares its tiles, so that nothing has changed where the memory ends half way.
    return withMemory("take pixels", [&] {
        Picture8 written = _picture;
        written.forEachIn(rect, [&](std::size_t index, const Rect& part) {
            copyRows(rows.part({part.x - rect.x, part.y - rect.y, part.width, part.height}),
                     viewOf(written.writable(index), part));
        });
        Picture8 background = _background;
        copyTiles(written, background, rect);
        written.forEachIn(rect, [&](std::size_t index, const Rect& part) {
            if (part == written.rectOf(index)) {
                _kept[index] = {};
            }
        });
        _picture = std::move(written);
        _background = std::move(background);
        _smudges.noteChanged(rect);
        noteChanged(picture, rect);
    });
}

// ---- Tiles, handed out and taken back as they are

bool ProcessorSurface::keep(PictureId, const TileSet& tiles,
                            const std::function<void(const PlacedTile&)>& visit) {
    return withMemory("keep a picture", [&] {
        tiles.forEach([&](std::size_t index) {
            const auto& tile = _picture.shared(index);
            visit({index, tile ? SharedTile(tile, tile->values.data()) : SharedTile()});
        });
    });
}

bool ProcessorSurface::put(PictureId picture, std::span<const PlacedTile> tiles) {
    for (const PlacedTile& placed : tiles) {
        // What newTile() made and keep() handed out are tiles; they are copied before this surface writes to them.
        auto* const tile =
            reinterpret_cast<Tile<std::uint8_t>*>(const_cast<std::uint8_t*>(placed.tile.get()));
        const std::shared_ptr<Tile<std::uint8_t>> shared(placed.tile, tile);
        _picture.share(shared, placed.index);
        _background.share(shared, placed.index);
        _kept[placed.index] = {};
        noteChanged(picture, _picture.rectOf(placed.index));
    }
    return true;
}

}  // namespace dabcanvas
