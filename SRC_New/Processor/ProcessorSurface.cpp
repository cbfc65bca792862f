// SPDX-License-Identifier: MIT
#include "Processor/ProcessorSurface.h"

#include <algorithm>
#include <limits>
#include <new>
#include <string>
#include <utility>

#include "Processor/BlendRows.h"
#include "Processor/MakeProcessorSurface.h"
#include "Processor/MaskRows.h"
#include "Processor/PlaceRows.h"
#include "Processor/TileRows.h"
#include "Surface/BlendType.h"
#include "Surface/SurfaceLog.h"

namespace dabcanvas {
namespace {

using Layer16 = TileGrid<std::uint16_t>;

// What was smudged there keeps its colours on the alpha of before.
template <typename Channel>
void lockAlpha(Tile<Channel>& picture, const Tile<Channel>* background, const Rect& part) {
    for (int y = part.y; y < part.bottom(); ++y) {
        Channel* to = picture.at(part.x % kTileSide, y % kTileSide);
        const Channel* back = pixelsAt(background, part.x, y);
        for (int x = 0; x < part.width; ++x, to += 4, back += 4) {
            if (to[3] == 0) {
                std::copy_n(back, 4, to);
                continue;
            }
            const float share = static_cast<float>(back[3]) / static_cast<float>(to[3]);
            std::transform(to, to + 3, to, [share](Channel colour) {
                return static_cast<Channel>(static_cast<float>(colour) * share + 0.5f);
            });
            to[3] = back[3];
        }
    }
}

template <typename Channel>
Channel channelOf(float value) {
    return static_cast<Channel>(std::clamp(value, 0.0f, 1.0f) * std::numeric_limits<Channel>::max() + 0.5f);
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

std::unique_ptr<PaintSurface> makeProcessorSurface(const Size& size, const SurfaceOptions& options) {
    constexpr int kMost = ProcessorSurface::kMostSide;
    const auto isSide = [](int side) { return side >= 1 && side <= kMost; };
    std::unique_ptr<PaintSurface> surface;
    if (!isSide(size.width) || !isSide(size.height)) {
        logSurfaceProblem(("a surface of " + std::to_string(size.width) + " x " +
                           std::to_string(size.height) + " pixels cannot be made: sides are from 1 to " +
                           std::to_string(kMost))
                              .c_str());
    } else if (!options.isUsable()) {
        logSurfaceProblem(kDepthProblem);
    } else {
        withMemory("make a surface", [&] {
            if (options.canvasDepth == 8) {
                surface = std::make_unique<PictureSurface<std::uint8_t>>(size, options.layerDepth);
            } else {
                surface = std::make_unique<PictureSurface<std::uint16_t>>(size, options.layerDepth);
            }
        });
    }
    return surface;
}

ProcessorSurface::ProcessorSurface(const Size& size, int layerDepth)
    : PaintSurface(size), _line{Layer16(size), {}}, _subLine{Layer16(size), {}}, _painter(layerDepth) {}

template <typename Channel>
PictureSurface<Channel>::PictureSurface(const Size& size, int layerDepth)
    : ProcessorSurface(size, layerDepth),
      _picture(size),
      _background(size),
      _straight{Layer16(size), {}},
      _smudges(size, layerDepth, _painter),
      _isPlain(layerDepth == 8),
      _kept(_picture.count()) {}

std::string ProcessorSurface::name() {
    return std::string("processor (") + vectorsInUse() + ")";
}

template <typename Channel>
void PictureSurface<Channel>::noteChanged(PictureId picture, const Rect& rect) {
    noteTouched(picture, rect.intersected(Rect::of(this->size())));
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

void ProcessorSurface::clear(PaintLayer which, const Rect& rect) {
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

template <typename Channel>
void PictureSurface<Channel>::clear(PaintLayer layer, const Rect& rect) {
    if (layer == PaintLayer::smudge) {
        return _smudges.forget();
    }
    if (layer == PaintLayer::line) {
        _smudges.clearExchanged(rect);
    }
    ProcessorSurface::clear(layer, rect);
}

template <typename Channel>
bool PictureSurface<Channel>::prepareSmudge(PictureId) {
    return withMemory("smudge", [&] { _smudges.show(_background); });
}

template <typename Channel>
Rect PictureSurface<Channel>::smudge(std::span<const SmudgeDab> dabs, const DabStyle& style, float load) {
    Rect touched;
    withMemory("smudge", [&] { touched = _smudges.smudge(dabs, style, load); });
    return touched;
}

// ---- Pictures

// Layers of 8 bits have nothing that adds up.
template <typename Channel>
RowNoise PictureSurface<Channel>::noiseOf(std::size_t index, int x, int y) const {
    return _isPlain ? kToNearest : RowNoise{noiseAt(x, y, _kept[index].times)};
}

// The layer goes onto the picture in one part of a tile, with the background below, or the picture itself.
template <typename Channel>
void PictureSurface<Channel>::blendTile(std::size_t index, const Rect& part, const Paint& paint,
                                        const CompositeStyle& style) {
    Channel* const picture = _picture.writable(index).at(part.x % kTileSide, part.y % kTileSide);
    const BlendRow<Channel> row{
        .picture = picture,
        .background = paint.overPicture ? picture : pixelsAt(_background.tile(index), part.x, part.y),
        .layer = pixelsAt(paint.layer, part.x, part.y),
        .mask = style.masked ? pixelsAt(paint.mask, part.x, part.y) : nullptr,
        .count = part.width,
        .opacity = style.opacity,
        .noise = noiseOf(index, part.x, part.y),
        .locksAlpha = style.locksAlpha,
        .showsBare = paint.showsBare};
    blendRows(style.shownType(), row, part.height);
}

// Drawn by themselves and then put over the picture, which comes to the same.
template <typename Channel>
Rect PictureSurface<Channel>::draw(PictureId picture, std::span<const Dab> dabs, const DabStyle& style) {
    Rect touched;
    const bool isDone = withMemory("draw", [&] {
        touched = drawInto(_straight, dabs, style);
        _picture.forEachIn(touched, [&](std::size_t index, const Rect& part) { putStraight(index, part); });
    });
    if (isDone) {
        ProcessorSurface::clear(_straight, _straight.holds);
    } else {
        _straight.grid.fill({});
        _straight.holds = {};
        _straight.dabs = 0;
    }
    noteChanged(picture, touched);
    return touched;
}

template <typename Channel>
void PictureSurface<Channel>::putStraight(std::size_t index, const Rect& part) {
    if (const auto* from = _straight.grid.tile(index)) {
        blendTile(index, part, {.layer = from, .overPicture = true}, {});
        ++_kept[index].times;
    }
}

template <typename Channel>
void PictureSurface<Channel>::compositeTile(std::size_t index, const Rect& part,
                                            const CompositeStyle& style) {
    if (style.smudged) {
        if (_smudges.hasExchanged(index)) {
            _kept[index].isBlended = true;
            const int left = part.x / kTileSide * kTileSide, top = part.y / kTileSide * kTileSide;
            _smudges.composite(index, part, _picture.writable(index), _background.tile(index), style.opacity,
                               noiseOf(index, left, top));
            if (style.locksAlpha) {
                lockAlpha(_picture.writable(index), _background.tile(index), part);
            }
        }
        return;
    }
    const auto* line = _line.grid.tile(index);
    const auto* mask = style.masked ? _subLine.grid.tile(index) : nullptr;
    const bool bare = line == nullptr || (style.masked && mask == nullptr);
    const bool isDry = style.reach() > 0;
    if (bare && (style.blendType != ESBlendTypeReplace || isDry)) {
        const bool leaves = style.blendType != ESBlendTypeNormal && style.blendType != ESBlendTypeReset &&
                            style.blendType != ESBlendTypeReplace;
        return leaves ? void() : copyTiles(_background, _picture, part);
    }
    // Where paint lies alone: rectangles reach as far as the looks between them let them.
    _kept[index].isBlended = true;
    if (isDry) {
        line = _wetEdge.dried(_line.grid, index, part);
    }
    blendTile(index, part, {.layer = line, .mask = mask, .showsBare = isDry}, style);
}

template <typename Channel>
void PictureSurface<Channel>::composite(PictureId picture, std::span<const Rect> rects,
                                        const CompositeStyle& style) {
    for (const Rect& rect : rects) {
        withMemory("composite", [&] {
            const auto compositePiece = [&](const Rect& piece) {
                _picture.forEachIn(
                    piece, [&](std::size_t index, const Rect& part) { compositeTile(index, part, style); });
            };
            style.reach() > 0 ? _wetEdge.forEachPiece(_line.grid, rect, style, compositePiece)
                              : compositePiece(rect);
        });
        noteChanged(picture, rect);
    }
}

template <typename Channel>
void PictureSurface<Channel>::confineTile(std::size_t index, const Rect& part, const PaintMask& mask) {
    if (_picture.sharesWith(_background, index)) {
        return;
    }
    const MaskedPart masked = maskedPart(mask, part);
    if (masked == MaskedPart::closed) {
        copyTiles(_background, _picture, part);
    } else if (masked == MaskedPart::mixed) {
        maskRows(_picture.writable(index).at(part.x % kTileSide, part.y % kTileSide),
                 pixelsAt(_background.tile(index), part.x, part.y), 4 * kTileSide, mask, part);
    }
}

template <typename Channel>
void PictureSurface<Channel>::confine(PictureId, const Rect& rect,
                                      const std::shared_ptr<const PaintMask>& mask) {
    withMemory("keep to a selection", [&] {
        _picture.forEachIn(rect,
                           [&](std::size_t index, const Rect& part) { confineTile(index, part, *mask); });
    });
}

template <typename Channel>
void PictureSurface<Channel>::revert(PictureId picture, const Rect& rect) {
    withMemory("take a stroke back", [&] { copyTiles(_background, _picture, rect); });
    noteChanged(picture, rect);
}

template <typename Channel>
void PictureSurface<Channel>::commit(PictureId, const Rect& rect) {
    _smudges.noteChanged(rect);
    withMemory("keep a stroke", [&] { copyTiles(_picture, _background, rect); });
    _picture.forEachIn(rect, [&](std::size_t index, const Rect&) {
        _kept[index].times += std::exchange(_kept[index].isBlended, false) ? 1 : 0;
    });
}

template <typename Channel>
void PictureSurface<Channel>::fill(PictureId picture, const PaintColor& color) {
    withMemory("fill a picture", [&] {
        _picture.fill({channelOf<Channel>(color.red), channelOf<Channel>(color.green),
                       channelOf<Channel>(color.blue), channelOf<Channel>(color.alpha)});
    });
    std::fill(_kept.begin(), _kept.end(), Kept{});
    noteChanged(picture, Rect::of(this->size()));
}

template <typename Channel>
bool PictureSurface<Channel>::place(PictureId picture, const Placed& placed) {
    const Rect clip = placed.clip.intersected(Rect::of(this->size()));
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

template <typename Channel>
bool PictureSurface<Channel>::read(PictureId, const Rect& rect, const MutablePixelView& rows) {
    if (!isPart(rect, rows)) {
        return false;
    }
    _picture.forEachIn(rect, [&](std::size_t index, const Rect& part) {
        const PixelView from = viewOf(_picture.tile(index), part);
        const auto to = rows.part({part.x - rect.x, part.y - rect.y, part.width, part.height});
        to.pixelBytes == from.pixelBytes ? copyShortRows(from, to) : roundRows(from, to, part.x, part.y);
    });
    return true;
}

template <typename Channel>
bool PictureSurface<Channel>::write(PictureId picture, const Rect& rect, const PixelView& rows) {
    if (!isPart(rect, rows)) {
        return false;
    }
    // A copy shares its tiles, so that nothing has changed where the memory ends half way.
    return withMemory("take pixels", [&] {
        Grid written = withRows(_picture, rect, rows), background = _background;
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

template <typename Channel>
bool PictureSurface<Channel>::writeBackground(PictureId, const Rect& rect, const PixelView& rows) {
    _smudges.noteChanged(rect);
    return isPart(rect, rows) &&
           withMemory("take pixels", [&] { _background = withRows(_background, rect, rows); });
}

// ---- Tiles, handed out and taken back as they are

template <typename Channel>
bool PictureSurface<Channel>::keep(PictureId, const TileSet& tiles,
                                   const std::function<void(const PlacedTile&)>& visit) {
    return withMemory("keep a picture", [&] {
        tiles.forEach([&](std::size_t index) {
            const auto& tile = _picture.shared(index);
            visit({index, tile ? SharedTile(tile, reinterpret_cast<const std::uint8_t*>(tile->values.data()))
                               : SharedTile()});
        });
    });
}

template <typename Channel>
bool PictureSurface<Channel>::put(PictureId picture, std::span<const PlacedTile> tiles) {
    for (const PlacedTile& placed : tiles) {
        // What newTile() made and keep() handed out are tiles; they are copied before this surface writes to them.
        auto* const tile = reinterpret_cast<Tile<Channel>*>(const_cast<std::uint8_t*>(placed.tile.get()));
        const std::shared_ptr<Tile<Channel>> shared(placed.tile, tile);
        _picture.share(shared, placed.index);
        _background.share(shared, placed.index);
        _kept[placed.index] = {};
        _smudges.noteChanged(_picture.rectOf(placed.index));
        noteChanged(picture, _picture.rectOf(placed.index));
    }
    return true;
}

template class PictureSurface<std::uint8_t>;
template class PictureSurface<std::uint16_t>;

}  // namespace dabcanvas
