// SPDX-License-Identifier: MIT
// What a dab covers of pixels: its tip's levels, and its box.
// Compiled once for every instruction set: included anew for each.
#if defined(DABCANVAS_PROCESSOR_DABPIXELS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef DABCANVAS_PROCESSOR_DABPIXELS_INL_H_
#undef DABCANVAS_PROCESSOR_DABPIXELS_INL_H_
#else
#define DABCANVAS_PROCESSOR_DABPIXELS_INL_H_
#endif

#include "Processor/DabKernel.h"
#include "Processor/KernelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace dabcanvas {
namespace HWY_NAMESPACE {
namespace {

HWY_INLINE Int place(std::int32_t start, Int perLane, Int last) {
    return hn::Min(hn::Max(hn::Add(hn::Set(kInts, start), perLane), hn::Zero(kInts)), last);
}
// Fractions of 16 bits, of 127.
HWY_INLINE Word of127(Int fractions) {
    return hn::MulFixedPoint15(
        hn::BitCast(kWords, hn::ShiftRight<1>(hn::BitCast(hn::RebindToUnsigned<Words>(), fractions))),
        hn::Set(kWords, 127));
}
// 127 less the fraction of the upper half, and the fraction, side by side, for both columns of a block.
HWY_INLINE Int rowWeights(Int fractions) {
    const Int high = hn::Set(kInts, static_cast<std::int32_t>(0xffff0000u));
    const Int down = hn::Or(hn::And(fractions, high), hn::ShiftRight<16>(fractions));
    return hn::Xor(hn::Or(hn::ShiftLeft<8>(down), down), hn::Set(kInts, 0x007f007f));
}

// One level of the tip.
class LevelPixels {
public:
    HWY_INLINE LevelPixels(const DabLevel& level, std::int32_t u, std::int32_t v, const Order& order)
        : _level(&level),
          _u(u),
          _v(v),
          _lanesU(order.steps(level.rightU, level.downU)),
          _lanesV(order.steps(level.rightV, level.downV)),
          _lastU(hn::Set(kInts, level.lastU())),
          _lastV(hn::Set(kInts, level.lastV())),
          _strides(hn::Set(kInts, 2 | level.stride << 16)),
          _isSmall(level.stride * level.size.height + 2 <= kSmallTable) {}

    // Sixteen bits and a few more, of which the lower eight are not worth keeping.
    HWY_INLINE Int at(int x, int y) const {
        const Int high = hn::Set(kInts, static_cast<std::int32_t>(0xffff0000u));
        const Int u = place(placeAt(_u, _level->rightU, _level->downU, x, y), _lanesU, _lastU);
        const Int v = place(placeAt(_v, _level->rightV, _level->downV, x, y), _lanesV, _lastV);
        const Int texel = hn::Or(hn::ShiftRight<16>(u), hn::And(v, high));
        const Int offsets = pairProducts(texel, _strides);
        const Int block = _isSmall ? blocksInSmall(_level->pairs, offsets) : blocksAt(_level->pairs, offsets);
        const Int both =
            hn::BitCast(kInts, of127(hn::OrAnd(hn::ShiftLeft<16>(v), u, hn::Set(kInts, 0xffff))));
        const Int right = hn::Or(hn::ShiftLeft<16>(both), hn::And(both, hn::Set(kInts, 127)));
        return pairProducts(bytePairProducts(block, rowWeights(both)), hn::Xor(right, hn::Set(kInts, 127)));
    }

private:
    const DabLevel* _level;
    std::int32_t _u, _v;
    Int _lanesU, _lanesV, _lastU, _lastV, _strides;
    bool _isSmall;
};

// What the dab's box covers of each pixel, 0..32767; as DabMap reckons.
class BoxPixels {
public:
    HWY_INLINE explicit BoxPixels(const TileDab& dab) : _dab(&dab), _box(&dab.shape->box) {}

    HWY_INLINE Int at(Int x, Int y) const {
        const DabBox& box = *_box;
        const Float right = hn::ConvertTo(kFloats, x), down = hn::ConvertTo(kFloats, y);
        const auto place = [&](float start, float perRight, float perDown) HWY_ATTR {
            const Float inRow = hn::Add(hn::Set(kFloats, start), hn::Mul(down, hn::Set(kFloats, perDown)));
            return hn::Abs(hn::Add(inRow, hn::Mul(right, hn::Set(kFloats, perRight))));
        };
        const Float along = place(_dab->along, box.alongX, box.alongY);
        const Float across = place(_dab->across, box.acrossX, box.acrossY);
        return nearest(hn::Mul(covered(along, box.halfWidth), covered(across, box.halfHeight)));
    }
    // Both factors of that by themselves, of a dab that stands upright.
    HWY_INLINE Float alongAt(Int x) const {
        return covered(upright(x, _dab->along, _box->alongX), _box->halfWidth);
    }
    HWY_INLINE Float acrossAt(Int y) const {
        return covered(upright(y, _dab->across, _box->acrossY), _box->halfHeight);
    }

private:
    static HWY_INLINE Float upright(Int pixel, float start, float step) {
        const Float steps = hn::Mul(hn::ConvertTo(kFloats, pixel), hn::Set(kFloats, step));
        return hn::Abs(hn::Add(hn::Set(kFloats, start), steps));
    }
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
        const DabBox& box = *_box;
        const Float near = hn::Min(hn::Abs(distance), hn::Set(kFloats, box.foot));
        const Float side = hn::Max(hn::Sub(near, hn::Set(kFloats, box.top)), hn::Zero(kFloats));
        const Float lost = hn::Mul(hn::Mul(side, side), hn::Set(kFloats, box.slope));
        return hn::CopySign(hn::Sub(hn::Mul(near, hn::Set(kFloats, box.height)), lost), distance);
    }

    const TileDab* _dab;
    const DabBox* _box;
};

}  // namespace
}  // namespace HWY_NAMESPACE
}  // namespace dabcanvas
HWY_AFTER_NAMESPACE();
#endif
