// SPDX-License-Identifier: MIT
#include "Processor/SmudgePainter.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <utility>

#include "Dabs/DabBounds.h"
#include "Processor/BlendRows.h"
#include "Processor/SmudgeRows.h"

namespace dabcanvas {
namespace {

// Filtering between the layer's resolution and the picture's reaches this far, in buffer pixels.
constexpr int kReach = 4;
constexpr float kFull = 65535;

Size halfOf(const Size& size) {
    return {std::max(size.width / 2, 1), std::max(size.height / 2, 1)};
}

// Between four texels, as parts of them.
struct Between {
    int low, high;
    float part;

    // Of a place in texels, 0.5 in the middle of the first; what lies outside reads as the rim.
    Between(double place, int first, int end) {
        const double from = std::clamp(place - 0.5, first - 1.0, static_cast<double>(end));
        const int whole = static_cast<int>(std::floor(from));
        part = static_cast<float>(from - whole);
        low = std::clamp(whole, first, end - 1);
        high = std::clamp(whole + 1, first, end - 1);
    }
};

// Of the pixels from `first` on, which lie `step` texels apart.
std::vector<Between> betweens(int first, int count, double step, double start, int from, int end) {
    std::vector<Between> places;
    places.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        places.emplace_back(start + (first + i + 0.5) * step, from, end);
    }
    return places;
}

struct Colour {
    float channel[4];
};

template <typename TexelAt>
Colour mixedAt(const Between& x, const Between& y, TexelAt&& texelAt) {
    const auto *topLeft = texelAt(x.low, y.low), *topRight = texelAt(x.high, y.low);
    const auto *lowLeft = texelAt(x.low, y.high), *lowRight = texelAt(x.high, y.high);
    Colour mix;
    for (int i = 0; i < 4; ++i) {
        const auto value = [i](const auto* texel) { return static_cast<float>(texel[i]); };
        const float top = value(topLeft) + (value(topRight) - value(topLeft)) * x.part;
        const float low = value(lowLeft) + (value(lowRight) - value(lowLeft)) * x.part;
        mix.channel[i] = top + (low - top) * y.part;
    }
    return mix;
}

Rect texelsUnder(double left, double top, double right, double bottom, const Size& layer) {
    return Rect::covering(left - 1, top - 1, right + 1, bottom + 1).intersected(Rect::of(layer));
}

// Those, or the one that is nearest where all of them lie off the layer.
Rect nearestTexels(double left, double top, double right, double bottom, const Size& layer) {
    const Rect rect = texelsUnder(left, top, right, bottom, layer);
    const auto within = [](double place, int size) {
        return static_cast<int>(std::clamp(place, 0.0, static_cast<double>(size - 1)));
    };
    return rect.isEmpty() ? Rect{within(left, layer.width), within(top, layer.height), 1, 1} : rect;
}

}  // namespace

// What a dab's pixels turn into where it covers them wholly.
struct SmudgePainter::Mixture {
    Colour own;       // the brush's colour, times its part
    float pickUp;     // part of what is picked up
    float exchanged;  // of what was there, both parts together

    Mixture(const SmudgeDab& smudge, float load) {
        const float dry = 1 - smudge.moist, part = load * (1 - smudge.mix);
        pickUp = smudge.mix * (1 - dry * dry * dry);
        exchanged = part + pickUp;
        const RgbType& color = smudge.dab.color;
        own = {{color.r * part * kFull, color.g * part * kFull, color.b * part * kFull, part * kFull}};
    }
};

SmudgePainter::SmudgePainter(const Size& picture, int layerDepth)
    : _size(picture),
      _layerDepth(layerDepth),
      _picture(TileGrid<std::uint8_t>(picture)),
      _layer(halfOf(picture)),
      _before(_layer.size()),
      _scaleX(static_cast<double>(_layer.size().width) / picture.width),
      _scaleY(static_cast<double>(_layer.size().height) / picture.height),
      _covers({1, 1}) {}

void SmudgePainter::show(Shown picture) {
    forget();
    _picture = std::move(picture);
}

void SmudgePainter::forget() {
    std::visit([](auto& picture) { picture.fill({}); }, _picture);
    _layer.fill({});
    _before.fill({});
}

// ---- The layer

void SmudgePainter::provide(const Rect& texels) {
    _layer.forEachIn(texels, [&](std::size_t index, const Rect&) {
        if (_layer.tile(index) == nullptr) {
            showTile(index);
        }
    });
}

void SmudgePainter::showTile(std::size_t index) {
    std::visit([&](const auto& picture) { showTileOf(picture, index); }, _picture);
    round(_layer.rectOf(index));
    _before.share(_layer, index);
}

template <typename Channel>
void SmudgePainter::showTileOf(const TileGrid<Channel>& picture, std::size_t index) {
    static constexpr Channel kTransparent[4] = {};
    constexpr float kUnits = kFull / std::numeric_limits<Channel>::max();
    const Rect rect = _layer.rectOf(index);
    auto& tile = _layer.writable(index);
    const auto pixelAt = [&](int x, int y) {
        const auto* from = picture.tile(picture.indexAt(x, y));
        return from != nullptr ? from->at(x % kTileSide, y % kTileSide) : kTransparent;
    };
    const std::vector<Between> columns = betweens(rect.x, rect.width, 1 / _scaleX, 0, 0, _size.width);
    for (int y = rect.y; y < rect.bottom(); ++y) {
        const Between down((y + 0.5) / _scaleY, 0, _size.height);
        for (int x = rect.x; x < rect.right(); ++x) {
            const Colour color = mixedAt(columns[static_cast<std::size_t>(x - rect.x)], down, pixelAt);
            std::uint16_t* to = tile.at(x % kTileSide, y % kTileSide);
            for (int i = 0; i < 4; ++i) {
                to[i] = static_cast<std::uint16_t>(color.channel[i] * kUnits + 0.5f);
            }
        }
    }
}

// A layer of 8 bits holds no more.
void SmudgePainter::round(const Rect& texels) {
    _layer.forEachIn(_layerDepth == 8 ? texels : Rect(), [&](std::size_t index, const Rect& part) {
        auto& tile = _layer.writable(index);
        for (int y = part.y; y < part.bottom(); ++y) {
            roundToBytes(tile.at(part.x % kTileSide, y % kTileSide), part.width);
        }
    });
}

void SmudgePainter::take(const Layer& from, const Rect& rect, Texels& to) {
    to.rect = rect;
    to.values.resize(static_cast<std::size_t>(rect.area()) * 4);
    from.forEachIn(rect, [&](std::size_t index, const Rect& part) {
        const auto* tile = from.tile(index);
        for (int y = part.y; tile != nullptr && y < part.bottom(); ++y) {
            std::memcpy(const_cast<std::uint16_t*>(to.at(part.x, y)),
                        tile->at(part.x % kTileSide, y % kTileSide),
                        static_cast<std::size_t>(part.width) * 8);
        }
    });
}

// ---- Dabs

Dab SmudgePainter::inLayer(const Dab& dab) const {
    Dab scaled = dab;
    scaled.x = static_cast<float>(dab.x * _scaleX);
    scaled.y = static_cast<float>(dab.y * _scaleY);
    scaled.halfSize = static_cast<float>(dab.halfSize * _scaleX);
    scaled.roundness = static_cast<float>(dab.roundness * _scaleY / _scaleX);
    scaled.color = {0, 0, 0};
    return scaled;
}

Rect SmudgePainter::smudge(std::span<const SmudgeDab> dabs, const DabStyle& style, float load,
                           std::uint64_t count, std::vector<Dab>& coverage) {
    Rect touched;
    for (const SmudgeDab& dab : dabs) {
        const Rect changed = smudgeOne(dab, Mixture(dab, load), style, count++);
        if (!changed.isEmpty()) {
            touched = touched.united(changed);
            coverage.push_back(dab.dab);
            coverage.back().flow *= dab.exchange;
            coverage.back().color = {0, 0, 0};
        }
    }
    return touched;
}

// Returns the pixels of the picture that it may change.
Rect SmudgePainter::smudgeOne(const SmudgeDab& smudge, const Mixture& mixture, const DabStyle& style,
                              std::uint64_t count) {
    Dab dab = inLayer(smudge.dab);
    const Extent extent = DabBounds::extentOf(dab);
    const Rect box = texelsUnder(dab.x - extent.width, dab.y - extent.height, dab.x + extent.width,
                                 dab.y + extent.height, _layer.size());
    if (box.isEmpty()) {
        return {};  // nor is one drawn whose place is not finite
    }
    // By itself first, near the origin, to see how much it covers.
    if (_covers.size().width < box.width || _covers.size().height < box.height) {
        _covers =
            Layer({std::max(box.width, _covers.size().width), std::max(box.height, _covers.size().height)});
    }
    dab.x -= static_cast<float>(box.x);
    dab.y -= static_cast<float>(box.y);
    const DabStyle plain{.tips = style.tips, .paper = {}};
    const Rect covered =
        _painter.draw(_covers, std::span(&dab, 1), plain, count).intersected({0, 0, box.width, box.height});

    provide(box);
    exchange(covered, box, smudge, mixture, count);
    round(box);
    const Rect changed =
        Rect::covering(box.x / _scaleX, box.y / _scaleY, box.right() / _scaleX, box.bottom() / _scaleY)
            .grownBy(kReach);
    return changed.intersected(Rect::of(_size));
}

// Takes the dab out of `_covers`, which is empty again.
void SmudgePainter::takeCover(const Rect& covered) {
    take(_covers, covered, _cover);
    _covers.forEachIn(covered, [&](std::size_t index, const Rect& part) {
        for (int y = part.y; _covers.tile(index) != nullptr && y < part.bottom(); ++y) {
            std::memset(_covers.writable(index).at(part.x % kTileSide, y % kTileSide), 0,
                        static_cast<std::size_t>(part.width) * 8);
        }
    });
}

// The layer exchanges what lies under the dab that `_covers` holds, `origin` away from there.
void SmudgePainter::exchange(const Rect& covered, const Rect& origin, const SmudgeDab& smudge,
                             const Mixture& mixture, std::uint64_t count) {
    takeCover(covered);
    const double stretch = smudge.pickUpHalf / smudge.dab.halfSize;
    const double startX = (smudge.pickUp.x - smudge.dab.x * stretch) * _scaleX;
    const double startY = (smudge.pickUp.y - smudge.dab.y * stretch) * _scaleY;
    const Rect under{covered.x + origin.x, covered.y + origin.y, covered.width, covered.height};
    // What is taken up is taken before the dab changes it; off the layer its rim counts.
    const Rect picked =
        nearestTexels(startX + under.x * stretch, startY + under.y * stretch,
                      startX + under.right() * stretch, startY + under.bottom() * stretch, _layer.size());
    if (mixture.pickUp > 0) {
        provide(picked);
        take(_layer, picked, _picked);
    }
    const std::vector<Between> columns =
        betweens(under.x, under.width, stretch, startX, picked.x, picked.right());
    const std::vector<Between> rows =
        betweens(under.y, under.height, stretch, startY, picked.y, picked.bottom());
    const auto pickedAt = [this](int x, int y) { return _picked.at(x, y); };
    _layer.forEachIn(under, [&](std::size_t index, const Rect& part) {
        auto& tile = _layer.writable(index);
        for (int y = part.y; y < part.bottom(); ++y) {
            const std::uint16_t* cover = _cover.at(part.x - origin.x, y - origin.y);
            std::uint16_t* to = tile.at(part.x % kTileSide, y % kTileSide);
            for (int x = part.x; x < part.right(); ++x, cover += 4, to += 4) {
                if (cover[3] == 0) {
                    continue;
                }
                Colour color{};
                if (mixture.pickUp > 0) {
                    color = mixedAt(columns[static_cast<std::size_t>(x - under.x)],
                                    rows[static_cast<std::size_t>(y - under.y)], pickedAt);
                }
                const float share = static_cast<float>(cover[3]) / kFull,
                            rest = 1 - share * mixture.exchanged;
                const float noise = upBy(noiseAt(x, y, static_cast<std::uint32_t>(count)));
                for (int i = 0; i < 4; ++i) {
                    const float value = static_cast<float>(to[i]) * rest +
                                        share * (mixture.own.channel[i] + mixture.pickUp * color.channel[i]);
                    to[i] = static_cast<std::uint16_t>(std::clamp(value + noise, 0.0f, kFull));
                }
            }
        }
    });
}

// ---- The picture

namespace {

// A row between two, texel by texel.
void mixRows(const std::uint16_t* low, const std::uint16_t* high, float part, std::vector<float>& row) {
    for (std::size_t i = 0; i < row.size(); ++i) {
        const float from = low[i];
        row[i] = from + (high[i] - from) * part;
    }
}

}  // namespace

void SmudgePainter::composite(const MutablePixelView& picture, const PixelView& background,
                              const Tile<std::uint16_t>& exchanged, const Rect& part, float opacity,
                              std::uint32_t commits) {
    const Rect texels = texelsUnder(part.x * _scaleX, part.y * _scaleY, part.right() * _scaleX,
                                    part.bottom() * _scaleY, _layer.size());
    provide(texels);
    take(_layer, texels, _picked);
    take(_before, texels, _old);
    std::vector<TexelPlace> places;
    for (const Between& place : betweens(part.x, part.width, _scaleX, 0, texels.x, texels.right())) {
        places.push_back({place.low - texels.x, place.high - texels.x, place.part});
    }
    std::vector<float> now(static_cast<std::size_t>(texels.width) * 4), then(now.size());
    for (int y = 0; y < part.height; ++y) {
        const Between down((part.y + y + 0.5) * _scaleY, texels.y, texels.bottom());
        mixRows(_picked.at(texels.x, down.low), _picked.at(texels.x, down.high), down.part, now);
        mixRows(_old.at(texels.x, down.low), _old.at(texels.x, down.high), down.part, then);
        putSmudges({.picture = picture.row(y),
                    .background = background.row(y),
                    .exchanged = exchanged.at(part.x % kTileSide, (part.y + y) % kTileSide),
                    .now = now.data(),
                    .then = then.data(),
                    .places = places.data(),
                    .count = part.width,
                    .opacity = opacity,
                    .noise = _layerDepth == 8 ? kNearest : noiseAt(part.x, part.y + y, commits),
                    .along = _layerDepth == 8 ? 0 : kNoiseAlong,
                    .pixelBytes = picture.pixelBytes});
    }
}

}  // namespace dabcanvas
