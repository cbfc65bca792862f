// SPDX-License-Identifier: MIT
// Compiled once for every instruction set, and chosen among when the program runs.
#include "Processor/SmudgeRows.h"

#include <algorithm>
#include <cstring>

#include "Processor/BlendRows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Processor/SmudgeRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "Surface/TileSet.h"

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
HWY_INLINE Word between(Word low, Word high, Word part) {
    return hn::Add(low, hn::MulFixedPoint15(hn::Sub(high, low), part));
}
HWY_INLINE std::int16_t partOf(std::int64_t place) {
    return static_cast<std::int16_t>((place & 0xffff) >> 1);
}
HWY_INLINE int wholeOf(std::int64_t place) {
    return static_cast<int>(place >> 16);
}
// Of all full scale, in words.
HWY_INLINE Word widened(const std::uint8_t* bytes) {
    const UnsignedWord narrow = hn::PromoteTo(kUnsigned, hn::LoadU(kBytes, bytes));
    return hn::BitCast(kWords, hn::ShiftRight<1>(hn::Or(narrow, hn::ShiftLeft<8>(narrow))));
}

// ---- Between texels

// A row between two, of so many values and a few more.
HWY_INLINE void mixRows(const std::int16_t* upper, const std::int16_t* lower, std::int16_t part, int values,
                        std::int16_t* to) {
    const Word lowers = hn::Set(kWords, part);
    for (int i = 0; i < values; i += static_cast<int>(hn::Lanes(kWords))) {
        hn::StoreU(between(hn::LoadU(kWords, upper + i), hn::LoadU(kWords, lower + i), lowers), kWords,
                   to + i);
    }
}

// Which texels of a row lie around each of a vector of pixels.
class Neighbours {
public:
    // Of the pixels from the i-th on, of which so many count, in rows of so many texels.
    HWY_INLINE void find(const Steps& steps, int i, int count, int texels) {
        const std::int64_t first = steps.at(i) & 0xffff, most = lanes() - 1;
        HWY_ALIGN std::uint64_t places[kMostLanes];
        for (int lane = 0; lane < lanes(); ++lane) {
            places[lane] = static_cast<std::uint64_t>(first + steps.step * lane);
        }
        const Pixel place = hn::Load(kPixels, places);
        alignas(16) static constexpr std::uint8_t kLowest[16] = {0, 1, 0, 1, 0, 1, 0, 1,
                                                                 8, 9, 8, 9, 8, 9, 8, 9};
        _part = hn::BitCast(kWords, hn::ShiftRight<1>(spread(hn::BitCast(kUnsigned, place), kLowest)));
        _base = wholeOf(steps.at(i));
        const int last = wholeOf(steps.at(i + std::min(count, lanes()) - 1));
        const bool isInside = _base >= 0 && last + 1 < texels && steps.step >= 0;
        if (isInside && wholeOf(first + steps.step * most) <= most) {
            _kind = Kind::near;
            _indices = hn::IndicesFromVec(kPixels, hn::ShiftRight<16>(place));
        } else if (isInside && steps.step == 2 << 16) {
            _kind = Kind::pairs;
        } else {
            _kind = Kind::far;
            for (int lane = 0; lane < lanes(); ++lane) {
                const int low = wholeOf(steps.at(i + lane));
                _low[lane] = std::clamp(low, 0, texels - 1);
                _high[lane] = std::clamp(low + 1, 0, texels - 1);
            }
        }
    }

    // What a row of texels has at the pixels.
    HWY_INLINE Word in(const std::int16_t* row) const {
        if (_kind == Kind::far) {
            return between(picked(row, _low), picked(row, _high), _part);
        }
        const std::int16_t* const from = row + std::ptrdiff_t{4} * _base;
        const Pixel one = pixels(from);
        if (_kind == Kind::pairs) {
            const Pixel two = pixels(from + hn::Lanes(kWords));
            return between(hn::BitCast(kWords, hn::ConcatEven(kPixels, two, one)),
                           hn::BitCast(kWords, hn::ConcatOdd(kPixels, two, one)), _part);
        }
        return between(hn::BitCast(kWords, hn::TableLookupLanes(one, _indices)),
                       hn::BitCast(kWords, hn::TableLookupLanes(pixels(from + 4), _indices)), _part);
    }

private:
    using Pixel = hn::Vec<Pixels>;
    enum class Kind : std::uint8_t { near, pairs, far };

    static HWY_INLINE Pixel pixels(const std::int16_t* values) {
        return hn::BitCast(kPixels, hn::LoadU(kWords, values));
    }
    static HWY_INLINE Word picked(const std::int16_t* row, const int* texels) {
        HWY_ALIGN std::int16_t values[kMostLanes * 4];
        for (int lane = 0; lane < lanes(); ++lane) {
            std::memcpy(values + 4 * lane, row + std::ptrdiff_t{4} * texels[lane], 8);
        }
        return hn::Load(kWords, values);
    }

    decltype(hn::IndicesFromVec(kPixels, hn::Zero(kPixels))) _indices;
    Word _part;
    int _base;
    Kind _kind;
    int _low[kMostLanes], _high[kMostLanes];
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

// Rows of texels mixed as a part's rows lie between them.
class MixedRows {
public:
    HWY_INLINE explicit MixedRows(const SmudgeTexels& texels) : _texels(&texels) {}

    // Columns `first` up to `end` at a height; the row that stands for column 0, of which the others hold nothing.
    HWY_INLINE const std::int16_t* at(std::int64_t place, int first, int end) {
        const int upper = wholeOf(place);
        mixRows(row(upper) + 4 * first, row(upper + 1) + 4 * first, partOf(place), 4 * (end - first), _row);
        return _row - 4 * first;
    }
    HWY_INLINE const std::int16_t* row(int y) const {
        return _texels->values + _texels->stride * std::clamp(y, 0, _texels->size.height - 1);
    }

private:
    const SmudgeTexels* _texels;
    HWY_ALIGN std::int16_t _row[kMostReduced * 4 + kSpareValues];
};

}  // namespace

// ---- The layer

void ReduceRow(const ReducedRow& row) {
    HWY_ALIGN std::int16_t mixed[kMostReduced * 4 + kSpareValues];
    const Word lower = hn::Set(kWords, partOf(row.at));
    for (int i = 0; i < 4 * row.pixels; i += static_cast<int>(hn::Lanes(kWords))) {
        hn::Store(between(widened(row.upper + i), widened(row.lower + i), lower), kWords, mixed + i);
    }
    for (int x = 0; x < row.count; x += lanes()) {
        Neighbours around;
        around.find(row.across, x, row.count - x, row.pixels);
        hn::StoreU(around.in(mixed), kWords, row.to + 4 * x);
    }
}

void PickUp(const PickedUp& part) {
    std::uint64_t four;
    std::memcpy(&four, part.colour.data(), sizeof(four));
    const Word colour = hn::BitCast(kWords, hn::Set(kPixels, four));
    const Word colourPart = hn::Set(kWords, part.colourPart);
    const int columns = part.from.size.width;
    const int one = wholeOf(part.across.start), other = wholeOf(part.across.at(part.size.width - 1));
    const int first = std::clamp(std::min(one, other), 0, columns - 1);
    const int end = std::clamp(std::max(one, other) + 2, first + 1, columns);
    const Columns around(part.across, 0, part.size.width, columns);
    MixedRows rows(part.from);
    const bool isWide = end - first > kMostReduced;  // of a large place for a small dab
    for (int y = 0; y < part.size.height; ++y) {
        const std::int64_t down = part.down.at(y);
        const std::int16_t* const row = isWide ? nullptr : rows.at(down, first, end);
        const auto pickedBy = [&](const Neighbours& pixels) HWY_ATTR {
            return isWide ? between(pixels.in(rows.row(wholeOf(down))),
                                    pixels.in(rows.row(wholeOf(down) + 1)), hn::Set(kWords, partOf(down)))
                          : pixels.in(row);
        };
        std::uint16_t* const to = part.to + y * kTileSide * 4;
        for (int x = 0; x < part.size.width; x += lanes()) {
            const Word picked = pickedBy(around.from(x));
            hn::StoreU(hn::BitCast(kUnsigned, between(picked, colour, colourPart)), kUnsigned, to + 4 * x);
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
    const auto part = hn::Div(number(share), hn::Max(number(alpha), hn::Set(floats, 1)));
    const auto of15 =
        hn::ConvertTo(ints, hn::Mul(hn::Min(part, hn::Set(floats, 1)), hn::Set(floats, kSmudgeFull)));
    return hn::MulFixedPoint15(value, hn::BitCast(kWords, hn::Or(of15, hn::ShiftLeft<16>(of15))));
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

// Background and change, of 255 and 8 bits behind the point, rounded.
HWY_INLINE UnsignedWord rounded(const std::uint8_t* background, Word change, UnsignedWord noise) {
    constexpr int kOf128 = 254;  // 2 - 254 / 32768 is what a unit comes to
    const Word size = hn::Abs(change);
    const Word less = hn::MulFixedPoint15(size, hn::Set(kWords, kOf128));
    const UnsignedWord by = hn::BitCast(kUnsigned, hn::Sub(hn::Add(size, size), less));
    const UnsignedWord back =
        hn::Add(hn::ShiftLeft<8>(hn::PromoteTo(kUnsigned, hn::LoadU(kBytes, background))), noise);
    const auto isLess = hn::RebindMask(kUnsigned, hn::Lt(change, hn::Zero(kWords)));
    const UnsignedWord sum = hn::IfThenElse(isLess, hn::SaturatedSub(back, by), hn::SaturatedAdd(back, by));
    return hn::ShiftRight<8>(hn::Min(sum, alphaOf(sum)));
}

// The rows of a part, one after another.
class SmudgedRows {
public:
    HWY_INLINE explicit SmudgedRows(const PutSmudges& part)
        : _part(&part),
          _around(part.across, part.part.x, part.part.right(), part.now.size.width),
          _nows(part.now),
          _thens(part.then),
          _opacity(hn::Set(kWords, part.opacity)) {
        const auto pixel = [](int i) HWY_ATTR { return hn::Set(kWords, static_cast<std::int16_t>(4 * i)); };
        for (int x = part.part.x / lanes() * lanes(); x < part.part.right(); x += lanes()) {
            const Word value = hn::Add(hn::Iota(kWords, 0), pixel(x));
            const auto isBefore = hn::Lt(value, pixel(part.part.x));
            const auto isIn = hn::AndNot(isBefore, hn::Lt(value, pixel(part.part.right())));
            _isIn[x / lanes()] = hn::BitCast(kUnsigned, hn::VecFromMask(kWords, isIn));
        }
    }

    HWY_INLINE void put(int y) {
        // The vectors between those at both ends of which no dab exchanged a pixel.
        const PutSmudges& part = *_part;
        int first = part.part.x / lanes() * lanes(), end = part.part.right();
        while (first < end && isBare(first, y)) {
            first += lanes();
        }
        while (first < end && isBare((end - 1) / lanes() * lanes(), y)) {
            end = (end - 1) / lanes() * lanes();
        }
        if (first >= end) {
            return;
        }
        const int texels = part.now.size.width;
        const int low = std::clamp(wholeOf(part.across.at(first)), 0, texels - 1);
        const int high = std::clamp(wholeOf(part.across.at(end - 1)) + 2, low + 1, texels);
        const std::int64_t down = part.down.at(y);
        const std::int16_t* const now = _nows.at(down, low, high);
        const std::int16_t* const then = _thens.at(down, low, high);
        for (int x = first; x < end; x += lanes()) {
            putVector(x, y, now, then);
        }
    }

private:
    // In all channels; 0 of pixels that are not of the part.
    HWY_INLINE UnsignedWord exchanged(int x, int y) const {
        const auto pixels = hn::LoadU(kUnsigned, _part->exchanged + (y * kTileSide + x) * 4);
        return alphaOf(hn::And(pixels, _isIn[x / lanes()]));
    }
    HWY_INLINE bool isBare(int x, int y) const {
        return hn::AllTrue(kUnsigned, hn::Eq(exchanged(x, y), hn::Zero(kUnsigned)));
    }

    HWY_INLINE void putVector(int x, int y, const std::int16_t* now, const std::int16_t* then) const {
        const std::ptrdiff_t at = (y * kTileSide + x) * 4;
        const std::uint8_t* const background = _part->background + at;
        const Neighbours& around = _around.from(x);
        const UnsignedWord alpha = exchanged(x, y);
        const Word share = hn::BitCast(kWords, hn::ShiftRight<1>(alpha));
        const Word came = brought(around.in(now), around.in(then), share);
        Word change = hn::Sub(came, hn::MulFixedPoint15(widened(background), share));
        if (_part->opacity != kSmudgeFull) {
            change = hn::MulFixedPoint15(change, _opacity);
        }
        std::uint8_t* const picture = _part->picture + at;
        const UnsignedWord was = hn::PromoteTo(kUnsigned, hn::LoadU(kBytes, picture));
        const UnsignedWord result =
            hn::IfThenElse(hn::Eq(alpha, hn::Zero(kUnsigned)), was, rounded(background, change, noise(x, y)));
        hn::StoreU(hn::DemoteTo(kBytes, hn::BitCast(kWords, result)), kBytes, picture);
    }

    // Less at both ends, so that what is out by a unit stays what it is.
    HWY_INLINE UnsignedWord noise(int x, int y) const {
        const std::uint32_t start = _part->noise + static_cast<std::uint32_t>(x) * kNoiseAlong +
                                    static_cast<std::uint32_t>(y) * kNoiseDown;
        const auto places =
            hn::Mul(hn::ShiftRight<2>(hn::Iota(kUnsigned, 0)), hn::Set(kUnsigned, kNoiseAlong));
        const auto turn = hn::And(hn::Add(places, hn::Set(kUnsigned, static_cast<std::uint16_t>(start))),
                                  hn::Set(kUnsigned, 255));
        return hn::Add(hn::Sub(turn, hn::ShiftRight<6>(turn)), hn::Set(kUnsigned, 1));
    }

    const PutSmudges* _part;
    Columns _around;
    MixedRows _nows, _thens;
    Word _opacity;
    UnsignedWord _isIn[kTileSide / 2];
};

}  // namespace

void Put(const PutSmudges& part) {
    SmudgedRows rows(part);
    for (int y = part.part.y; y < part.part.bottom(); ++y) {
        rows.put(y);
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace dabcanvas
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace dabcanvas {

HWY_EXPORT(ReduceRow);
HWY_EXPORT(PickUp);
HWY_EXPORT(Put);

void reduceRow(const ReducedRow& row) {
    HWY_DYNAMIC_DISPATCH(ReduceRow)(row);
}
void pickUp(const PickedUp& part) {
    HWY_DYNAMIC_DISPATCH(PickUp)(part);
}
void putSmudges(const PutSmudges& part) {
    HWY_DYNAMIC_DISPATCH(Put)(part);
}

}  // namespace dabcanvas
#endif
