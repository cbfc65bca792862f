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
#include "Processor/DabUpright-inl.h"

HWY_BEFORE_NAMESPACE();
namespace dabcanvas {
namespace HWY_NAMESPACE {
namespace {

enum class Paper : std::uint8_t { none, plain, relief };

struct Cover {
    Int coverage, noise;
};

// What a dab's levels, box and paper come to, rounded.
template <int kLevels>
class Rounding {
public:
    HWY_INLINE Rounding(const TileDab& dab, const Order& order)
        : _start(dab.noise),
          _weights(hn::Set(
              kInts, dab.shape->levels[0].weight | (kLevels > 1 ? dab.shape->levels[1].weight << 16 : 0))),
          _noise(order.steps(static_cast<std::int32_t>(kNoiseRight), static_cast<std::int32_t>(kNoiseDown))),
          _lift(hn::Set(kInts, dab.shape->paperLift)),
          _faint(dab.shape->faint) {}

    // Sixteen bits of each level, side by side.
    static HWY_INLINE Int levels(Int first, Int second) {
        const Int high = hn::Set(kInts, static_cast<std::int32_t>(0xffff0000u));
        const Int upper = kLevels > 1 ? hn::And(hn::ShiftLeft<8>(second), high) : hn::Zero(kInts);
        return hn::Or(hn::ShiftRight<8>(first), upper);
    }
    static HWY_INLINE Int times(Int texels, Int part) {
        const Int both = kLevels > 1 ? hn::Or(part, hn::ShiftLeft<16>(part)) : part;
        return hn::BitCast(kInts, hn::MulFixedPoint15(words(texels), words(both)));
    }
    template <Paper kPaper>
    HWY_INLINE Int timesPaper(Int texels, const std::uint16_t* paper, int x, int y) const {
        const hn::Rebind<std::uint16_t, Ints> narrow;
        const hn::Rebind<std::int16_t, Ints> narrowSigned;
        const auto here = hn::LoadU(narrow, paper + pairedPlace(x, y));
        if (kPaper == Paper::plain) {
            return times(texels, hn::PromoteTo(kInts, here));
        }
        const Int raised = hn::Add(hn::PromoteTo(kInts, hn::BitCast(narrowSigned, here)), _lift);
        const Int cut = hn::Min(hn::Max(raised, hn::Zero(kInts)), hn::Set(kInts, kRelief));
        return times(texels, hn::Add(hn::Add(cut, cut), hn::ShiftRight<13>(cut)));  // of 32767
    }
    // Of the pixels from (x, y) on.
    HWY_INLINE Cover cover(Int texels, int x, int y) const {
        const auto start = static_cast<std::int32_t>(_start + static_cast<std::uint32_t>(x) * kNoiseRight +
                                                     static_cast<std::uint32_t>(y) * kNoiseDown);
        const Int noise = hn::Add(hn::Set(kInts, start), _noise);
        const Int rounding = hn::ShiftLeftSame(logicalShift(noise), _faint);
        const Int coverage =
            hn::ShiftRightSame(hn::Add(pairProducts(texels, _weights), rounding), kWeightShift + _faint);
        return {hn::Min(coverage, hn::Set(kInts, kWhole)), noise};
    }

private:
    static HWY_INLINE Int logicalShift(Int noise) {
        return hn::BitCast(
            kInts, hn::ShiftRight<32 - kWeightShift>(hn::BitCast(hn::RebindToUnsigned<Ints>(), noise)));
    }

    std::uint32_t _start;
    Int _weights, _noise, _lift;
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

// Both call each(int x, int y, const Cover&) for as many pixels from x on as there are lanes, two rows at a time.
struct AnyDab {
    template <int kLevels, Paper kPaper, typename Each>
    static HWY_INLINE bool forEachCover(const TileDab& dab, const RowSpans& spans, const DabGround& ground,
                                        Each&& each) {
        const Order order;
        const Rounding<kLevels> rounding(dab, order);
        const LevelPixels one(dab.shape->levels[0], dab.u[0], dab.v[0], order);
        const LevelPixels two(dab.shape->levels[kLevels - 1], dab.u[kLevels - 1], dab.v[kLevels - 1], order);
        const BoxPixels box(dab);
        Int any = hn::Zero(kInts);
        for (int y = dab.firstRow / 2 * 2; y < dab.endRow; y += 2) {
            const Int first = order.perRow(spans.first[y], spans.first[y + 1]);
            const Int end = order.perRow(spans.end[y], spans.end[y + 1]);
            const int innerFirst = std::max(spans.innerFirst[y], spans.innerFirst[y + 1]);
            const int innerEnd = std::min(spans.innerEnd[y], spans.innerEnd[y + 1]);
            const int last = std::max(spans.end[y], spans.end[y + 1]);
            for (int from = std::min(spans.first[y], spans.first[y + 1]) / 2 * 2; from < last;
                 from += across()) {
                const int x = std::min(from, kTileSide - across());
                const Int right = hn::Add(hn::Set(kInts, x), order.right);
                Int texels = rounding.levels(one.at(x, y), kLevels > 1 ? two.at(x, y) : hn::Zero(kInts));
                if (x < innerFirst || x + across() > innerEnd) {
                    texels = rounding.times(texels, box.at(right, hn::Add(hn::Set(kInts, y), order.down)));
                }
                if (kPaper != Paper::none) {
                    texels = rounding.template timesPaper<kPaper>(texels, ground.paper, x, y);
                }
                Cover cover = rounding.cover(texels, x, y);
                const auto isBefore = hn::Lt(right, hn::Max(first, hn::Set(kInts, from)));
                cover.coverage = hn::IfThenElseZero(hn::AndNot(isBefore, hn::Lt(right, end)), cover.coverage);
                each(x, y, cover);
                any = hn::Or(any, cover.coverage);
            }
        }
        return !hn::AllTrue(kInts, hn::Eq(any, hn::Zero(kInts)));
    }
};

// Columns from left to right, each from above.
struct UprightDab {
    template <int kLevels, Paper kPaper, typename Each>
    static HWY_INLINE bool forEachCover(const TileDab& dab, const RowSpans& spans, const DabGround& ground,
                                        Each&& each) {
        const Order order;
        const Rounding<kLevels> rounding(dab, order);
        const UprightBox<kLevels> box(dab, ground.width);
        int leftmost = kTileSide, rightmost = 0;
        for (int y = dab.firstRow / 2 * 2; y < (spans.areAlike ? dab.firstRow + 1 : dab.endRow); ++y) {
            leftmost = std::min<int>(leftmost, spans.first[y]);
            rightmost = std::max<int>(rightmost, spans.end[y]);
        }
        Int any = hn::Zero(kInts);
        for (int from = leftmost / 2 * 2; from < rightmost; from += across()) {
            const int x = std::min(from, kTileSide - across());
            const TexelColumns one(dab.shape->levels[0], dab.u[0], x, order);
            const TexelColumns two(dab.shape->levels[kLevels - 1], dab.u[kLevels - 1], x, order);
            const Float columns = box.covered(hn::Add(hn::Set(kInts, x), order.right), from);
            for (int y = dab.firstRow / 2 * 2; y < dab.endRow; y += 2) {
                if (x + across() <= std::min(spans.first[y], spans.first[y + 1]) ||
                    x >= std::max(spans.end[y], spans.end[y + 1])) {
                    continue;
                }
                Int texels =
                    rounding.levels(one.at(box.level(0), y),
                                    kLevels > 1 ? two.at(box.level(kLevels - 1), y) : hn::Zero(kInts));
                texels = rounding.times(texels, nearest(hn::Mul(columns, box.covered(y))));
                if (kPaper != Paper::none) {
                    texels = rounding.template timesPaper<kPaper>(texels, ground.paper, x, y);
                }
                const Cover cover = rounding.cover(texels, x, y);
                each(x, y, cover);
                any = hn::Or(any, cover.coverage);
            }
        }
        return !hn::AllTrue(kInts, hn::Eq(any, hn::Zero(kInts)));
    }
};

HWY_INLINE Word signedWords(hn::Vec<hn::RebindToUnsigned<Words>> colour) {
    return hn::Xor(hn::BitCast(kWords, colour), hn::Set(kWords, static_cast<std::int16_t>(-32768)));
}

template <typename Kind, int kLevels, Paper kPaper>
bool draw(const TileDab& dab, const RowSpans& spans, const DabGround& ground) {
    std::uint64_t four;
    std::memcpy(&four, dab.shape->colour.data(), sizeof(four));
    const Word colour = signedWords(
        hn::BitCast(hn::RebindToUnsigned<Words>(), hn::Set(hn::Repartition<std::uint64_t, Ints>(), four)));
    return Kind::template forEachCover<kLevels, kPaper>(
        dab, spans, ground, [&](int x, int y, const Cover& cover) HWY_ATTR {
            blend(ground.tile + (y * kTileSide + x) * 4, colour, colour, cover);
        });
}

// Each pixel in the colour that stands ready for it.
template <typename Kind, int kLevels>
bool drawInColours(const TileDab& dab, const RowSpans& spans, const DabGround& ground) {
    const auto at = [&](std::ptrdiff_t value) HWY_ATTR {
        return signedWords(hn::LoadU(hn::RebindToUnsigned<Words>(), ground.colours + value));
    };
    return Kind::template forEachCover<kLevels, Paper::none>(
        dab, spans, ground, [&](int x, int y, const Cover& cover) HWY_ATTR {
            const std::ptrdiff_t first = (y * kTileSide + x) * 4;
            blend(ground.tile + first, at(first), at(first + kTileSide * 4), cover);
        });
}

// Alpha alone.
template <typename Kind, int kLevels>
bool drawCoverage(const TileDab& dab, const RowSpans& spans, const DabGround& ground) {
    const hn::Rebind<std::uint16_t, Ints> narrow;
    const Int full = hn::Set(kInts, 65535), fraction = hn::Set(kInts, 0x7fff);
    return Kind::template forEachCover<kLevels, Paper::none>(
        dab, spans, ground, [&](int x, int y, const Cover& cover) HWY_ATTR {
            std::uint16_t* const pixels = ground.tile + pairedPlace(x, y);
            const Int alpha = hn::PromoteTo(kInts, hn::LoadU(narrow, pixels));
            const Int more =
                hn::Add(hn::Mul(hn::Sub(full, alpha), cover.coverage), hn::And(cover.noise, fraction));
            hn::StoreU(hn::DemoteTo(narrow, hn::Add(alpha, hn::ShiftRight<15>(more))), narrow, pixels);
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
    const auto each = [&](int x, int y, const Cover& cover) HWY_ATTR {
        hn::Store(cover.coverage, kInts, coverage);
        for (int i = 0; i < lanes(); ++i) {
            if (coverage[i] > 0) {
                blendOne(dab, x + right[i], y + down[i], coverage[i], ground.tile);
            }
        }
    };
    return ground.isRelief && ground.paper != nullptr
               ? AnyDab::forEachCover<2, Paper::relief>(dab, spans, paper, each)
               : AnyDab::forEachCover<2, Paper::plain>(dab, spans, paper, each);
}

using Draw = bool (*)(const TileDab&, const RowSpans&, const DabGround&);

template <typename Kind>
Draw drawOf(const DabShape& shape, const DabGround& ground) {
    static constexpr Draw kDraws[3][2] = {{draw<Kind, 1, Paper::none>, draw<Kind, 2, Paper::none>},
                                          {draw<Kind, 1, Paper::plain>, draw<Kind, 2, Paper::plain>},
                                          {draw<Kind, 1, Paper::relief>, draw<Kind, 2, Paper::relief>}};
    static constexpr Draw kInColours[2] = {drawInColours<Kind, 1>, drawInColours<Kind, 2>};
    static constexpr Draw kCoverage[2] = {drawCoverage<Kind, 1>, drawCoverage<Kind, 2>};
    const int levels = shape.levelCount - 1;
    if (ground.isCoverage) {
        return kCoverage[levels];
    }
    const int paper = ground.paper == nullptr ? 0 : ground.isRelief ? 2 : 1;
    return ground.colours != nullptr ? kInColours[levels] : kDraws[paper][levels];
}

// Rows of pixels lie along rows of texels, and as many as there are lanes not far apart.
bool isUpright(const DabShape& shape) {
    const auto is = [](const DabLevel& level) {
        const std::int64_t farthest = std::abs(std::int64_t{level.rightU}) * (across() - 1);
        return level.downU == 0 && level.rightV == 0 && (farthest >> 16) + 1 <= kFarthestWord;
    };
    return is(shape.levels[0]) && is(shape.levels[1]);
}

// The rows of such a dab lie in as many vectors as its box.
bool isSmallUpright(const DabShape& shape) {
    constexpr float kSmall = 12;
    return shape.multicolour == nullptr && shape.box.halfWidth < kSmall && isUpright(shape);
}

Draw drawOf(const DabShape& shape, const DabGround& ground) {
    return shape.multicolour != nullptr ? drawInMulticolour
           : isUpright(shape)           ? drawOf<UprightDab>(shape, ground)
                                        : drawOf<AnyDab>(shape, ground);
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
            if (isSmallUpright(*some[i].shape)) {
                fillSpans(some[i], ground.width, spans[i]);
            } else {
                SpanMaker(some[i], ground.width).make(spans[i]);
            }
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

#ifdef HWY_COMPILE_ONLY_STATIC
std::vector<std::int64_t> kernelTargets() {
    return {HWY_STATIC_TARGET};
}

void useKernelTarget(std::int64_t) {}
#else
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
#endif

}  // namespace dabcanvas
#endif
