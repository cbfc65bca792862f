// SPDX-License-Identifier: MIT
#include "Processor/SmudgePainter.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>

#include "Processor/BlendRows.h"

namespace dabcanvas {
namespace {

Size halfOf(const Size& size) {
    return {std::max(size.width / 2, 1), std::max(size.height / 2, 1)};
}

// Of places that are `step` apart, from the middle of the first of what is counted in.
Steps stepsFrom(double start, double step) {
    return {fixedPlace(start), fixedPlace(step)};
}

std::int16_t wordOf(double part) {
    return static_cast<std::int16_t>(std::clamp(part, 0.0, 1.0) * kSmudgeFull + 0.5);
}

// All texels of a grid of so many between which places from `start` up to `end` lie, the nearest ones where they lie off it.
struct TexelRange {
    int first, end;

    TexelRange(double start, double stop, int texels) {
        const auto within = [texels](double place) {
            const double inside = std::isfinite(place) ? std::clamp(place, 0.0, texels - 1.0) : 0;
            return static_cast<int>(inside);
        };
        first = within(std::floor(std::min(start, stop)));
        end = within(std::floor(std::max(start, stop)) + 1) + 1;
    }
};

// Texels of the layer that are filled at once, each way, and how many of such blocks a tile has.
constexpr int kBlock = 16, kBlocks = kTileSide / kBlock;

// Those of a tile that texels from one up to another lie in.
struct BlockRange {
    int first, last;

    BlockRange(int from, int end) : first(from % kTileSide / kBlock), last((end - 1) % kTileSide / kBlock) {}
};

// Few, most often, so that calling for them would take as long.
void copyTexels(const std::uint16_t* from, int count, std::int16_t* to) {
    for (; count >= 2; count -= 2, from += 8, to += 8) {
        std::memcpy(to, from, 16);
    }
    if (count > 0) {
        std::memcpy(to, from, 8);
    }
}

bool isInOneTile(const Rect& rect) {
    return !rect.isEmpty() && rect.x / kTileSide == (rect.right() - 1) / kTileSide &&
           rect.y / kTileSide == (rect.bottom() - 1) / kTileSide;
}
// And can be read there, with a little beyond each row.
bool isReadInTile(const Rect& rect) {
    constexpr int kSpare = static_cast<int>(kSpareValues) / 4;
    return isInOneTile(rect) &&
           (rect.bottom() % kTileSide != 0 || rect.x % kTileSide + rect.width <= kTileSide - kSpare);
}

}  // namespace

// What a dab's pixels turn into where it covers them wholly.
template <typename Channel>
struct SmudgePainter<Channel>::Mixture {
    float pickUp;     // part of what is picked up
    float exchanged;  // of what was there, with the part of the brush's colour

    Mixture(const SmudgeDab& smudge, float load) {
        const float dry = 1 - smudge.moist;
        pickUp = smudge.mix * (1 - dry * dry * dry);
        exchanged = load * (1 - smudge.mix) + pickUp;
    }
    float ownPart() const { return exchanged > 0 ? 1 - pickUp / exchanged : 1; }
};

// One dab's colours: what it takes up, mixed with its own.
template <typename Channel>
class SmudgePainter<Channel>::Exchange final : public DabColours {
public:
    Exchange(SmudgePainter& painter, const SmudgeDab& smudge, const Mixture& mixture)
        : _painter(painter), _smudge(smudge), _colourPart(mixture.ownPart()) {
        _stretch = smudge.pickUpHalf / smudge.dab.halfSize;
        _startX = (smudge.pickUp.x - smudge.dab.x * _stretch) * painter._scaleX;
        _startY = (smudge.pickUp.y - smudge.dab.y * _stretch) * painter._scaleY;
    }

    // What is taken up is taken before the dab changes it; off the layer its rim counts.
    void begin(const Rect& texels) override {
        if (_smudge.bristles.part >= 1) {
            return _painter.provide(texels);  // all is carried
        }
        const Size& layer = _painter._layer.size();
        const TexelRange across(placeX(texels.x), placeX(texels.right() - 1), layer.width);
        const TexelRange down(placeY(texels.y), placeY(texels.bottom() - 1), layer.height);
        const Rect picked = Rect::between(across.first, down.first, across.end, down.end);
        const Rect both = texels.united(picked);
        if (both.area() <= 2 * (texels.area() + picked.area())) {
            _painter.provide(both);
        } else {
            _painter.provide(texels);
            _painter.provide(picked);
        }
        isInOneTile(texels) ? take(_painter._layer, picked, _painter._picked)
                            : copy(_painter._layer, picked, _painter._picked);
    }

    const std::uint16_t* of(const Rect& part) override {
        thread_local std::array<std::uint16_t, kTilePixels * 4 + kSpareValues> colours{};
        std::uint16_t* const to = colours.data() + (part.y % kTileSide * kTileSide + part.x % kTileSide) * 4;
        const Rect& from = _painter._picked.rect;
        const RgbType& color = _smudge.dab.color;
        PickedUp picked{.from = _painter._picked.view,
                        .across = stepsFrom(placeX(part.x) - from.x, _stretch),
                        .down = stepsFrom(placeY(part.y) - from.y, _stretch),
                        .size = {part.width, part.height},
                        .colour = {wordOf(color.r), wordOf(color.g), wordOf(color.b), kSmudgeFull},
                        .colourPart = wordOf(_colourPart),
                        .to = to};
        if (_smudge.bristles.part > 0) {
            picked.carried = _painter.columnsOf(_smudge.bristles).carried(part);
            picked.carriedPart = wordOf(_smudge.bristles.part);
        }
        pickUp(picked);
        return colours.data();
    }

private:
    // Where a texel under the dab takes up.
    double placeX(int x) const { return _startX + (x + 0.5) * _stretch - 0.5; }
    double placeY(int y) const { return _startY + (y + 0.5) * _stretch - 0.5; }

    SmudgePainter& _painter;
    const SmudgeDab& _smudge;
    float _colourPart;
    double _stretch, _startX, _startY;
};

template <typename Channel>
SmudgePainter<Channel>::SmudgePainter(const Size& picture, int layerDepth, DabPainter& painter)
    : _size(picture),
      _layerDepth(layerDepth),
      _picture(picture),
      _stale(Rect::of(picture)),
      _layer(halfOf(picture)),
      _before(_layer.size()),
      _blocks(_layer.count()),
      _scaleX(static_cast<double>(_layer.size().width) / picture.width),
      _scaleY(static_cast<double>(_layer.size().height) / picture.height),
      _exchanged(picture),
      _painter(painter) {}

template <typename Channel>
void SmudgePainter<Channel>::show(const TileGrid<Channel>& picture) {
    _picture.forEachIn(_stale, [&](std::size_t index, const Rect&) { _picture.share(picture, index); });
    _stale = {};
    _layer.forEachIn(_provided, [&](std::size_t index, const Rect&) {
        _layer.drop(index);
        _before.drop(index);
        _blocks[index] = 0;
    });
    _provided = _lastProvided = {};
}

template <typename Channel>
void SmudgePainter<Channel>::forget() {
    _stale = Rect::of(_size);
    show(TileGrid<Channel>(_size));
    _stale = Rect::of(_size);
}

// That of a stroke's first dab is made there, and found by several threads later.
template <typename Channel>
BristleColumns& SmudgePainter<Channel>::columnsOf(const BristleDab& bristles) {
    const auto set = static_cast<std::size_t>(std::clamp(bristles.set, 0, kMostBristleSets - 1));
    if (set >= _columns.size()) {
        _columns.resize(set + 1);
    }
    return _columns[set];
}

// ---- The layer

template <typename Channel>
void SmudgePainter<Channel>::provide(const Rect& texels) {
    if (_lastProvided.contains(texels)) {
        return;
    }
    const auto down16 = [](int edge) { return edge / kBlock * kBlock; };
    const auto up16 = [](int edge) { return (edge + kBlock - 1) / kBlock * kBlock; };
    _layer.forEachIn(texels, [&](std::size_t index, const Rect& part) {
        const BlockRange across(part.x, part.right()), down(part.y, part.bottom());
        const unsigned columns = (2u << across.last) - (1u << across.first);
        unsigned wanted = 0;
        for (int y = down.first; y <= down.last; ++y) {
            wanted |= columns << (y * kBlocks);
        }
        const Rect tile = _layer.rectOf(index);
        for (unsigned left = wanted & ~_blocks[index]; left != 0; left &= left - 1) {
            const int bit = std::countr_zero(left);
            showBlock(index, tile.intersected({tile.x + bit % kBlocks * kBlock,
                                               tile.y + bit / kBlocks * kBlock, kBlock, kBlock}));
            _blocks[index] = static_cast<std::uint16_t>(_blocks[index] | 1u << bit);
        }
    });
    _lastProvided =
        Rect::between(down16(texels.x), down16(texels.y), up16(texels.right()), up16(texels.bottom()));
}

template <typename Channel>
void SmudgePainter<Channel>::showBlock(std::size_t index, const Rect& texels) {
    const double stepX = 1 / _scaleX, stepY = 1 / _scaleY;
    const auto place = [](int texel, double step) { return (texel + 0.5) * step - 0.5; };
    const TexelRange across(place(texels.x, stepX), place(texels.right() - 1, stepX), _size.width);
    const TexelRange down(place(texels.y, stepY), place(texels.bottom() - 1, stepY), _size.height);
    const Rect pixels = Rect::between(across.first, down.first, across.end, down.end);
    _provided = _provided.united(texels);
    const auto rows = [&](Layer& layer) {
        return reinterpret_cast<std::int16_t*>(
            layer.writable(index).at(texels.x % kTileSide, texels.y % kTileSide));
    };
    reduce(ReducedPart<Channel>{.from = takePicture(pixels),
                                .across = stepsFrom(place(texels.x, stepX) - pixels.x, stepX),
                                .down = stepsFrom(place(texels.y, stepY) - pixels.y, stepY),
                                .size = {texels.width, texels.height},
                                .to = rows(_layer),
                                .toToo = rows(_before)});
    if (_layerDepth == 8) {
        round(_layer, texels);
        round(_before, texels);
    }
}

// To what 8 bits can say.
template <typename Channel>
void SmudgePainter<Channel>::round(Layer& layer, const Rect& texels) {
    layer.forEachIn(texels, [&](std::size_t index, const Rect& part) {
        auto& tile = layer.writable(index);
        for (int y = part.y; y < part.bottom(); ++y) {
            std::uint16_t* const row = tile.at(part.x % kTileSide, y % kTileSide);
            std::transform(row, row + std::ptrdiff_t{4} * part.width, row, [](std::uint32_t value) {
                return static_cast<std::uint16_t>((value * 255 + kSmudgeFull / 2) / kSmudgeFull * 257 / 2);
            });
        }
    });
}

// In its tile, where that can be, else copied.
template <typename Channel>
SmudgePart<Channel> SmudgePainter<Channel>::takePicture(const Rect& pixels) {
    static const Tile<Channel> kTransparent;
    const auto tileOf = [this](std::size_t index) {
        const auto* tile = _picture.tile(index);
        return tile != nullptr ? tile : &kTransparent;
    };
    const Size size{pixels.width, pixels.height};
    if (isReadInTile(pixels)) {
        const auto* tile = tileOf(_picture.indexAt(pixels.x, pixels.y));
        return {tile->at(pixels.x % kTileSide, pixels.y % kTileSide), size, kTileSide * 4};
    }
    _pixels.resize(static_cast<std::size_t>(pixels.area()) * 4 + kSpareValues);
    constexpr int kBytes = 4 * sizeof(Channel);
    const auto copy =
        MutablePixelView::topRowFirst(reinterpret_cast<std::uint8_t*>(_pixels.data()), size, kBytes);
    _picture.forEachIn(pixels, [&](std::size_t index, const Rect& part) {
        const Rect at{part.x - pixels.x, part.y - pixels.y, part.width, part.height};
        const auto* from = tileOf(index)->at(part.x % kTileSide, part.y % kTileSide);
        copyRows({reinterpret_cast<const std::uint8_t*>(from),
                  {part.width, part.height},
                  kTileSide * kBytes,
                  kBytes},
                 copy.part(at));
    });
    return {_pixels.data(), size, std::ptrdiff_t{4} * size.width};
}

template <typename Channel>
void SmudgePainter<Channel>::take(const Layer& from, const Rect& rect, Texels& to) {
    if (!isReadInTile(rect)) {
        return copy(from, rect, to);
    }
    const auto* values = from.tile(from.indexAt(rect.x, rect.y))->at(rect.x % kTileSide, rect.y % kTileSide);
    to.rect = rect;
    to.view = {reinterpret_cast<const std::int16_t*>(values), {rect.width, rect.height}, kTileSide * 4};
}

template <typename Channel>
void SmudgePainter<Channel>::copy(const Layer& from, const Rect& rect, Texels& to) {
    to.rect = rect;
    to.copied.resize(static_cast<std::size_t>(rect.area()) * 4 + kSpareValues);
    to.view = {to.copied.data(), {rect.width, rect.height}, std::ptrdiff_t{4} * rect.width};
    from.forEachIn(rect, [&](std::size_t index, const Rect& part) {
        const auto* tile = from.tile(index);
        for (int y = part.y; tile != nullptr && y < part.bottom(); ++y) {
            const std::ptrdiff_t first = std::ptrdiff_t{y - rect.y} * rect.width + part.x - rect.x;
            copyTexels(tile->at(part.x % kTileSide, y % kTileSide), part.width, to.copied.data() + first * 4);
        }
    });
}

// ---- Dabs

template <typename Channel>
Dab SmudgePainter<Channel>::inLayer(const Dab& dab) const {
    Dab scaled = dab;
    scaled.x = static_cast<float>(dab.x * _scaleX);
    scaled.y = static_cast<float>(dab.y * _scaleY);
    scaled.halfSize = static_cast<float>(dab.halfSize * _scaleX);
    scaled.roundness = static_cast<float>(dab.roundness * _scaleY / _scaleX);
    return scaled;
}

template <typename Channel>
Rect SmudgePainter<Channel>::smudge(std::span<const SmudgeDab> dabs, const DabStyle& style, float load) {
    const DabStyle plain{.tips = style.tips, .paper = {}};
    const std::uint64_t first = _count;
    Rect touched;
    _coverage.clear();
    for (const SmudgeDab& smudge : dabs) {
        const Mixture mixture(smudge, load);
        Exchange exchange(*this, smudge, mixture);
        Dab dab = inLayer(smudge.dab);
        if (smudge.bristles.part > 0) {
            provide(BristleColumns::reach(smudge.bristles, dab, _layer.size()));
            columnsOf(smudge.bristles).takeUp(smudge.bristles, dab, _before);
        }
        dab.flow = std::min(dab.flow, 1.0f) * mixture.exchanged;
        const Rect texels = _painter.draw(_layer, dab, plain, _count++, exchange);
        if (texels.isEmpty()) {
            continue;
        }
        if (_layerDepth == 8) {
            round(_layer, texels);
        }
        touched = touched.united(texels);
        _coverage.push_back(smudge.dab);
        _coverage.back().flow *= smudge.exchange;
    }
    if (touched.isEmpty()) {
        return {};
    }
    _holds = _holds.united(_painter.draw(_exchanged, _coverage, plain, first));
    // Each texel reaches as far as the next ones.
    return Rect::covering((touched.x - 1) / _scaleX, (touched.y - 1) / _scaleY,
                          (touched.right() + 1) / _scaleX, (touched.bottom() + 1) / _scaleY)
        .intersected(Rect::of(_size));
}

template <typename Channel>
void SmudgePainter<Channel>::clearExchanged(const Rect& rect) {
    const bool all = rect.contains(_holds);
    _exchanged.forEachIn(rect.intersected(_holds), [&](std::size_t index, const Rect& part) {
        if (all || part == _exchanged.rectOf(index)) {
            return _exchanged.drop(index);
        }
        for (int y = part.y; _exchanged.tile(index) != nullptr && y < part.bottom(); ++y) {
            for (int x = part.x; x < part.right(); ++x) {
                const int at = pairedPlace(x % kTileSide, y % kTileSide);
                _exchanged.writable(index).values[static_cast<std::size_t>(at)] = 0;
            }
        }
    });
    if (all) {
        _holds = {};
        _count = 0;
    }
}

// ---- The picture

template <typename Channel>
void SmudgePainter<Channel>::composite(std::size_t index, const Rect& part, Tile<Channel>& picture,
                                       const Tile<Channel>* background, float opacity,
                                       const RowNoise& noise) {
    static const Tile<Channel> kTransparent;
    constexpr int kTogether = 8;  // columns, as vectors have pixels at most
    const int left = part.x / kTileSide * kTileSide, top = part.y / kTileSide * kTileSide;
    const auto place = [](int pixel, double scale) { return (pixel + 0.5) * scale - 0.5; };
    const int first = part.x / kTogether * kTogether,
              end = (part.right() + kTogether - 1) / kTogether * kTogether;
    constexpr double kOff = 1.0 / 1024;  // by which whole steps lead astray in a tile, at most
    const TexelRange across(place(first, _scaleX) - kOff, place(end - 1, _scaleX) + kOff,
                            _layer.size().width);
    const TexelRange down(place(part.y, _scaleY) - kOff, place(part.bottom() - 1, _scaleY) + kOff,
                          _layer.size().height);
    const Rect texels = Rect::between(across.first, down.first, across.end, down.end);
    provide(texels);
    take(_layer, texels, _picked);
    take(_before, texels, _old);
    putSmudges(
        PutSmudges<Channel>{.picture = picture.values.data(),
                            .background = (background != nullptr ? background : &kTransparent)->values.data(),
                            .exchanged = _exchanged.tile(index)->values.data(),
                            .part = {part.x - left, part.y - top, part.width, part.height},
                            .now = _picked.view,
                            .then = _old.view,
                            .across = stepsFrom(place(left, _scaleX) - texels.x, _scaleX),
                            .down = stepsFrom(place(top, _scaleY) - texels.y, _scaleY),
                            .opacity = wordOf(opacity),
                            .noise = noise});
}

template class SmudgePainter<std::uint8_t>;
template class SmudgePainter<std::uint16_t>;

}  // namespace dabcanvas
