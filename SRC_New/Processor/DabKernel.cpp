// SPDX-License-Identifier: MIT
// Compiled once for every instruction set, and chosen among when the program runs.
#include "Processor/DabKernel.h"

#include <algorithm>
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
#if HWY_TARGET <= HWY_AVX3
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
#if HWY_TARGET <= HWY_AVX3
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

// 32 bits from each of these bytes on.
HWY_INLINE Int blocksAt(const std::uint8_t* bytes, Int offsets) {
#if HWY_TARGET <= HWY_AVX2
    return hn::GatherOffset(kInts, reinterpret_cast<const std::int32_t*>(bytes), offsets);
#else
    HWY_ALIGN std::int32_t each[hn::MaxLanes(kInts)];
    hn::Store(offsets, kInts, each);
    for (std::int32_t& value : each) {
        std::memcpy(&value, bytes + value, sizeof(value));
    }
    return hn::Load(kInts, each);
#endif
}

// Lanes stand for pixels in an order that lets a block of 128 bits spread its pixels' coverages over the channels of the
// pixels that lie there in the tile: in a block, two of the first half of the pixels, then two of the second.
HWY_INLINE Int pixelOrder() {
    const Int lane = hn::Iota(kInts, 0);
    const Int block = hn::ShiftRight<2>(lane), inHalf = hn::And(lane, hn::Set(kInts, 1));
    const Int second = hn::ShiftRight<1>(hn::And(lane, hn::Set(kInts, 2)));
    return hn::Add(hn::Add(hn::ShiftLeft<1>(block), inHalf), hn::Mul(second, hn::Set(kInts, lanes() / 2)));
}

// One level of the tip.
struct LevelRow {
    Int lanesU, lanesV, lastU, lastV, strides;
    const TileLevel* level;

    HWY_INLINE LevelRow(const TileLevel& from, Int order)
        : lanesU(hn::Mul(order, hn::Set(kInts, from.rightU))),
          lanesV(hn::Mul(order, hn::Set(kInts, from.rightV))),
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

// What the dab's box covers of each pixel, 0..32767.
struct BoxRow {
    const TileBox* box;
    Float alongX, acrossX, halfWidth, halfHeight, foot, top, height, slope, insideWide, insideTall;
    bool isTiny;

    HWY_INLINE explicit BoxRow(const TileBox& from)
        : box(&from),
          alongX(hn::Set(kFloats, from.alongX)),
          acrossX(hn::Set(kFloats, from.acrossX)),
          halfWidth(hn::Set(kFloats, from.halfWidth)),
          halfHeight(hn::Set(kFloats, from.halfHeight)),
          foot(hn::Set(kFloats, from.foot)),
          top(hn::Set(kFloats, from.top)),
          height(hn::Set(kFloats, from.height)),
          slope(hn::Set(kFloats, from.slope)) {}

    // The part of a pixel on the near side of an edge that runs so far beyond its centre, less one half; see DabMap.
    HWY_INLINE Float shadow(Float distance) const {
        const Float near = hn::Min(hn::Abs(distance), foot);
        const Float side = hn::Max(hn::Sub(near, top), hn::Zero(kFloats));
        return hn::CopySign(hn::Sub(hn::Mul(near, height), hn::Mul(hn::Mul(side, side), slope)), distance);
    }
    HWY_INLINE Float covered(Float place, Float half) const {
        return hn::Sub(shadow(hn::Add(place, half)), shadow(hn::Sub(place, half)));
    }
    HWY_INLINE Int at(Int pixels, int y) const {
        const auto down = static_cast<float>(y);
        const Float right = hn::ConvertTo(kFloats, pixels);
        const Float along =
            hn::Add(hn::Set(kFloats, box->along + down * box->alongY), hn::Mul(right, alongX));
        const Float across =
            hn::Add(hn::Set(kFloats, box->across + down * box->acrossY), hn::Mul(right, acrossX));
        const Float whole = hn::Mul(covered(along, halfWidth), covered(across, halfHeight));
        return hn::ConvertTo(kInts,
                             hn::Add(hn::Mul(whole, hn::Set(kFloats, 32767.0f)), hn::Set(kFloats, 0.5f)));
    }
};

struct Cover {
    Int coverage, noise;
};

template <int kLevels, bool kPaper>
class Rows {
public:
    HWY_INLINE explicit Rows(const TileDab& dab)
        : _dab(&dab),
          _order(pixelOrder()),
          _first(dab.levels[0], _order),
          _second(dab.levels[kLevels - 1], _order),
          _box(dab.box),
          _weights(hn::Set(kInts, dab.levels[0].weight | (kLevels > 1 ? dab.levels[1].weight << 16 : 0))),
          _noise(hn::Mul(_order, hn::Set(kInts, static_cast<std::int32_t>(kNoiseRight)))) {}

    // Of the pixels from x on, as many as there are lanes, in their order; 0 outside of the span.
    HWY_INLINE Cover coverAt(int x, int y, const Span& span) const {
        const Int high = hn::Set(kInts, static_cast<std::int32_t>(0xffff0000u));
        Int texels = hn::ShiftRight<8>(_first.at(x, y));
        if constexpr (kLevels > 1) {
            texels = hn::Or(texels, hn::And(hn::ShiftLeft<8>(_second.at(x, y)), high));
        }
        const auto times = [&](Int part) HWY_ATTR {
            const Int both = kLevels > 1 ? hn::Or(part, hn::ShiftLeft<16>(part)) : part;
            texels = hn::BitCast(kInts, hn::MulFixedPoint15(words(texels), words(both)));
        };
        const int end = x + lanes();
        if (x < span.innerFirst || end > span.innerEnd) {
            times(_box.at(hn::Add(hn::Set(kInts, x), _order), y));
        }
        if constexpr (kPaper) {
            const hn::Rebind<std::uint16_t, Ints> narrow;
            const Int through = hn::PromoteTo(kInts, hn::LoadU(narrow, _dab->paper + y * kTileSide + x));
            times(hn::TableLookupLanes(through, hn::IndicesFromVec(kInts, _order)));
        }
        const auto start =
            static_cast<std::int32_t>(_dab->noise + static_cast<std::uint32_t>(x) * kNoiseRight +
                                      static_cast<std::uint32_t>(y) * kNoiseDown);
        const Int noise = hn::Add(hn::Set(kInts, start), _noise);
        const Int rounding = hn::ShiftLeftSame(logicalShift(noise), _dab->faint);
        Int coverage =
            hn::ShiftRightSame(hn::Add(pairProducts(texels, _weights), rounding), kWeightShift + _dab->faint);
        coverage = hn::Min(coverage, hn::Set(kInts, kWhole));
        if (x < span.first || end > span.end) {
            const Int pixels = hn::Add(hn::Set(kInts, x), _order);
            coverage = hn::IfThenElseZero(hn::Lt(pixels, hn::Set(kInts, span.end)), coverage);
            coverage = hn::IfThenZeroElse(hn::Lt(pixels, hn::Set(kInts, span.first)), coverage);
        }
        return {coverage, noise};
    }

    HWY_INLINE Int order() const { return _order; }

private:
    static HWY_INLINE Int logicalShift(Int noise) {
        return hn::BitCast(
            kInts, hn::ShiftRight<32 - kWeightShift>(hn::BitCast(hn::RebindToUnsigned<Ints>(), noise)));
    }

    const TileDab* _dab;
    Int _order;
    LevelRow _first, _second;
    BoxRow _box;
    Int _weights, _noise;
};

// Two pixels a block: weights and rounding of the first one stand in one lane of each block, of the second in another.
template <int kFirst>
HWY_INLINE void blendHalf(std::uint16_t* pixels, Word colour, Int weights, Int rounding) {
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
    blendHalf<0>(pixels, colour, weights, rounding);
    blendHalf<2>(pixels + hn::Lanes(kWords), colour, weights, rounding);
}

template <int kLevels, bool kPaper>
HWY_INLINE bool draw(const TileDab& dab, const TileSpans& spans, int firstRow, int endRow,
                     std::uint16_t* tile) {
    const Rows<kLevels, kPaper> rows(dab);
    std::uint64_t four;
    std::memcpy(&four, dab.colour.data(), sizeof(four));
    const Word colour = hn::Xor(hn::BitCast(kWords, hn::Set(hn::Repartition<std::uint64_t, Ints>(), four)),
                                hn::Set(kWords, static_cast<std::int16_t>(-32768)));
    bool any = false;
    for (int y = firstRow; y < endRow; ++y) {
        Span span = spans[static_cast<std::size_t>(y)];
        while (span.first < span.end) {
            const int x = std::min<int>(span.first, kTileSide - lanes());
            const Cover cover = rows.coverAt(x, y, span);
            if (!hn::AllTrue(kInts, hn::Eq(cover.coverage, hn::Zero(kInts)))) {
                blend(tile + (y * kTileSide + x) * 4, colour, cover);
                any = true;
            }
            span.first = static_cast<std::uint8_t>(x + lanes());
        }
    }
    return any;
}

template <int kLevels, bool kPaper>
HWY_INLINE void cover(const TileDab& dab, Span span, int y, std::uint16_t* row) {
    const Rows<kLevels, kPaper> rows(dab);
    HWY_ALIGN std::int32_t coverage[hn::MaxLanes(kInts)], order[hn::MaxLanes(kInts)];
    hn::Store(rows.order(), kInts, order);
    while (span.first < span.end) {
        const int x = std::min<int>(span.first, kTileSide - lanes());
        hn::Store(rows.coverAt(x, y, span).coverage, kInts, coverage);
        for (int i = 0; i < lanes(); ++i) {
            if (const int at = x + order[i]; at >= span.first) {
                row[at] = static_cast<std::uint16_t>(coverage[i]);
            }
        }
        span.first = static_cast<std::uint8_t>(x + lanes());
    }
}

}  // namespace

bool DrawRows(const TileDab& dab, const TileSpans& spans, int firstRow, int endRow, std::uint16_t* tile) {
    const auto of = [&](auto&& one, auto&& two) { return dab.levelCount > 1 ? two : one; };
    const auto chosen =
        dab.paper != nullptr ? of(draw<1, true>, draw<2, true>) : of(draw<1, false>, draw<2, false>);
    return chosen(dab, spans, firstRow, endRow, tile);
}

void CoverRow(const TileDab& dab, const Span& span, int y, std::uint16_t* row) {
    const auto of = [&](auto&& one, auto&& two) { return dab.levelCount > 1 ? two : one; };
    const auto chosen =
        dab.paper != nullptr ? of(cover<1, true>, cover<2, true>) : of(cover<1, false>, cover<2, false>);
    chosen(dab, span, y, row);
}

}  // namespace HWY_NAMESPACE
}  // namespace dabcanvas
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace dabcanvas {

HWY_EXPORT(DrawRows);
HWY_EXPORT(CoverRow);

bool drawRows(const TileDab& dab, const TileSpans& spans, int firstRow, int endRow, std::uint16_t* tile) {
    return HWY_DYNAMIC_DISPATCH(DrawRows)(dab, spans, firstRow, endRow, tile);
}

bool drawRowsInMulticolour(const TileDab& dab, const TileSpans& spans, int firstRow, int endRow,
                           std::uint16_t* tile) {
    bool any = false;
    std::array<std::uint16_t, kTileSide> coverages;
    for (int y = firstRow; y < endRow; ++y) {
        const Span& span = spans[static_cast<std::size_t>(y)];
        HWY_DYNAMIC_DISPATCH(CoverRow)(dab, span, y, coverages.data());
        for (int x = span.first; x < span.end; ++x) {
            const int coverage = coverages[static_cast<std::size_t>(x)];
            if (coverage == 0) {
                continue;
            }
            const auto read = [&](std::size_t i) {
                const TileLevel& level = dab.levels[i];
                return Multicolour::Read{
                    dab.colours[i],
                    std::clamp(placeAt(level.u, level.rightU, level.downU, x, y), 0, level.lastU),
                    std::clamp(placeAt(level.v, level.rightV, level.downV, x, y), 0, level.lastV)};
            };
            const std::array<std::uint16_t, 4> colour = dab.multicolour->at(read(0), read(1), dab.part);
            const std::uint32_t noise = dab.noise + static_cast<std::uint32_t>(x) * kNoiseRight +
                                        static_cast<std::uint32_t>(y) * kNoiseDown;
            const int rounding = static_cast<int>(~noise & (kWhole - 1));
            std::uint16_t* pixel = tile + (y * kTileSide + x) * 4;
            for (std::size_t i = 0; i < 4; ++i) {
                const int from = pixel[i] - 32768, to = colour[i] - 32768;
                pixel[i] = static_cast<std::uint16_t>(
                    ((from * (kWhole - coverage) + to * coverage + rounding) >> 15) + 32768);
            }
            any = true;
        }
    }
    return any;
}

}  // namespace dabcanvas
#endif
