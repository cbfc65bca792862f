// SPDX-License-Identifier: MIT
// Compiled once for every instruction set, and chosen among when the program runs.
#include "Processor/DabKernel.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Processor/DabKernel.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace dabcanvas {
namespace HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

using Ints = hn::CappedTag<std::int32_t, 16>;  // a pixel a lane
using Floats = hn::RebindToFloat<Ints>;
using Words = hn::Repartition<std::int16_t, Ints>;
using Int = hn::Vec<Ints>;
using Float = hn::Vec<Floats>;
using Word = hn::Vec<Words>;

constexpr Ints kInts;
constexpr Floats kFloats;
constexpr Words kWords;

HWY_INLINE int lanes() {
    return static_cast<int>(hn::Lanes(kInts));
}
HWY_INLINE Word words(Int value) {
    return hn::BitCast(kWords, value);
}

// Each lane's two words times the other's, summed up; the words of one side are not all -32768.
HWY_INLINE Int pairProducts(Int one, Int other) {
#if HWY_ARCH_X86 && HWY_TARGET <= HWY_AVX3
    return Int{_mm512_madd_epi16(one.raw, other.raw)};
#elif HWY_TARGET == HWY_AVX2
    return Int{_mm256_madd_epi16(one.raw, other.raw)};
#elif HWY_TARGET <= HWY_SSSE3
    return Int{_mm_madd_epi16(one.raw, other.raw)};
#else
    const auto low = [](Int value) HWY_ATTR { return hn::ShiftRight<16>(hn::ShiftLeft<16>(value)); };
    const auto high = [](Int value) HWY_ATTR { return hn::ShiftRight<16>(value); };
    return hn::Add(hn::Mul(low(one), low(other)), hn::Mul(high(one), high(other)));
#endif
}

// Each word's two bytes times the other's, summed up; those of the other are below 128.
HWY_INLINE Int bytePairProducts(Int bytes, Int other) {
#if HWY_ARCH_X86 && HWY_TARGET <= HWY_AVX3
    return Int{_mm512_maddubs_epi16(bytes.raw, other.raw)};
#elif HWY_TARGET == HWY_AVX2
    return Int{_mm256_maddubs_epi16(bytes.raw, other.raw)};
#elif HWY_TARGET <= HWY_SSSE3
    return Int{_mm_maddubs_epi16(bytes.raw, other.raw)};
#else
    const auto low = [](Int value) HWY_ATTR { return words(hn::And(value, hn::Set(kInts, 0x00ff00ff))); };
    const auto high = [](Int value) HWY_ATTR {
        return hn::And(hn::ShiftRight<8>(words(value)), hn::Set(kWords, 0x00ff));
    };
    return hn::BitCast(kInts, hn::Add(hn::Mul(low(bytes), low(other)), hn::Mul(high(bytes), high(other))));
#endif
}

#if HWY_ARCH_X86 && HWY_TARGET <= HWY_SSE4
HWY_INLINE __m128i fourBlocksAt(const std::uint8_t* bytes, __m128i offsets) {
    const auto at = [&](std::uint64_t offset) HWY_ATTR {
        std::int32_t block;
        std::memcpy(&block, bytes + (offset & 0xffffffffu), sizeof(block));
        return block;
    };
    const auto near = static_cast<std::uint64_t>(_mm_cvtsi128_si64(offsets));
    const auto far = static_cast<std::uint64_t>(_mm_extract_epi64(offsets, 1));
    __m128i blocks = _mm_cvtsi32_si128(at(near));
    blocks = _mm_insert_epi32(blocks, at(near >> 32), 1);
    blocks = _mm_insert_epi32(blocks, at(far), 2);
    return _mm_insert_epi32(blocks, at(far >> 32), 3);
}
#endif

// 32 bits from each of these bytes on. On processors whose own gathering is slow by design or by a mended fault, one by
// one takes half the time; on others it takes no longer.
HWY_INLINE Int blocksAt(const std::uint8_t* bytes, Int offsets) {
#if HWY_ARCH_X86 && HWY_TARGET <= HWY_AVX3
    const __m512i o = offsets.raw;
    const __m256i low =
        _mm256_inserti128_si256(_mm256_castsi128_si256(fourBlocksAt(bytes, _mm512_castsi512_si128(o))),
                                fourBlocksAt(bytes, _mm512_extracti32x4_epi32(o, 1)), 1);
    const __m256i high =
        _mm256_inserti128_si256(_mm256_castsi128_si256(fourBlocksAt(bytes, _mm512_extracti32x4_epi32(o, 2))),
                                fourBlocksAt(bytes, _mm512_extracti32x4_epi32(o, 3)), 1);
    return Int{_mm512_inserti64x4(_mm512_castsi256_si512(low), high, 1)};
#elif HWY_ARCH_X86 && HWY_TARGET == HWY_AVX2
    return Int{_mm256_inserti128_si256(
        _mm256_castsi128_si256(fourBlocksAt(bytes, _mm256_castsi256_si128(offsets.raw))),
        fourBlocksAt(bytes, _mm256_extracti128_si256(offsets.raw, 1)), 1)};
#elif HWY_ARCH_X86 && HWY_TARGET == HWY_SSE4
    return Int{fourBlocksAt(bytes, offsets.raw)};
#else
    HWY_ALIGN std::int32_t each[hn::MaxLanes(kInts)];
    hn::Store(offsets, kInts, each);
    for (std::int32_t& value : each) {
        std::memcpy(&value, bytes + value, sizeof(value));
    }
    return hn::Load(kInts, each);
#endif
}

// To the nearest integer, of those of 16 bits.
HWY_INLINE Int nearest(Float value) {
    constexpr float kLastBitIsOne = 3 << 22;
    const Int bits = hn::BitCast(kInts, hn::Add(value, hn::Set(kFloats, kLastBitIsOne)));
    return hn::And(bits, hn::Set(kInts, 0xffff));
}

// Lanes stand for pixels of two rows, as many of each: a block of 128 bits has two of the upper and two of the lower row, so
// that it spreads their coverages over the channels that lie in the same block of the tile's rows.
struct Order {
    Int right, down;  // of each lane's pixel from the first one

    HWY_INLINE Order() {
        const Int lane = hn::Iota(kInts, 0), one = hn::Set(kInts, 1);
        right = hn::Add(hn::ShiftLeft<1>(hn::ShiftRight<2>(lane)), hn::And(lane, one));
        down = hn::And(hn::ShiftRight<1>(lane), one);
    }
    // What so many to the right and down add up to, modulo 2^32.
    HWY_INLINE Int steps(std::int32_t perRight, std::int32_t perDown) const {
        return hn::Add(hn::Mul(right, hn::Set(kInts, perRight)), hn::Mul(down, hn::Set(kInts, perDown)));
    }
    HWY_INLINE Int perRow(int upper, int lower) const {
        return hn::IfThenElse(hn::Eq(down, hn::Zero(kInts)), hn::Set(kInts, upper), hn::Set(kInts, lower));
    }
};
// Pixels of each row.
HWY_INLINE int across() {
    return lanes() / 2;
}

// One level of the tip.
struct LevelRow {
    Int lanesU, lanesV, lastU, lastV, strides;
    const TileLevel* level;

    HWY_INLINE LevelRow(const TileLevel& from, const Order& order)
        : lanesU(order.steps(from.rightU, from.downU)),
          lanesV(order.steps(from.rightV, from.downV)),
          lastU(hn::Set(kInts, from.lastU)),
          lastV(hn::Set(kInts, from.lastV)),
          strides(hn::Set(kInts, 2 | from.stride << 16)),
          level(&from) {}

    // Sixteen bits and a few more, of which the lower eight are not worth keeping.
    HWY_INLINE Int at(int x, int y) const {
        const Int zero = hn::Zero(kInts), high = hn::Set(kInts, static_cast<std::int32_t>(0xffff0000u));
        const Int u = hn::Min(
            hn::Max(hn::Add(hn::Set(kInts, placeAt(level->u, level->rightU, level->downU, x, y)), lanesU),
                    zero),
            lastU);
        const Int v = hn::Min(
            hn::Max(hn::Add(hn::Set(kInts, placeAt(level->v, level->rightV, level->downV, x, y)), lanesV),
                    zero),
            lastV);
        const Int texel = hn::Or(hn::ShiftRight<16>(u), hn::And(v, high));
        const Int block = blocksAt(level->pairs, pairProducts(texel, strides));
        // Both fractions, of 127; then 127 less the fraction, and the fraction, side by side.
        const Int fractions = hn::OrAnd(hn::ShiftLeft<16>(v), u, hn::Set(kInts, 0xffff));
        const Word of127 = hn::MulFixedPoint15(
            hn::BitCast(kWords, hn::ShiftRight<1>(hn::BitCast(hn::RebindToUnsigned<Words>(), fractions))),
            hn::Set(kWords, 127));
        const Int both = hn::BitCast(kInts, of127);
        const Int right = hn::Or(hn::ShiftLeft<16>(both), hn::And(both, hn::Set(kInts, 127)));
        const Int down = hn::Or(hn::And(both, high), hn::ShiftRight<16>(both));
        const Int rows = hn::Xor(hn::Or(hn::ShiftLeft<8>(down), down), hn::Set(kInts, 0x007f007f));
        return pairProducts(bytePairProducts(block, rows), hn::Xor(right, hn::Set(kInts, 127)));
    }
};

// What the dab's box covers of each pixel, 0..32767; as DabMap reckons.
class BoxRow {
public:
    HWY_INLINE explicit BoxRow(const TileBox& box) : _box(&box) {}

    HWY_INLINE Int at(Int x, Int y) const {
        const TileBox& box = *_box;
        const Float right = hn::ConvertTo(kFloats, x), down = hn::ConvertTo(kFloats, y);
        const auto place = [&](float start, float perRight, float perDown) HWY_ATTR {
            const Float inRow = hn::Add(hn::Set(kFloats, start), hn::Mul(down, hn::Set(kFloats, perDown)));
            return hn::Abs(hn::Add(inRow, hn::Mul(right, hn::Set(kFloats, perRight))));
        };
        const Float along = place(box.along, box.alongX, box.alongY);
        const Float across = place(box.across, box.acrossX, box.acrossY);
        return nearest(hn::Mul(covered(along, box.halfWidth), covered(across, box.halfHeight)));
    }

private:
    // Times the root of 32767.
    HWY_INLINE Float covered(Float place, float half) const {
        const Float edge = hn::Set(kFloats, half);
        const Float near = shadow(hn::Sub(edge, place));
        if (half > _box->foot) {  // the far edge is beyond the pixel
            return hn::Add(near, hn::Set(kFloats, _box->halfShadow));
        }
        return hn::Add(near, shadow(hn::Add(edge, place)));
    }
    // The part of a pixel on the near side of an edge that runs so far beyond its centre, less one half.
    HWY_INLINE Float shadow(Float distance) const {
        const TileBox& box = *_box;
        const Float near = hn::Min(hn::Abs(distance), hn::Set(kFloats, box.foot));
        const Float side = hn::Max(hn::Sub(near, hn::Set(kFloats, box.top)), hn::Zero(kFloats));
        const Float lost = hn::Mul(hn::Mul(side, side), hn::Set(kFloats, box.slope));
        return hn::CopySign(hn::Sub(hn::Mul(near, hn::Set(kFloats, box.height)), lost), distance);
    }

    const TileBox* _box;
};

// Pixels of each row that the dab may touch, and those among them that its box covers whole.
struct Span {
    int first, end, innerFirst, innerEnd;  // 64, 0, 0, 64 where there is none
};

class Spans {
public:
    // Of rows before firstRow and from endRow on nothing is touched, nor from `width` on.
    HWY_INLINE Spans(const TileBox& box, int firstRow, int endRow, int width)
        : _box(&box),
          _rowBefore(hn::Set(kInts, firstRow - 1)),
          _endRow(hn::Set(kInts, endRow)),
          _width(hn::Set(kFloats, static_cast<float>(width))) {}

    HWY_INLINE Span at(int y) const {
        const auto i = static_cast<std::size_t>(y - _y);
        return {_first[i], _end[i], _innerFirst[i], _innerEnd[i]};
    }
    // Works out as many rows as there are lanes. A little more is taken than there is, and less of what is whole.
    HWY_INLINE void prepare(int y) {
        const TileBox& box = *_box;
        _y = y;
        const Int row = hn::Add(hn::Iota(kInts, 0), hn::Set(kInts, y));
        const Float down = hn::ConvertTo(kFloats, row);
        const auto atRow = [&](float start, float perRow) HWY_ATTR {
            return hn::Add(hn::Set(kFloats, start), hn::Mul(down, hn::Set(kFloats, perRow)));
        };
        const Float along = atRow(box.along, box.alongY), across = atRow(box.across, box.acrossY);
        Interval whole = strip(box.alongX, along, box.halfWidth + box.foot + kSlack);
        whole.cut(strip(box.acrossX, across, box.halfHeight + box.foot + kSlack));
        if (box.reachSquared < 2) {
            whole.cut(round(along, across));
        }
        Interval inner = strip(box.alongX, along, box.halfWidth - box.foot - kSlack);
        inner.cut(strip(box.acrossX, across, box.halfHeight - box.foot - kSlack));
        const Int first = pixel(whole.from), end = pixel(whole.to);
        const auto isDrawn =
            hn::And(hn::Lt(first, end), hn::And(hn::Lt(_rowBefore, row), hn::Lt(row, _endRow)));
        const Int side = hn::Set(kInts, kTileSide);
        hn::Store(hn::IfThenElse(isDrawn, first, side), kInts, _first);
        hn::Store(hn::IfThenElseZero(isDrawn, end), kInts, _end);
        hn::Store(hn::IfThenElseZero(isDrawn, pixel(inner.from)), kInts, _innerFirst);
        hn::Store(hn::IfThenElse(isDrawn, pixel(inner.to), side), kInts, _innerEnd);
    }

private:
    static constexpr float kSlack = 1e-3f;  // pixels, for what rounding does

    struct Interval {
        Float from, to;

        HWY_INLINE void cut(const Interval& other) {
            from = hn::Max(from, other.from);
            to = hn::Min(to, other.to);
        }
    };

    // Where |perX * x + offset| is below `most`.
    HWY_INLINE Interval strip(float perX, Float offset, float most) const {
        constexpr float kParallel = 1e-6f, kFar = 1e9f;
        const Float nearest = hn::Set(kFloats, most);
        if (std::abs(perX) < kParallel) {
            const auto meets = hn::Lt(hn::Abs(offset), nearest);
            const Float far = hn::Set(kFloats, kFar);
            return {hn::IfThenElse(meets, hn::Neg(far), far), hn::IfThenElse(meets, far, hn::Neg(far))};
        }
        const float perPixel = 1 / perX;
        const Float middle = hn::Mul(offset, hn::Set(kFloats, -perPixel));
        const Float half = hn::Set(kFloats, most * std::abs(perPixel));
        return {hn::Sub(middle, half), hn::Add(middle, half)};
    }
    // along^2 / wide^2 + across^2 / tall^2 <= reach^2, as a x^2 + 2 b x + c <= 0.
    HWY_INLINE Interval round(Float along, Float across) const {
        const TileBox& box = *_box;
        const float wide = 1 / (box.halfWidth + box.foot), tall = 1 / (box.halfHeight + box.foot);
        const float rightWide = box.alongX * wide, rightTall = box.acrossX * tall;
        const float a = rightWide * rightWide + rightTall * rightTall;
        const Float e = hn::Mul(along, hn::Set(kFloats, wide)), f = hn::Mul(across, hn::Set(kFloats, tall));
        const Float b =
            hn::Add(hn::Mul(e, hn::Set(kFloats, rightWide)), hn::Mul(f, hn::Set(kFloats, rightTall)));
        const Float c = hn::Sub(hn::Add(hn::Mul(e, e), hn::Mul(f, f)), hn::Set(kFloats, box.reachSquared));
        const Float square = hn::Sub(hn::Mul(b, b), hn::Mul(c, hn::Set(kFloats, a)));
        const Float perPixel = hn::Set(kFloats, 1 / a);
        const Float middle = hn::Neg(hn::Mul(b, perPixel));
        const Float slack = hn::Set(kFloats, kSlack + 1e-4f * (box.halfWidth + box.halfHeight));
        const Float half = hn::Add(hn::Mul(hn::Sqrt(hn::Max(square, hn::Zero(kFloats))), perPixel), slack);
        return {hn::Sub(middle, half), hn::Add(middle, half)};
    }
    // The first one from a place on.
    HWY_INLINE Int pixel(Float place) const {
        const Float inside = hn::Min(hn::Max(place, hn::Zero(kFloats)), _width);
        constexpr float kUp = 0.5f - kSlack / 2;
        return nearest(hn::Add(inside, hn::Set(kFloats, kUp)));
    }

    const TileBox* _box;
    Int _rowBefore, _endRow;
    Float _width;
    int _y = 0;
    HWY_ALIGN std::int32_t _first[hn::MaxLanes(kInts)], _end[hn::MaxLanes(kInts)];
    HWY_ALIGN std::int32_t _innerFirst[hn::MaxLanes(kInts)], _innerEnd[hn::MaxLanes(kInts)];
};

struct Cover {
    Int coverage, noise;
};

template <int kLevels, bool kPaper>
class Rows {
public:
    HWY_INLINE explicit Rows(const TileDab& dab)
        : _dab(&dab),
          _first(dab.levels[0], _order),
          _second(dab.levels[kLevels - 1], _order),
          _box(dab.box),
          _weights(hn::Set(kInts, dab.levels[0].weight | (kLevels > 1 ? dab.levels[1].weight << 16 : 0))),
          _noise(
              _order.steps(static_cast<std::int32_t>(kNoiseRight), static_cast<std::int32_t>(kNoiseDown))) {}

    // Of pixels from (x, y) on, x and y even, in their order: 0 before `first` and from `end` on.
    HWY_INLINE Cover coverAt(int x, int y, Int first, Int end, bool isRim) const {
        const Int high = hn::Set(kInts, static_cast<std::int32_t>(0xffff0000u));
        const Int right = hn::Add(hn::Set(kInts, x), _order.right);
        Int texels = hn::ShiftRight<8>(_first.at(x, y));
        if constexpr (kLevels > 1) {
            texels = hn::Or(texels, hn::And(hn::ShiftLeft<8>(_second.at(x, y)), high));
        }
        const auto times = [&](Int part) HWY_ATTR {
            const Int both = kLevels > 1 ? hn::Or(part, hn::ShiftLeft<16>(part)) : part;
            texels = hn::BitCast(kInts, hn::MulFixedPoint15(words(texels), words(both)));
        };
        if (isRim) {
            times(_box.at(right, hn::Add(hn::Set(kInts, y), _order.down)));
        }
        if constexpr (kPaper) {
            const hn::Rebind<std::uint16_t, Ints> narrow;
            times(hn::PromoteTo(kInts, hn::LoadU(narrow, _dab->paper + paperPlace(x, y))));
        }
        const auto start =
            static_cast<std::int32_t>(_dab->noise + static_cast<std::uint32_t>(x) * kNoiseRight +
                                      static_cast<std::uint32_t>(y) * kNoiseDown);
        const Int noise = hn::Add(hn::Set(kInts, start), _noise);
        const Int rounding = hn::ShiftLeftSame(logicalShift(noise), _dab->faint);
        const Int coverage =
            hn::ShiftRightSame(hn::Add(pairProducts(texels, _weights), rounding), kWeightShift + _dab->faint);
        const auto isInside = hn::AndNot(hn::Lt(right, first), hn::Lt(right, end));
        return {hn::IfThenElseZero(isInside, hn::Min(coverage, hn::Set(kInts, kWhole))), noise};
    }

    HWY_INLINE const Order& order() const { return _order; }

private:
    static HWY_INLINE Int logicalShift(Int noise) {
        return hn::BitCast(
            kInts, hn::ShiftRight<32 - kWeightShift>(hn::BitCast(hn::RebindToUnsigned<Ints>(), noise)));
    }

    const TileDab* _dab;
    Order _order;
    LevelRow _first, _second;
    BoxRow _box;
    Int _weights, _noise;
};

// One row, two pixels a block: weights and rounding of the first one stand in one lane of each block, of the second in another.
template <int kFirst>
HWY_INLINE void blendRow(std::uint16_t* pixels, Word colour, Int weights, Int rounding) {
    const auto unsignedWords = hn::RebindToUnsigned<Words>();
    const Word sign = hn::Set(kWords, static_cast<std::int16_t>(-32768));
    const Word from = hn::Xor(hn::BitCast(kWords, hn::LoadU(unsignedWords, pixels)), sign);
    const auto mixed = [&](Word pair, Int weight, Int round) HWY_ATTR {
        return hn::ShiftRight<15>(hn::Add(pairProducts(hn::BitCast(kInts, pair), weight), round));
    };
    const Int one = mixed(hn::InterleaveLower(kWords, from, colour), hn::Broadcast<kFirst>(weights),
                          hn::Broadcast<kFirst>(rounding));
    const Int two = mixed(hn::InterleaveUpper(kWords, from, colour), hn::Broadcast<kFirst + 1>(weights),
                          hn::Broadcast<kFirst + 1>(rounding));
    const Word result = hn::Xor(hn::ReorderDemote2To(kWords, one, two), hn::Set(kWords, 0x7fff));
    hn::StoreU(hn::BitCast(unsignedWords, result), unsignedWords, pixels);
}

HWY_INLINE void blend(std::uint16_t* pixels, Word colour, const Cover& cover) {
    // Signed words hold -1 but not 1: the sum is taken the other way round. ~n for n as the rounding, ~ in the end.
    const Int away = hn::Xor(cover.coverage, hn::Set(kInts, 0x8000));
    const Int weights = hn::Or(away, hn::ShiftLeft<16>(hn::Neg(cover.coverage)));
    const Int rounding = hn::Or(cover.noise, hn::Set(kInts, ~0x7fff));
    blendRow<0>(pixels, colour, weights, rounding);
    blendRow<2>(pixels + kTileSide * 4, colour, weights, rounding);
}

// Calls each(int x, int y, const Cover&) for as many pixels from x on as there are lanes, two rows at a time.
template <int kLevels, bool kPaper, typename Each>
HWY_INLINE bool forEachCover(const TileDab& dab, int firstRow, int endRow, int width, Each&& each) {
    const Rows<kLevels, kPaper> rows(dab);
    Spans spans(dab.box, firstRow, endRow, width);
    Int any = hn::Zero(kInts);
    const int even = firstRow / 2 * 2;
    for (int y = even; y < endRow; y += 2) {
        if ((y - even) % lanes() == 0) {
            spans.prepare(y);
        }
        const Span upper = spans.at(y), lower = spans.at(y + 1);
        const Int first = rows.order().perRow(upper.first, lower.first);
        const Int end = rows.order().perRow(upper.end, lower.end);
        const int innerFirst = std::max(upper.innerFirst, lower.innerFirst);
        const int innerEnd = std::min(upper.innerEnd, lower.innerEnd);
        const int last = std::max(upper.end, lower.end);
        for (int from = std::min(upper.first, lower.first) / 2 * 2; from < last; from += across()) {
            const int x = std::min(from, kTileSide - across());
            const bool isRim = x < innerFirst || x + across() > innerEnd;
            const Cover cover = rows.coverAt(x, y, hn::Max(first, hn::Set(kInts, from)), end, isRim);
            each(x, y, cover);
            any = hn::Or(any, cover.coverage);
        }
    }
    return !hn::AllTrue(kInts, hn::Eq(any, hn::Zero(kInts)));
}

template <int kLevels, bool kPaper>
bool draw(const TileDab& dab, int firstRow, int endRow, int width, std::uint16_t* tile) {
    std::uint64_t four;
    std::memcpy(&four, dab.colour.data(), sizeof(four));
    const Word colour = hn::Xor(hn::BitCast(kWords, hn::Set(hn::Repartition<std::uint64_t, Ints>(), four)),
                                hn::Set(kWords, static_cast<std::int16_t>(-32768)));
    return forEachCover<kLevels, kPaper>(dab, firstRow, endRow, width,
                                         [&](int x, int y, const Cover& cover) HWY_ATTR {
                                             blend(tile + (y * kTileSide + x) * 4, colour, cover);
                                         });
}

// Each pixel in a colour of its own.
template <int kLevels, bool kPaper>
bool drawInMulticolour(const TileDab& dab, int firstRow, int endRow, int width, std::uint16_t* tile) {
    HWY_ALIGN std::int32_t coverage[hn::MaxLanes(kInts)], right[hn::MaxLanes(kInts)],
        down[hn::MaxLanes(kInts)];
    hn::Store(Order().right, kInts, right);
    hn::Store(Order().down, kInts, down);
    return forEachCover<kLevels, kPaper>(
        dab, firstRow, endRow, width, [&](int x, int y, const Cover& cover) HWY_ATTR {
            hn::Store(cover.coverage, kInts, coverage);
            for (int i = 0; i < lanes(); ++i) {
                if (coverage[i] > 0) {
                    blendOne(dab, x + right[i], y + down[i], coverage[i], tile);
                }
            }
        });
}

}  // namespace

bool DrawRows(const TileDab& dab, int firstRow, int endRow, int width, std::uint16_t* tile) {
    const auto chosen = [&](auto one, auto two, auto onPaper, auto twoOnPaper) {
        return dab.paper != nullptr ? (dab.levelCount > 1 ? twoOnPaper : onPaper)
                                    : (dab.levelCount > 1 ? two : one);
    };
    const auto drawn = dab.multicolour != nullptr
                           ? chosen(drawInMulticolour<1, false>, drawInMulticolour<2, false>,
                                    drawInMulticolour<1, true>, drawInMulticolour<2, true>)
                           : chosen(draw<1, false>, draw<2, false>, draw<1, true>, draw<2, true>);
    return drawn(dab, firstRow, endRow, width, tile);
}

}  // namespace HWY_NAMESPACE
}  // namespace dabcanvas
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace dabcanvas {

HWY_EXPORT(DrawRows);

bool drawRows(const TileDab& dab, int firstRow, int endRow, int width, std::uint16_t* tile) {
    return HWY_DYNAMIC_DISPATCH(DrawRows)(dab, firstRow, endRow, width, tile);
}

}  // namespace dabcanvas
#endif
