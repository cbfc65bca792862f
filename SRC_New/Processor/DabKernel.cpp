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

#include "Processor/DabPixels-inl.h"
#include "Processor/DabSpans-inl.h"

HWY_BEFORE_NAMESPACE();
namespace dabcanvas {
namespace HWY_NAMESPACE {
namespace {

struct Cover {
    Int coverage, noise;
};

// A dab's coverage in a tile.
template <typename Level, int kLevels, bool kPaper>
class Coverage {
public:
    HWY_INLINE Coverage(const TileDab& dab, const DabGround& ground, const Order& order)
        : _dab(&dab),
          _paper(ground.paper),
          _order(order),
          _first(dab.shape->levels[0], dab.u[0], dab.v[0], order),
          _second(dab.shape->levels[kLevels - 1], dab.u[kLevels - 1], dab.v[kLevels - 1], order),
          _box(dab),
          _weights(hn::Set(
              kInts, dab.shape->levels[0].weight | (kLevels > 1 ? dab.shape->levels[1].weight << 16 : 0))),
          _noise(order.steps(static_cast<std::int32_t>(kNoiseRight), static_cast<std::int32_t>(kNoiseDown))),
          _faint(dab.shape->faint) {}

    // Before pixels of the rows y and y + 1.
    HWY_INLINE void beginRows(int y) {
        _first.beginRows(y);
        _second.beginRows(y);
    }
    // Of pixels from (x, y) on, x and y even, in their order: 0 before `first` and from `end` on.
    HWY_INLINE Cover at(int x, int y, Int first, Int end, bool isRim) const {
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
            times(hn::PromoteTo(kInts, hn::LoadU(narrow, _paper + paperPlace(x, y))));
        }
        const auto start =
            static_cast<std::int32_t>(_dab->noise + static_cast<std::uint32_t>(x) * kNoiseRight +
                                      static_cast<std::uint32_t>(y) * kNoiseDown);
        const Int noise = hn::Add(hn::Set(kInts, start), _noise);
        const Int rounding = hn::ShiftLeftSame(logicalShift(noise), _faint);
        const Int coverage =
            hn::ShiftRightSame(hn::Add(pairProducts(texels, _weights), rounding), kWeightShift + _faint);
        const auto isInside = hn::AndNot(hn::Lt(right, first), hn::Lt(right, end));
        return {hn::IfThenElseZero(isInside, hn::Min(coverage, hn::Set(kInts, kWhole))), noise};
    }

private:
    static HWY_INLINE Int logicalShift(Int noise) {
        return hn::BitCast(
            kInts, hn::ShiftRight<32 - kWeightShift>(hn::BitCast(hn::RebindToUnsigned<Ints>(), noise)));
    }

    const TileDab* _dab;
    const std::uint16_t* _paper;
    const Order& _order;
    Level _first, _second;
    BoxPixels _box;
    Int _weights, _noise;
    int _faint;
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

HWY_INLINE void blend(std::uint16_t* pixels, Word upper, Word lower, const Cover& cover) {
    // Signed words hold -1 but not 1: the sum is taken the other way round. ~n for n as the rounding, ~ in the end.
    const Int away = hn::Xor(cover.coverage, hn::Set(kInts, 0x8000));
    const Int weights = hn::Or(away, hn::ShiftLeft<16>(hn::Neg(cover.coverage)));
    const Int rounding = hn::Or(cover.noise, hn::Set(kInts, ~0x7fff));
    blendRow<0>(pixels, upper, weights, rounding);
    blendRow<2>(pixels + kTileSide * 4, lower, weights, rounding);
}

// Calls each(int x, int y, const Cover&) for as many pixels from x on as there are lanes, two rows at a time.
template <typename Level, int kLevels, bool kPaper, typename Each>
HWY_INLINE bool forEachCover(const TileDab& dab, const RowSpans& spans, const DabGround& ground,
                             Each&& each) {
    const Order order;
    Coverage<Level, kLevels, kPaper> coverage(dab, ground, order);
    Int any = hn::Zero(kInts);
    for (int y = dab.firstRow / 2 * 2; y < dab.endRow; y += 2) {
        coverage.beginRows(y);
        const Int first = order.perRow(spans.first[y], spans.first[y + 1]);
        const Int end = order.perRow(spans.end[y], spans.end[y + 1]);
        const int innerFirst = std::max(spans.innerFirst[y], spans.innerFirst[y + 1]);
        const int innerEnd = std::min(spans.innerEnd[y], spans.innerEnd[y + 1]);
        const int last = std::max(spans.end[y], spans.end[y + 1]);
        for (int from = std::min(spans.first[y], spans.first[y + 1]) / 2 * 2; from < last; from += across()) {
            const int x = std::min(from, kTileSide - across());
            const bool isRim = x < innerFirst || x + across() > innerEnd;
            const Cover cover = coverage.at(x, y, hn::Max(first, hn::Set(kInts, from)), end, isRim);
            each(x, y, cover);
            any = hn::Or(any, cover.coverage);
        }
    }
    return !hn::AllTrue(kInts, hn::Eq(any, hn::Zero(kInts)));
}

template <typename Level, int kLevels, bool kPaper>
bool draw(const TileDab& dab, const RowSpans& spans, const DabGround& ground) {
    std::uint64_t four;
    std::memcpy(&four, dab.shape->colour.data(), sizeof(four));
    const Word colour = hn::Xor(hn::BitCast(kWords, hn::Set(hn::Repartition<std::uint64_t, Ints>(), four)),
                                hn::Set(kWords, static_cast<std::int16_t>(-32768)));
    return forEachCover<Level, kLevels, kPaper>(
        dab, spans, ground, [&](int x, int y, const Cover& cover) HWY_ATTR {
            blend(ground.tile + (y * kTileSide + x) * 4, colour, colour, cover);
        });
}

// Each pixel in the colour that stands ready for it.
template <typename Level, int kLevels>
bool drawInColours(const TileDab& dab, const RowSpans& spans, const DabGround& ground) {
    const auto at = [&](std::ptrdiff_t value) HWY_ATTR {
        const auto colour = hn::LoadU(hn::RebindToUnsigned<Words>(), ground.colours + value);
        return hn::Xor(hn::BitCast(kWords, colour), hn::Set(kWords, static_cast<std::int16_t>(-32768)));
    };
    return forEachCover<Level, kLevels, false>(
        dab, spans, ground, [&](int x, int y, const Cover& cover) HWY_ATTR {
            const std::ptrdiff_t first = (y * kTileSide + x) * 4;
            blend(ground.tile + first, at(first), at(first + kTileSide * 4), cover);
        });
}

// Each pixel in a colour of its own. That is what takes long: one of these loops does for all dabs, on a paper that lets
// everything through and of a second level without weight.
bool drawInMulticolour(const TileDab& dab, const RowSpans& spans, const DabGround& ground) {
    constexpr std::size_t kMost = hn::MaxLanes(kInts);
    HWY_ALIGN std::int32_t coverage[kMost], right[kMost], down[kMost];
    hn::Store(Order().right, kInts, right);
    hn::Store(Order().down, kInts, down);
    DabGround paper = ground;
    paper.paper = ground.paper != nullptr ? ground.paper : smoothPaper();
    return forEachCover<LevelPixels, 2, true>(
        dab, spans, paper, [&](int x, int y, const Cover& cover) HWY_ATTR {
            hn::Store(cover.coverage, kInts, coverage);
            for (int i = 0; i < lanes(); ++i) {
                if (coverage[i] > 0) {
                    blendOne(dab, x + right[i], y + down[i], coverage[i], ground.tile);
                }
            }
        });
}

using Draw = bool (*)(const TileDab&, const RowSpans&, const DabGround&);

template <typename Level>
Draw drawOf(const DabShape& shape, const DabGround& ground) {
    static constexpr Draw kDraws[2][2] = {{draw<Level, 1, false>, draw<Level, 2, false>},
                                          {draw<Level, 1, true>, draw<Level, 2, true>}};
    static constexpr Draw kInColours[2] = {drawInColours<Level, 1>, drawInColours<Level, 2>};
    const int levels = shape.levelCount - 1;
    return ground.colours != nullptr ? kInColours[levels] : kDraws[ground.paper != nullptr][levels];
}

// Rows of pixels lie along rows of texels, and as many as there are lanes not far apart.
bool isUpright(const DabShape& shape) {
    const auto is = [](const DabLevel& level) {
        const std::int64_t farthest = std::int64_t{std::abs(level.rightU)} * (across() - 1);
        return level.downU == 0 && level.rightV == 0 && (farthest >> 16) + 1 <= kFarthestWord;
    };
    return is(shape.levels[0]) && is(shape.levels[1]);
}

Draw drawOf(const DabShape& shape, const DabGround& ground) {
    return shape.multicolour != nullptr ? drawInMulticolour
           : isUpright(shape)           ? drawOf<UprightPixels>(shape, ground)
                                        : drawOf<LevelPixels>(shape, ground);
}

}  // namespace

bool DrawDabs(std::span<const TileDab> dabs, const DabGround& ground) {
    // The spans of several dabs at a time: the processor then works on them side by side.
    constexpr std::size_t kTogether = 16;
    RowSpans spans[kTogether];
    bool any = false;
    for (std::size_t start = 0; start < dabs.size(); start += kTogether) {
        const std::span<const TileDab> some = dabs.subspan(start, std::min(kTogether, dabs.size() - start));
        for (std::size_t i = 0; i < some.size(); ++i) {
            SpanMaker(some[i], ground.width).make(spans[i]);
        }
        for (std::size_t i = 0; i < some.size(); ++i) {
            any |= drawOf(*some[i].shape, ground)(some[i], spans[i], ground);
        }
    }
    return any;
}

}  // namespace HWY_NAMESPACE
}  // namespace dabcanvas
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace dabcanvas {

HWY_EXPORT(DrawDabs);

bool drawDabs(std::span<const TileDab> dabs, const DabGround& ground) {
    return HWY_DYNAMIC_DISPATCH(DrawDabs)(dabs, ground);
}

std::vector<std::int64_t> kernelTargets() {
    std::vector<std::int64_t> targets;
    for (std::int64_t left = hwy::SupportedTargets() & HWY_TARGETS; left != 0; left &= left - 1) {
        targets.push_back(left & -left);
    }
    return targets;
}

void useKernelTarget(std::int64_t target) {
    hwy::SetSupportedTargetsForTest(target);
    hwy::GetChosenTarget().DeInit();  // so that the next call chooses anew
}

}  // namespace dabcanvas
#endif
