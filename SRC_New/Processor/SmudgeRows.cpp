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

#include "Processor/SmudgeTexels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace dabcanvas {
namespace HWY_NAMESPACE {

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

namespace {

// Mixes what was taken with the dab's colour.
class TakenRows {
public:
    HWY_INLINE explicit TakenRows(const PickedUp& part)
        : _to(part.to), _colourPart(hn::Set(kWords, part.colourPart)) {
        std::uint64_t four;
        std::memcpy(&four, part.colour.data(), sizeof(four));
        _colour = hn::BitCast(kWords, hn::Set(kPixels, four));
    }

    HWY_INLINE void put(int x, int y, Word taken) const {
        const Word mixed = between(taken, _colour, _colourPart);
        hn::StoreU(hn::BitCast(kUnsigned, mixed), kUnsigned, _to + (y * kTileSide + x) * 4);
    }

private:
    std::uint16_t* _to;
    Word _colour, _colourPart;
};

HWY_INLINE void pickUpUnder(const PickedUp& part) {
    const TakenRows to(part);
    const Columns around(part.across, 0, part.size.width, part.from.size.width);
    for (int y = 0; y < part.size.height; ++y) {
        const TwoRows rows(part.from, part.down.at(y));
        for (int x = 0; x < part.size.width; x += lanes()) {
            to.put(x, y, around.from(x).in(rows));
        }
    }
}

HWY_INLINE void pickUpCarried(const PickedUp& part) {
    const TakenRows to(part);
    const Carried carried(part.carried, part.size);
    for (int y = 0; y < part.size.height; ++y) {
        for (int x = 0; x < part.size.width; x += lanes()) {
            to.put(x, y, carried.at(x, y));
        }
    }
}

HWY_INLINE void pickUpBoth(const PickedUp& part) {
    const TakenRows to(part);
    const Carried carried(part.carried, part.size);
    const Word carriedPart = hn::Set(kWords, part.carriedPart);
    const Columns around(part.across, 0, part.size.width, part.from.size.width);
    for (int y = 0; y < part.size.height; ++y) {
        const TwoRows rows(part.from, part.down.at(y));
        for (int x = 0; x < part.size.width; x += lanes()) {
            to.put(x, y, between(around.from(x).in(rows), carried.at(x, y), carriedPart));
        }
    }
}

}  // namespace

void PickUp(const PickedUp& part) {
    if (part.carriedPart == 0) {
        pickUpUnder(part);
    } else if (part.carriedPart < kSmudgeFull) {
        pickUpBoth(part);
    } else {
        pickUpCarried(part);
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
