// SPDX-License-Identifier: MIT
// Vectors of 32-bit lanes, one a pixel, and what is done with them that Highway has no name for.
// Compiled once for every instruction set: included anew for each.
#if defined(DABCANVAS_PROCESSOR_KERNELVECTORS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef DABCANVAS_PROCESSOR_KERNELVECTORS_INL_H_
#undef DABCANVAS_PROCESSOR_KERNELVECTORS_INL_H_
#else
#define DABCANVAS_PROCESSOR_KERNELVECTORS_INL_H_
#endif

#include <hwy/highway.h>

#include <cstdint>
#include <cstring>

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

// The same of tables that are no longer than kSmallTable bytes, and of even offsets.
#if HWY_ARCH_X86 && HWY_TARGET <= HWY_AVX3
constexpr int kSmallTable = 256;
HWY_INLINE Int blocksInSmall(const std::uint8_t* bytes, Int offsets) {
    const Int first = hn::Or(hn::ShiftRight<1>(offsets), hn::ShiftLeft<15>(offsets));
    const __m512i both = hn::Add(first, hn::Set(kInts, 0x10000)).raw;
    const auto among = [&](int half) HWY_ATTR {
        return _mm512_permutex2var_epi16(_mm512_loadu_si512(bytes + half), both,
                                         _mm512_loadu_si512(bytes + half + 64));
    };
    const __mmask32 isFar = _mm512_test_epi16_mask(both, _mm512_set1_epi16(64));
    return Int{_mm512_mask_blend_epi16(isFar, among(0), among(128))};
}
#else
constexpr int kSmallTable = 0;
HWY_INLINE Int blocksInSmall(const std::uint8_t* bytes, Int offsets) {
    return blocksAt(bytes, offsets);
}
#endif

// Blocks of 32 bits, each so many words on in one of two rows, 1 in `lowers` for the lower one; up to kFarthestWord on.
// blocksAhead() makes of these what blocksOf() takes.
#if HWY_ARCH_X86 && HWY_TARGET <= HWY_AVX3
constexpr int kFarthestWord = 30;
HWY_INLINE Int blocksAhead(Int words, Int lowers) {
    const Int first = hn::Or(words, hn::ShiftLeft<5>(lowers));
    return hn::Add(hn::Or(first, hn::ShiftLeft<16>(first)), hn::Set(kInts, 0x10000));
}
HWY_INLINE Int blocksOf(const std::uint8_t* upper, const std::uint8_t* lower, Int ahead) {
    return Int{_mm512_permutex2var_epi16(_mm512_loadu_si512(upper), ahead.raw, _mm512_loadu_si512(lower))};
}
#else
constexpr int kFarthestWord = 1 << 12;
HWY_INLINE Int blocksAhead(Int words, Int lowers) {
    return hn::Or(hn::ShiftLeft<1>(words), hn::ShiftLeft<31>(lowers));
}
HWY_INLINE Int blocksOf(const std::uint8_t* upper, const std::uint8_t* lower, Int ahead) {
    const Int apart = hn::And(hn::BroadcastSignBit(ahead), hn::Set(kInts, static_cast<int>(lower - upper)));
    return blocksAt(upper, hn::Add(hn::And(ahead, hn::Set(kInts, 0x7fffffff)), apart));
}
#endif

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
// Of two values one for each lane, by the row of its pixel.
template <typename Value>
HWY_INLINE auto perRow(const Value* values) {
    const hn::Rebind<Value, Ints> tag;
    const hn::Repartition<std::uint64_t, Ints> pairs;
    std::uint64_t both;
    static_assert(sizeof(both) == 2 * sizeof(Value));
    std::memcpy(&both, values, sizeof(both));
    const auto each = hn::BitCast(tag, hn::Set(pairs, both));
    return hn::InterleaveLower(tag, each, each);
}
// Pixels of each row.
HWY_INLINE int across() {
    return lanes() / 2;
}

}  // namespace
}  // namespace HWY_NAMESPACE
}  // namespace dabcanvas
HWY_AFTER_NAMESPACE();
#endif
