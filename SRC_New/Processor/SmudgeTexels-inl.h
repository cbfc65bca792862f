// SPDX-License-Identifier: MIT
// Pixels as vectors of words, and what lies at places between the texels of a part, bilinear.
// Compiled once for every instruction set: included anew for each.
#if defined(DABCANVAS_PROCESSOR_SMUDGETEXELS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef DABCANVAS_PROCESSOR_SMUDGETEXELS_INL_H_
#undef DABCANVAS_PROCESSOR_SMUDGETEXELS_INL_H_
#else
#define DABCANVAS_PROCESSOR_SMUDGETEXELS_INL_H_
#endif

#include <hwy/highway.h>

#include <algorithm>
#include <cstring>

#include "Processor/SmudgeRows.h"
#include "Processor/Tiles.h"

HWY_BEFORE_NAMESPACE();
namespace dabcanvas {
namespace HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

// Whole pixels in every vector, four channels each.
using Words = hn::CappedTag<std::int16_t, 32>;
using Bytes = hn::Rebind<std::uint8_t, Words>;
using Unsigned = hn::RebindToUnsigned<Words>;
using Pixels = hn::Repartition<std::uint64_t, Words>;
using Word = hn::Vec<Words>;
using UnsignedWord = hn::Vec<Unsigned>;

constexpr Words kWords;
constexpr Bytes kBytes;
constexpr Unsigned kUnsigned;
constexpr Pixels kPixels;
constexpr hn::Half<Pixels> kHalf;
constexpr std::size_t kMostLanes = hn::MaxLanes(kPixels);

HWY_INLINE int lanes() {
    return static_cast<int>(hn::Lanes(kPixels));
}
// The same word of each pixel's eight bytes in all its channels.
template <typename Vector>
HWY_INLINE Vector spread(Vector pixels, const std::uint8_t (&bytes)[16]) {
    const hn::DFromV<Vector> words;
    const hn::Repartition<std::uint8_t, hn::DFromV<Vector>> as;
    return hn::BitCast(words, hn::TableLookupBytes(hn::BitCast(as, pixels), hn::LoadDup128(as, bytes)));
}
template <typename Vector>
HWY_INLINE Vector alphaOf(Vector pixels) {
    alignas(16) static constexpr std::uint8_t kAlphas[16] = {6,  7,  6,  7,  6,  7,  6,  7,
                                                             14, 15, 14, 15, 14, 15, 14, 15};
    return spread(pixels, kAlphas);
}
template <typename Vector>
HWY_INLINE Vector lowestOf(Vector pixels) {
    alignas(16) static constexpr std::uint8_t kLowest[16] = {0, 1, 0, 1, 0, 1, 0, 1, 8, 9, 8, 9, 8, 9, 8, 9};
    return spread(pixels, kLowest);
}
HWY_INLINE Word between(Word low, Word high, Word part) {
    return hn::Add(low, hn::MulFixedPoint15(hn::Sub(high, low), part));
}
HWY_INLINE std::int16_t partOf(std::int64_t place) {
    return static_cast<std::int16_t>((place & 0xffff) >> 1);
}
HWY_INLINE int wholeOf(std::int64_t place) {
    return static_cast<int>(place >> 16);
}
// A picture's own values, and such of full scale 65535.
HWY_INLINE UnsignedWord loaded(const std::uint8_t* values) {
    return hn::PromoteTo(kUnsigned, hn::LoadU(kBytes, values));
}
HWY_INLINE UnsignedWord loaded(const std::uint16_t* values) {
    return hn::LoadU(kUnsigned, values);
}
HWY_INLINE void store(UnsignedWord values, std::uint8_t* to) {
    hn::StoreU(hn::DemoteTo(kBytes, hn::BitCast(kWords, values)), kBytes, to);
}
HWY_INLINE void store(UnsignedWord values, std::uint16_t* to) {
    hn::StoreU(values, kUnsigned, to);
}
HWY_INLINE UnsignedWord widened(const std::uint8_t* bytes) {
    const UnsignedWord narrow = loaded(bytes);
    return hn::Or(narrow, hn::ShiftLeft<8>(narrow));
}
HWY_INLINE UnsignedWord widened(const std::uint16_t* values) {
    return loaded(values);
}
HWY_INLINE Word halfOf(UnsignedWord value) {
    return hn::BitCast(kWords, hn::ShiftRight<1>(value));
}

HWY_INLINE Word wordsAt(const std::int16_t* values) {
    return hn::LoadU(kWords, values);
}
template <typename Channel>
HWY_INLINE Word wordsAt(const Channel* values) {
    return halfOf(widened(values));
}

// Two rows of a part, and a height between them.
template <typename Channel>
class TwoRows {
public:
    HWY_INLINE TwoRows(const SmudgePart<Channel>& part, std::int64_t place)
        : _upper(row(part, wholeOf(place))),
          _lower(row(part, wholeOf(place) + 1)),
          _part(hn::Set(kWords, partOf(place))) {}

    // As many texels as there are lanes, from one on.
    HWY_INLINE Word at(int first) const {
        const std::ptrdiff_t value = std::ptrdiff_t{4} * first;
        return between(wordsAt(_upper + value), wordsAt(_lower + value), _part);
    }
    // These.
    HWY_INLINE Word picked(const int* texels) const {
        HWY_ALIGN Channel upper[kMostLanes * 4], lower[kMostLanes * 4];
        for (int lane = 0; lane < lanes(); ++lane) {
            std::memcpy(upper + 4 * lane, _upper + std::ptrdiff_t{4} * texels[lane], 4 * sizeof(Channel));
            std::memcpy(lower + 4 * lane, _lower + std::ptrdiff_t{4} * texels[lane], 4 * sizeof(Channel));
        }
        return between(wordsAt(upper), wordsAt(lower), _part);
    }

private:
    static HWY_INLINE const Channel* row(const SmudgePart<Channel>& part, int y) {
        return part.values + part.stride * std::clamp(y, 0, part.size.height - 1);
    }

    const Channel *_upper, *_lower;
    Word _part;
};

// Which texels of a row lie around each of a vector of pixels.
class Neighbours {
public:
    HWY_INLINE Neighbours() {}  // by itself, compilers would make one without the vectors' instructions

    // Of the pixels from the i-th on, of which so many count, in rows of so many texels.
    HWY_INLINE void find(const Steps& steps, int i, int count, int texels) {
        const std::int64_t first = steps.at(i) & 0xffff, most = lanes() - 1;
        HWY_ALIGN std::uint64_t places[kMostLanes];
        for (int lane = 0; lane < lanes(); ++lane) {
            places[lane] = static_cast<std::uint64_t>(first + steps.step * lane);
        }
        const Pixel place = hn::Load(kPixels, places);
        _part = hn::BitCast(kWords, hn::ShiftRight<1>(lowestOf(hn::BitCast(kUnsigned, place))));
        _base = wholeOf(steps.at(i));
        const int last = wholeOf(steps.at(i + std::min(count, lanes()) - 1));
        const bool isInside = _base >= 0 && last + 1 < texels && steps.step >= 0;
        const int farthest = wholeOf(first + steps.step * most);
        if (isInside && farthest <= most) {
            _kind = farthest < most ? Kind::nearer : Kind::near;
            const Pixel low = hn::ShiftRight<16>(place);
            _low = hn::IndicesFromVec(kPixels, low);
            _high = hn::IndicesFromVec(
                kPixels, farthest < most ? hn::Add(low, hn::Set(kPixels, std::uint64_t{1})) : low);
        } else if (isInside && steps.step == 2 << 16) {
            _kind = Kind::pairs;
        } else {
            _kind = Kind::far;
            for (int lane = 0; lane < lanes(); ++lane) {
                const int low = wholeOf(steps.at(i + lane));
                _lows[lane] = std::clamp(low, 0, texels - 1);
                _highs[lane] = std::clamp(low + 1, 0, texels - 1);
            }
        }
    }

    // What lies at the pixels in a row of texels, or between two.
    template <typename Rows>
    HWY_INLINE Word in(const Rows& rows) const {
        if (_kind == Kind::far) {
            return between(rows.picked(_lows), rows.picked(_highs), _part);
        }
        const Pixel one = hn::BitCast(kPixels, rows.at(_base));
        if (_kind == Kind::pairs) {
            const Pixel two = hn::BitCast(kPixels, rows.at(_base + lanes()));
            return between(hn::BitCast(kWords, hn::ConcatEven(kPixels, two, one)),
                           hn::BitCast(kWords, hn::ConcatOdd(kPixels, two, one)), _part);
        }
        const Pixel next = _kind == Kind::nearer ? one : hn::BitCast(kPixels, rows.at(_base + 1));
        return between(hn::BitCast(kWords, hn::TableLookupLanes(one, _low)),
                       hn::BitCast(kWords, hn::TableLookupLanes(next, _high)), _part);
    }

private:
    using Pixel = hn::Vec<Pixels>;
    // Among as many texels as there are lanes, both or each of the two; one after another; or anywhere.
    enum class Kind : std::uint8_t { nearer, near, pairs, far };

    decltype(hn::IndicesFromVec(kPixels, hn::Zero(kPixels))) _low, _high;
    Word _part;
    int _base;
    Kind _kind;
    int _lows[kMostLanes], _highs[kMostLanes];
};

// Those of all columns of a part that are drawn.
class Columns {
public:
    // Of pixels up to `end`, in vectors from a whole one on.
    HWY_INLINE Columns(const Steps& steps, int first, int end, int texels) {
        for (int x = first / lanes() * lanes(); x < end; x += lanes()) {
            _around[x / lanes()].find(steps, x, end - x, texels);
        }
    }
    HWY_INLINE const Neighbours& from(int x) const { return _around[x / lanes()]; }

private:
    Neighbours _around[kTileSide / 2];
};

// Colours in a row of their own.
class OneRow {
public:
    HWY_INLINE explicit OneRow(const std::int16_t* colours) : _colours(colours) {}

    HWY_INLINE Word at(int first) const { return wordsAt(_colours + std::ptrdiff_t{4} * first); }
    HWY_INLINE Word picked(const int* texels) const {
        HWY_ALIGN std::int16_t values[kMostLanes * 4];
        for (int lane = 0; lane < lanes(); ++lane) {
            std::memcpy(values + 4 * lane, _colours + std::ptrdiff_t{4} * texels[lane],
                        4 * sizeof(std::int16_t));
        }
        return wordsAt(values);
    }

private:
    const std::int16_t* _colours;
};

// What is carried along, at the pixels of a part.
class Carried {
public:
    HWY_INLINE Carried(const CarriedColours& colours, const Size& part)
        : _colours(&colours), _row(colours.colours) {
        HWY_ALIGN std::uint64_t steps[kMostLanes];
        for (int lane = 0; lane < lanes(); ++lane) {
            steps[lane] = static_cast<std::uint64_t>(colours.right * lane);
        }
        _steps = hn::Load(kPixels, steps);
        const std::int64_t width = part.width + lanes(), bottom = colours.down * (part.height - 1);
        const std::int64_t least = colours.start + std::min<std::int64_t>(bottom, 0);
        const std::int64_t most = colours.start + std::max<std::int64_t>(bottom, 0) + colours.right * width;
        // As many colours as there are lanes hold all that a vector needs.
        _isNear = colours.right <= 1 << 16 && least >= 0 && wholeOf(most) + 1 < colours.count;
    }

    // Of those from x on.
    HWY_INLINE Word at(int x, int y) const {
        const std::int64_t start = _colours->start + _colours->down * y + _colours->right * x;
        const Pixel place = hn::Add(hn::Set(kPixels, static_cast<std::uint64_t>(start & 0xffff)), _steps);
        const Word part = hn::BitCast(kWords, hn::ShiftRight<1>(lowestOf(hn::BitCast(kUnsigned, place))));
        if (!_isNear) {
            int lows[kMostLanes], highs[kMostLanes];
            for (int lane = 0; lane < lanes(); ++lane) {
                const int low = wholeOf(start + _colours->right * lane);
                lows[lane] = std::clamp(low, 0, _colours->count - 1);
                highs[lane] = std::clamp(low + 1, 0, _colours->count - 1);
            }
            return between(_row.picked(lows), _row.picked(highs), part);
        }
        const auto index = hn::IndicesFromVec(kPixels, hn::ShiftRight<16>(place));
        const auto picked = [&](int first) HWY_ATTR {
            return hn::BitCast(kWords, hn::TableLookupLanes(hn::BitCast(kPixels, _row.at(first)), index));
        };
        return between(picked(wholeOf(start)), picked(wholeOf(start) + 1), part);
    }

private:
    using Pixel = hn::Vec<Pixels>;

    const CarriedColours* _colours;
    OneRow _row;
    Pixel _steps;
    bool _isNear;
};

}  // namespace
}  // namespace HWY_NAMESPACE
}  // namespace dabcanvas
HWY_AFTER_NAMESPACE();
#endif
