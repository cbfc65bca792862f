// SPDX-License-Identifier: MIT
// Sums run down columns only, a vector of them at a time; for those along rows the plane is turned over its diagonal.
// The kernels are compiled once for each kind of vectors, and give the same bytes.
#include "Processor/WetEdge.h"

#include <algorithm>

#include "Surface/WetEdge.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Processor/WetEdge.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#ifndef DABCANVAS_PROCESSOR_WETEDGE_ONCE
#define DABCANVAS_PROCESSOR_WETEDGE_ONCE
namespace dabcanvas {
namespace {

// Rows are as much longer as the widest vector has words, and planes as much higher as a square that is turned.
constexpr int kMostLanes = 32, kSquare = 8;

struct Words {
    std::uint16_t* first;
    int stride;  // from row to row

    std::uint16_t* row(int y) const { return first + std::ptrdiff_t{y} * stride; }
};

// The tent's sums down the columns of a plane, which is higher than `to` by what the tent reaches.
struct TentSums {
    Words from;
    int zeros;  // the row of them
    Words to;
    int width, height;    // of `to`
    std::uint32_t* sums;  // two rows to work in, zero
    WetEdgeTent tent;
    float wetEdge = 0;
    Words alpha{};  // of the pixels of `to`
};

}  // namespace
}  // namespace dabcanvas
#endif

HWY_BEFORE_NAMESPACE();
namespace dabcanvas::HWY_NAMESPACE {
namespace {
namespace hn = hwy::HWY_NAMESPACE;

using Floats = hn::CappedTag<float, 16>;
using Value = hn::Vec<Floats>;
constexpr Floats kFloats;
constexpr hn::RebindToSigned<Floats> kInts;
constexpr hn::RebindToUnsigned<Floats> kSums;
constexpr hn::Rebind<std::uint16_t, Floats> kWords;

HWY_INLINE auto sumsOf(const std::uint16_t* from) {
    return hn::PromoteTo(kSums, hn::LoadU(kWords, from));
}
HWY_INLINE Value floatsOf(hn::Vec<decltype(kSums)> whole) {
    return hn::ConvertTo(kFloats, hn::BitCast(kInts, whole));
}
HWY_INLINE void storeRounded(Value value, std::uint16_t* to) {
    const auto whole = hn::ConvertTo(kInts, hn::Add(value, hn::Set(kFloats, 0.5f)));
    hn::StoreU(hn::DemoteTo(kWords, whole), kWords, to);
}

// What becomes of sums: their mean, rounded.
struct Means {
    Value perSum;

    HWY_INLINE explicit Means(const TentSums& of)
        : perSum(hn::Set(kFloats, 1.0f / static_cast<float>(of.tent.sum()))) {}
    HWY_INLINE void put(Value sum, const TentSums& of, int x, int y) const {
        storeRounded(hn::Mul(sum, perSum), of.to.row(y) + x);
    }
};

// Or what a pixel loses, of 65536.
struct Losses {
    Value perSum, perAlpha, most;

    HWY_INLINE explicit Losses(const TentSums& of)
        : perSum(hn::Set(kFloats, 2.0f / (65535.0f * static_cast<float>(of.tent.sum())))),
          perAlpha(hn::Set(kFloats, 1.0f / 65535)),
          most(hn::Set(kFloats, of.wetEdge * 65535)) {}

    HWY_INLINE void put(Value sum, const TentSums& of, int x, int y) const {
        const Value one = hn::Set(kFloats, 1), zero = hn::Zero(kFloats);
        const Value alpha = hn::Mul(floatsOf(sumsOf(of.alpha.row(y) + x)), perAlpha);
        Value mean = hn::Mul(sum, perSum);
        // Of opaque pixels the root is 1, of bare ones nothing counts.
        if (!hn::AllTrue(kFloats, hn::Or(hn::Eq(alpha, one), hn::Eq(alpha, zero)))) {
            const Value root = hn::Sqrt(hn::Max(alpha, perAlpha));
            mean = hn::Div(mean, hn::Mul(root, hn::Sqrt(root)));
        }
        const Value inside = hn::Min(hn::Max(hn::Sub(mean, one), zero), one);
        const Value smooth =
            hn::Mul(hn::Mul(inside, inside), hn::Sub(hn::Set(kFloats, 3), hn::Add(inside, inside)));
        storeRounded(hn::Mul(smooth, most), of.to.row(y) + x);
    }
};
static_assert(65535 * (1.0f / 65535) == 1);

// How a sum grows from row to row follows from four rows: those that come to and leave the two means.
template <typename Put>
HWY_INLINE void sumDown(const TentSums& of) {
    const int step = static_cast<int>(hn::Lanes(kFloats)), width = (of.width + step - 1) / step * step;
    const int near = 2 * of.tent.near + 1, far = 2 * of.tent.far + 1, before = 2 * of.tent.reach();
    const auto rowAt = [&of](int y) { return of.from.row(y < 0 ? of.zeros : y); };
    const Put put(of);
    for (int y = 0; y < of.height + before; ++y) {
        const std::uint16_t *const in = rowAt(y), *const nearOut = rowAt(y - near),
                                   *const farOut = rowAt(y - far), *const bothOut = rowAt(y - near - far);
        for (int x = 0; x < width; x += step) {
            std::uint32_t *const growths = of.sums + x, *const sums = growths + width;
            const auto come = hn::Add(sumsOf(in + x), sumsOf(bothOut + x));
            const auto gone = hn::Add(sumsOf(nearOut + x), sumsOf(farOut + x));
            const auto growth = hn::Add(hn::LoadU(kSums, growths), hn::Sub(come, gone));
            const auto sum = hn::Add(hn::LoadU(kSums, sums), growth);
            hn::StoreU(growth, kSums, growths);
            hn::StoreU(sum, kSums, sums);
            if (y >= before) {
                put.put(floatsOf(sum), of, x, y - before);
            }
        }
    }
}

void findMeans(const TentSums& of) {
    sumDown<Means>(of);
}
void findLosses(const TentSums& of) {
    sumDown<Losses>(of);
}

// Rows become columns, by squares.
void turn(const Words& from, int width, int height, const Words& to) {
    const hn::Full128<std::uint16_t> words;
    const hn::Full128<std::uint32_t> pairs;
    const hn::Full128<std::uint64_t> halves;
    using Pairs = hn::Vec<decltype(pairs)>;
    static_assert(kSquare == 8);
    for (int y = 0; y < height; y += kSquare) {
        for (int x = 0; x < width; x += kSquare) {
            // Four columns' first four rows, then the other four columns; then the same of the other rows.
            const auto half = [&](int row, bool upper) HWY_ATTR {
                const auto a = hn::LoadU(words, from.row(y + row) + x),
                           b = hn::LoadU(words, from.row(y + row + 1) + x);
                return hn::BitCast(
                    pairs, upper ? hn::InterleaveUpper(words, a, b) : hn::InterleaveLower(words, a, b));
            };
            for (const bool upper : {false, true}) {
                const Pairs first = half(0, upper), second = half(2, upper), third = half(4, upper),
                            fourth = half(6, upper);
                const auto put = [&](int column, Pairs above, Pairs below) HWY_ATTR {
                    const auto high = hn::BitCast(halves, above), low = hn::BitCast(halves, below);
                    std::uint16_t* const at = to.row(x + column + (upper ? 4 : 0)) + y;
                    hn::StoreU(hn::BitCast(words, hn::InterleaveLower(halves, high, low)), words, at);
                    hn::StoreU(hn::BitCast(words, hn::InterleaveUpper(halves, high, low)), words,
                               at + to.stride);
                };
                put(0, hn::InterleaveLower(pairs, first, second), hn::InterleaveLower(pairs, third, fourth));
                put(2, hn::InterleaveUpper(pairs, first, second), hn::InterleaveUpper(pairs, third, fourth));
            }
        }
    }
}

// The alphas of a part of a tile.
void takeAlphas(const std::uint16_t* pixels, int width, int height, const Words& to) {
    const hn::CappedTag<std::uint64_t, 8> wide;
    const hn::Rebind<std::uint16_t, decltype(wide)> words;
    const int step = static_cast<int>(hn::Lanes(wide));
    for (int y = 0; y < height; ++y, pixels += kTileSide * 4) {
        std::uint16_t* const row = to.row(y);
        int x = 0;
        for (; x + step <= width; x += step) {
            const auto whole = hn::LoadU(wide, reinterpret_cast<const std::uint64_t*>(pixels + 4 * x));
            hn::StoreU(hn::TruncateTo(words, hn::ShiftRight<48>(whole)), words, row + x);
        }
        for (; x < width; ++x) {
            row[x] = pixels[4 * x + 3];
        }
    }
}

// Pixels of a tile, less what they lose.
void lose(const std::uint16_t* pixels, std::uint16_t* to, int width, int height, const Words& losses) {
    const hn::CappedTag<std::uint16_t, 32> words;
    const hn::Repartition<std::uint64_t, decltype(words)> wide;
    const hn::Rebind<std::uint32_t, decltype(wide)> halves;
    const hn::Rebind<std::uint16_t, decltype(wide)> narrow;
    const int step = static_cast<int>(hn::Lanes(wide));
    for (int y = 0; y < height; ++y, pixels += kTileSide * 4, to += kTileSide * 4) {
        const std::uint16_t* const row = losses.row(y);
        for (int next = 0; next < width && width >= step; next += step) {
            const int x = std::min(next, width - step);  // the last vector takes some once more
            auto loss = hn::PromoteTo(wide, hn::PromoteTo(halves, hn::LoadU(narrow, row + x)));
            loss = hn::Or(loss, hn::ShiftLeft<16>(loss));
            loss = hn::Or(loss, hn::ShiftLeft<32>(loss));
            const auto whole = hn::LoadU(words, pixels + 4 * x);
            hn::StoreU(hn::Sub(whole, hn::MulHigh(whole, hn::BitCast(words, loss))), words, to + 4 * x);
        }
        for (int i = 0; i < 4 * width && width < step; ++i) {
            to[i] = static_cast<std::uint16_t>(pixels[i] - ((std::uint32_t{pixels[i]} * row[i / 4]) >> 16));
        }
    }
}

}  // namespace
}  // namespace dabcanvas::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace dabcanvas {

HWY_EXPORT(findMeans);
HWY_EXPORT(findLosses);
HWY_EXPORT(turn);
HWY_EXPORT(takeAlphas);
HWY_EXPORT(lose);

void WetEdge::Plane::make(int itsWidth, int itsHeight) {
    width = itsWidth;
    height = itsHeight;
    stride = (width + kMostLanes + kMostLanes - 1) / kMostLanes * kMostLanes;
    const int rows = (height + kSquare) / kSquare * kSquare + 1;
    values.resize(std::max(values.size(), static_cast<std::size_t>(stride) * static_cast<std::size_t>(rows)));
    std::fill_n(row(height), stride, std::uint16_t{0});
}

// Of pixels beyond the canvas, the nearest one's on it.
void WetEdge::takeAlpha(const Layer& layer, const Rect& around) {
    _alpha.make(around.width, around.height);
    const auto place = [&](int x, int y) { return _alpha.row(y - around.y) + (x - around.x); };
    const Rect on = around.intersected(Rect::of(layer.size()));
    layer.forEachIn(on, [&](std::size_t index, const Rect& part) {
        if (const auto* tile = layer.tile(index)) {
            HWY_DYNAMIC_DISPATCH(takeAlphas)
            (tile->at(part.x % kTileSide, part.y % kTileSide), part.width, part.height,
             {place(part.x, part.y), _alpha.stride});
            return;
        }
        for (int y = part.y; y < part.bottom(); ++y) {
            std::fill_n(place(part.x, y), part.width, std::uint16_t{0});
        }
    });
    for (int y = on.y; y < on.bottom() && on.width < around.width; ++y) {
        std::fill(place(around.x, y), place(on.x, y), *place(on.x, y));
        std::fill(place(on.right(), y), place(around.right(), y), *place(on.right() - 1, y));
    }
    for (int y = around.y; y < around.bottom(); ++y) {
        if (const int nearest = std::clamp(y, on.y, on.bottom() - 1); nearest != y) {
            std::copy_n(place(around.x, nearest), around.width, place(around.x, y));
        }
    }
}

void WetEdge::dry(const Layer& layer, const Rect& piece, const CompositeStyle& style) {
    _rect = {};
    layer.forEachIn(piece, [&](std::size_t index, const Rect& part) {
        _rect = layer.tile(index) != nullptr ? _rect.united(part) : _rect;
    });
    if (_rect.isEmpty()) {
        return;
    }
    const WetEdgeTent tent(style.wetEdgeWidth);
    const Rect around = _rect.grownBy(tent.reach());
    const auto words = [](Plane& plane) { return Words{plane.row(0), plane.stride}; };
    takeAlpha(layer, around);
    _turnedAlpha.make(around.height, around.width);
    HWY_DYNAMIC_DISPATCH(turn)(words(_alpha), around.width, around.height, words(_turnedAlpha));
    std::fill_n(_turnedAlpha.row(around.width), _turnedAlpha.stride, std::uint16_t{0});

    _turnedMeans.make(around.height, _rect.width);
    _sums.assign(2 * static_cast<std::size_t>(_turnedMeans.stride), 0);
    HWY_DYNAMIC_DISPATCH(findMeans)
    ({.from = words(_turnedAlpha),
      .zeros = around.width,
      .to = words(_turnedMeans),
      .width = around.height,
      .height = _rect.width,
      .sums = _sums.data(),
      .tent = tent});
    _means.make(_rect.width, around.height);
    HWY_DYNAMIC_DISPATCH(turn)(words(_turnedMeans), around.height, _rect.width, words(_means));
    std::fill_n(_means.row(around.height), _means.stride, std::uint16_t{0});

    _losses.make(_rect.width, _rect.height);
    _sums.assign(2 * static_cast<std::size_t>(_losses.stride), 0);
    HWY_DYNAMIC_DISPATCH(findLosses)
    ({.from = words(_means),
      .zeros = around.height,
      .to = words(_losses),
      .width = _rect.width,
      .height = _rect.height,
      .sums = _sums.data(),
      .tent = tent,
      .wetEdge = style.wetEdge,
      .alpha = {_alpha.row(tent.reach()) + tent.reach(), _alpha.stride}});
}

const Tile<std::uint16_t>* WetEdge::dried(const Layer& layer, std::size_t index, const Rect& part) {
    const auto* tile = layer.tile(index);
    if (tile == nullptr) {
        return nullptr;
    }
    const int x = part.x % kTileSide, y = part.y % kTileSide;
    HWY_DYNAMIC_DISPATCH(lose)
    (tile->at(x, y), _dried.at(x, y), part.width, part.height,
     {_losses.row(part.y - _rect.y) + (part.x - _rect.x), _losses.stride});
    return &_dried;
}

}  // namespace dabcanvas
#endif
