// SPDX-License-Identifier: MIT
// The pixels of a dab's rows, worked out for as many rows at once as there are lanes.
// Compiled once for every instruction set: included anew for each.
#if defined(DABCANVAS_PROCESSOR_DABSPANS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef DABCANVAS_PROCESSOR_DABSPANS_INL_H_
#undef DABCANVAS_PROCESSOR_DABSPANS_INL_H_
#else
#define DABCANVAS_PROCESSOR_DABSPANS_INL_H_
#endif

#include <algorithm>
#include <cmath>

#include "Processor/DabKernel.h"
#include "Processor/KernelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace dabcanvas {
namespace HWY_NAMESPACE {
namespace {

// Pixels of each row of a tile that the dab may touch, and those among them that its box covers whole; a little more than
// there is, and a little less. 64, 0, 0, 64 for a row that it does not touch.
struct RowSpans {
    static constexpr std::size_t kMost = kTileSide + 16;  // as whole vectors are stored
    HWY_ALIGN std::uint8_t first[kMost], end[kMost], innerFirst[kMost], innerEnd[kMost];
    bool areAlike;  // of all rows but those not touched
};

// All columns that an upright dab touches, in each of its rows. There is no inside.
HWY_INLINE void fillSpans(const TileDab& dab, int width, RowSpans& spans) {
    const DabBox& box = dab.shape->box;
    const float middle = -dab.along * box.alongX, half = box.halfWidth + box.foot + 1;
    const auto column = [width](float place) {
        return static_cast<std::uint8_t>(std::clamp(place, 0.0f, static_cast<float>(width)));
    };
    const hn::CappedTag<std::uint8_t, 16> bytes;
    const auto first = hn::Set(bytes, column(middle - half)), end = hn::Set(bytes, column(middle + half));
    for (int y = dab.firstRow / 2 * 2; y < dab.endRow; y += static_cast<int>(hn::Lanes(bytes))) {
        hn::StoreU(first, bytes, spans.first + y);
        hn::StoreU(end, bytes, spans.end + y);
    }
    spans.areAlike = true;
}

class SpanMaker {
public:
    HWY_INLINE SpanMaker(const TileDab& dab, int width)
        : _dab(&dab),
          _box(&dab.shape->box),
          _width(hn::Set(kFloats, static_cast<float>(width))),
          _rightmost(hn::Set(kInts, kTileSide)) {}

    // Of all rows that the dab may touch, from an even one on.
    HWY_INLINE void make(RowSpans& spans) const {
        for (int y = _dab->firstRow / 2 * 2; y < _dab->endRow; y += lanes()) {
            makeRows(y, spans);
        }
        spans.areAlike = false;
    }

private:
    static constexpr float kSlack = 1e-3f;  // pixels, for what rounding does

    HWY_INLINE void makeRows(int y, RowSpans& spans) const {
        const DabBox& box = *_box;
        const Int row = hn::Add(hn::Iota(kInts, 0), hn::Set(kInts, y));
        const Float down = hn::ConvertTo(kFloats, row);
        const auto atRow = [&](float start, float perRow) HWY_ATTR {
            return hn::Add(hn::Set(kFloats, start), hn::Mul(down, hn::Set(kFloats, perRow)));
        };
        const Float along = atRow(_dab->along, box.alongY), across = atRow(_dab->across, box.acrossY);
        Interval whole = strip(box.alongX, along, box.halfWidth + box.foot + kSlack);
        whole.cut(strip(box.acrossX, across, box.halfHeight + box.foot + kSlack));
        if (box.reachSquared < 2) {
            whole.cut(round(along, across));
        }
        Interval inner = strip(box.alongX, along, box.halfWidth - box.foot - kSlack);
        inner.cut(strip(box.acrossX, across, box.halfHeight - box.foot - kSlack));
        const Int first = pixel(whole.from), end = pixel(whole.to);
        const auto isRow = hn::And(hn::Lt(hn::Set(kInts, _dab->firstRow - 1), row),
                                   hn::Lt(row, hn::Set(kInts, _dab->endRow)));
        const auto isDrawn = hn::And(hn::Lt(first, end), isRow);
        const auto at = static_cast<std::size_t>(y);
        store(hn::IfThenElse(isDrawn, first, _rightmost), spans.first + at);
        store(hn::IfThenElseZero(isDrawn, end), spans.end + at);
        store(hn::IfThenElseZero(isDrawn, pixel(inner.from)), spans.innerFirst + at);
        store(hn::IfThenElse(isDrawn, pixel(inner.to), _rightmost), spans.innerEnd + at);
    }
    static HWY_INLINE void store(Int values, std::uint8_t* to) {
        const hn::Rebind<std::uint8_t, Ints> bytes;
        hn::StoreU(hn::DemoteTo(bytes, values), bytes, to);
    }

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
        const DabBox& box = *_box;
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

    const TileDab* _dab;
    const DabBox* _box;
    Float _width;
    Int _rightmost;
};

}  // namespace
}  // namespace HWY_NAMESPACE
}  // namespace dabcanvas
HWY_AFTER_NAMESPACE();
#endif
