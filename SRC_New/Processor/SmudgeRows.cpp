// SPDX-License-Identifier: MIT
// Compiled once for every instruction set, and chosen among when the program runs.
#include "Processor/SmudgeRows.h"

#include <algorithm>
#include <cstring>

#include "Processor/BlendRows.h"
#include "Processor/Tiles.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Processor/SmudgeRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

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

// ---- Between texels

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

    // What lies at the pixels between two rows of texels.
    template <typename Channel>
    HWY_INLINE Word in(const TwoRows<Channel>& rows) const {
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

}  // namespace

// ---- The layer

namespace {

template <typename Channel>
HWY_INLINE void reducePart(const ReducedPart<Channel>& part) {
    const Columns around(part.across, 0, part.size.width, part.from.size.width);
    for (int y = 0; y < part.size.height; ++y) {
        const TwoRows rows(part.from, part.down.at(y));
        for (int x = 0; x < part.size.width; x += lanes()) {
            const Word value = around.from(x).in(rows);
            const std::ptrdiff_t at = (y * kTileSide + x) * 4;
            hn::StoreU(value, kWords, part.to + at);
            hn::StoreU(value, kWords, part.toToo + at);
        }
    }
}

}  // namespace

void Reduce8(const ReducedPart<std::uint8_t>& part) {
    reducePart(part);
}
void Reduce16(const ReducedPart<std::uint16_t>& part) {
    reducePart(part);
}

void PickUp(const PickedUp& part) {
    std::uint64_t four;
    std::memcpy(&four, part.colour.data(), sizeof(four));
    const Word colour = hn::BitCast(kWords, hn::Set(kPixels, four));
    const Word colourPart = hn::Set(kWords, part.colourPart);
    const Columns around(part.across, 0, part.size.width, part.from.size.width);
    for (int y = 0; y < part.size.height; ++y) {
        const TwoRows rows(part.from, part.down.at(y));
        for (int x = 0; x < part.size.width; x += lanes()) {
            const Word mixed = between(around.from(x).in(rows), colour, colourPart);
            hn::StoreU(hn::BitCast(kUnsigned, mixed), kUnsigned, part.to + (y * kTileSide + x) * 4);
        }
    }
}

// ---- The picture

namespace {

// At hard rims the layer does not agree with the coverage; what is too much keeps its colour.
HWY_INLINE Word cutTo(Word share, Word value, Word alpha) {
    const hn::Repartition<std::int32_t, Words> ints;
    const hn::RebindToFloat<decltype(ints)> floats;
    const auto number = [&](Word words) HWY_ATTR {
        return hn::ConvertTo(floats, hn::ShiftRight<16>(hn::BitCast(ints, words)));
    };
    const auto part =
        hn::Min(hn::Div(number(share), hn::Max(number(alpha), hn::Set(floats, 1))), hn::Set(floats, 1));
    // To the nearest whole number, which stands in the lowest bits then.
    constexpr float kLastBitIsOne = 3 << 22;
    const auto of15 = hn::Add(hn::Mul(part, hn::Set(floats, kSmudgeFull)), hn::Set(floats, kLastBitIsOne));
    return hn::MulFixedPoint15(value, lowestOf(hn::BitCast(kWords, of15)));
}

// What dabs brought to pixels of which they exchanged this share.
HWY_INLINE Word brought(Word now, Word then, Word share) {
    Word value = hn::Add(hn::Sub(now, then), hn::MulFixedPoint15(then, share));
    value = hn::Max(value, hn::Zero(kWords));
    const Word alpha = alphaOf(value);
    const auto isTooMuch = hn::Gt(alpha, share);
    if (!hn::AllFalse(kWords, isTooMuch)) {
        value = hn::IfThenElse(isTooMuch, cutTo(share, value, alpha), value);
    }
    return hn::Min(value, alphaOf(value));
}

// Background and change, of full scale 65535.
HWY_INLINE UnsignedWord changed(UnsignedWord background, Word change) {
    const UnsignedWord sign = hn::Set(kUnsigned, 0x8000);
    const Word back = hn::BitCast(kWords, hn::Xor(background, sign));
    const Word both = hn::SaturatedAdd(hn::SaturatedAdd(back, change), change);
    return hn::Xor(hn::BitCast(kUnsigned, both), sign);
}
// As a picture has it; one of 16 bits has no need of noise.
HWY_INLINE UnsignedWord rounded(UnsignedWord sum, UnsignedWord noise, std::uint8_t) {
    const UnsignedWord up = hn::Add(hn::Sub(sum, hn::ShiftRight<8>(sum)), noise);
    return hn::ShiftRight<8>(hn::Min(up, alphaOf(up)));
}
HWY_INLINE UnsignedWord rounded(UnsignedWord sum, UnsignedWord, std::uint16_t) {
    return hn::Min(sum, alphaOf(sum));
}

// The rows of a part, one after another.
template <typename Channel>
class SmudgedRows {
public:
    HWY_INLINE explicit SmudgedRows(const PutSmudges<Channel>& part)
        : _part(&part),
          _around(part.across, part.part.x, part.part.right(), part.now.size.width),
          _opacity(hn::Set(kWords, part.opacity)),
          _twice(hn::IndicesFromVec(kPixels, hn::ShiftRight<1>(hn::Iota(kPixels, 0)))) {
        const auto steps = hn::Mul(hn::ShiftRight<2>(hn::Iota(kUnsigned, 0)),
                                   hn::Set(kUnsigned, static_cast<std::uint16_t>(part.noise.along)));
        const auto pixel = [](int i) HWY_ATTR { return hn::Set(kWords, static_cast<std::int16_t>(4 * i)); };
        for (int x = part.part.x / lanes() * lanes(); x < part.part.right(); x += lanes()) {
            const Word value = hn::Add(hn::Iota(kWords, 0), pixel(x));
            const auto isBefore = hn::Lt(value, pixel(part.part.x));
            const auto isIn = hn::AndNot(isBefore, hn::Lt(value, pixel(part.part.right())));
            _isIn[x / lanes()] = hn::BitCast(kUnsigned, hn::VecFromMask(kWords, isIn));
            const auto start = static_cast<std::uint16_t>(part.noise.first +
                                                          static_cast<std::uint32_t>(x) * part.noise.along);
            _noise[x / lanes()] = hn::Add(hn::Set(kUnsigned, start), steps);
        }
    }

    HWY_INLINE void put(int y) {
        if (y % 2 == 0 || y == _part->part.y) {
            findSpan(y);
        }
        if (_first >= _end) {
            return;
        }
        const std::int64_t down = _part->down.at(y);
        const TwoRows now(_part->now, down), then(_part->then, down);
        for (int x = _first; x < _end; x += lanes()) {
            putVector(x, y, now, then);
        }
    }

private:
    // The vectors between those at both ends of which no dab exchanged a pixel, of both rows that lie side by side.
    HWY_INLINE void findSpan(int y) {
        _first = _part->part.x / lanes() * lanes();
        _end = _part->part.right();
        while (_first < _end && isBare(_first, y)) {
            _first += lanes();
        }
        while (_first < _end && isBare((_end - 1) / lanes() * lanes(), y)) {
            _end = (_end - 1) / lanes() * lanes();
        }
    }
    HWY_INLINE bool isBare(int x, int y) const {
        const auto both = pairs(x, y);
        return hn::AllTrue(kHalf, hn::Eq(both, hn::Zero(kHalf)));
    }
    // Two pixels of both rows in each lane.
    HWY_INLINE hn::Vec<hn::Half<Pixels>> pairs(int x, int y) const {
        const hn::Repartition<std::uint16_t, hn::Half<Pixels>> words;
        return hn::BitCast(kHalf, hn::LoadU(words, _part->exchanged + pairedPlace(x, y / 2 * 2)));
    }
    // In all channels; 0 of pixels that are not of the part.
    HWY_INLINE UnsignedWord exchanged(int x, int y) const {
        alignas(16) static constexpr std::uint8_t kUpper[16] = {0, 1, 0, 1, 0, 1, 0, 1,
                                                                2, 3, 2, 3, 2, 3, 2, 3};
        alignas(16) static constexpr std::uint8_t kLower[16] = {4, 5, 4, 5, 4, 5, 4, 5,
                                                                6, 7, 6, 7, 6, 7, 6, 7};
        const auto each = hn::TableLookupLanes(hn::ZeroExtendVector(kPixels, pairs(x, y)), _twice);
        const auto row = spread(hn::BitCast(kUnsigned, each), y % 2 == 0 ? kUpper : kLower);
        return hn::And(row, _isIn[x / lanes()]);
    }
    HWY_INLINE void putVector(int x, int y, const TwoRows<std::int16_t>& now,
                              const TwoRows<std::int16_t>& then) const {
        const std::ptrdiff_t at = (y * kTileSide + x) * 4;
        const UnsignedWord background = widened(_part->background + at);
        const Neighbours& around = _around.from(x);
        const UnsignedWord alpha = exchanged(x, y);
        const Word share = hn::BitCast(kWords, hn::ShiftRight<1>(alpha));
        const Word came = brought(around.in(now), around.in(then), share);
        Word change = hn::Sub(came, hn::MulFixedPoint15(halfOf(background), share));
        if (_part->opacity != kSmudgeFull) {
            change = hn::MulFixedPoint15(change, _opacity);
        }
        Channel* const picture = _part->picture + at;
        const UnsignedWord put = rounded(changed(background, change), noise(x, y), Channel{});
        store(hn::IfThenElse(hn::Eq(alpha, hn::Zero(kUnsigned)), loaded(picture), put), picture);
    }

    // Nothing at both ends of 0..255, so that what is out by a unit stays what it is.
    HWY_INLINE UnsignedWord noise(int x, int y) const {
        const auto down = static_cast<std::uint16_t>(static_cast<std::uint32_t>(y) * _part->noise.down);
        const UnsignedWord turn = hn::Add(_noise[x / lanes()], hn::Set(kUnsigned, down));
        return hn::OrAnd(hn::Set(kUnsigned, 1), turn, hn::Set(kUnsigned, 252));
    }

    const PutSmudges<Channel>* _part;
    Columns _around;
    int _first = 0, _end = 0;
    Word _opacity;
    decltype(hn::IndicesFromVec(kPixels, hn::Zero(kPixels))) _twice;
    UnsignedWord _isIn[kTileSide / 2], _noise[kTileSide / 2];
};

template <typename Channel>
HWY_INLINE void putPart(const PutSmudges<Channel>& part) {
    SmudgedRows<Channel> rows(part);
    for (int y = part.part.y; y < part.part.bottom(); ++y) {
        rows.put(y);
    }
}

}  // namespace

void Put8(const PutSmudges<std::uint8_t>& part) {
    putPart(part);
}
void Put16(const PutSmudges<std::uint16_t>& part) {
    putPart(part);
}

}  // namespace HWY_NAMESPACE
}  // namespace dabcanvas
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace dabcanvas {

HWY_EXPORT(Reduce8);
HWY_EXPORT(Reduce16);
HWY_EXPORT(PickUp);
HWY_EXPORT(Put8);
HWY_EXPORT(Put16);

void reduce(const ReducedPart<std::uint8_t>& part) {
    HWY_DYNAMIC_DISPATCH(Reduce8)(part);
}
void reduce(const ReducedPart<std::uint16_t>& part) {
    HWY_DYNAMIC_DISPATCH(Reduce16)(part);
}
void pickUp(const PickedUp& part) {
    HWY_DYNAMIC_DISPATCH(PickUp)(part);
}
void putSmudges(const PutSmudges<std::uint8_t>& part) {
    HWY_DYNAMIC_DISPATCH(Put8)(part);
}
void putSmudges(const PutSmudges<std::uint16_t>& part) {
    HWY_DYNAMIC_DISPATCH(Put16)(part);
}

}  // namespace dabcanvas
#endif
