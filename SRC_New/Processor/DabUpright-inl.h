// SPDX-License-Identifier: MIT
// What dabs cover that stand upright: rows of pixels lie along rows of texels, so that what is of a column of pixels or of a
// row is worked out once. The bytes are those of all dabs.
// Compiled once for every instruction set: included anew for each.
#if defined(DABCANVAS_PROCESSOR_DABUPRIGHT_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef DABCANVAS_PROCESSOR_DABUPRIGHT_INL_H_
#undef DABCANVAS_PROCESSOR_DABUPRIGHT_INL_H_
#else
#define DABCANVAS_PROCESSOR_DABUPRIGHT_INL_H_
#endif

#include <algorithm>

#include "Processor/DabKernel.h"
#include "Processor/DabPixels-inl.h"
#include "Processor/KernelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace dabcanvas {
namespace HWY_NAMESPACE {
namespace {

// Rows of a tile, and what whole vectors of them reach.
constexpr std::size_t kMostRows = kTileSide + hn::MaxLanes(kInts);

// Rows of pixels in one level of the tip: where each reads, and its rows' weights, see rowWeights().
class TexelRows {
public:
    HWY_INLINE TexelRows() {}  // by itself, compilers would make one without the vectors' instructions

    // From an even row on.
    HWY_INLINE void find(const DabLevel& level, std::int32_t v, int firstRow, int endRow) {
        _pairs = level.pairs;
        for (int y = firstRow; y < endRow; y += lanes()) {
            const Int row = hn::Mul(hn::Iota(kInts, 0), hn::Set(kInts, level.downV));
            const Int texel = place(placeAt(v, 0, level.downV, 0, y), row, hn::Set(kInts, level.lastV()));
            const Int part = hn::BitCast(kInts, of127(hn::And(texel, hn::Set(kInts, 0xffff))));
            const Int weight = hn::Or(hn::ShiftLeft<8>(part), hn::Xor(part, hn::Set(kInts, 127)));
            hn::StoreU(hn::Or(hn::ShiftLeft<16>(weight), weight), kInts, _weights + y);
            hn::StoreU(hn::Mul(hn::ShiftRight<16>(texel), hn::Set(kInts, level.stride)), kInts, _offsets + y);
        }
    }
    HWY_INLINE const std::uint8_t* at(int y) const { return _pairs + _offsets[y]; }
    // Of a row and the next one.
    HWY_INLINE Int weights(int y) const { return perRow(_weights + y); }

private:
    const std::uint8_t* _pairs;
    HWY_ALIGN std::int32_t _offsets[kMostRows], _weights[kMostRows];
};

// As many columns of pixels as two rows have in a vector, in one level of the tip.
class TexelColumns {
public:
    HWY_INLINE TexelColumns(const DabLevel& level, std::int32_t u, int x, const Order& order) {
        const std::int32_t start = placeAt(u, level.rightU, 0, x, 0);
        const Int places = place(start, order.steps(level.rightU, 0), hn::Set(kInts, level.lastU()));
        const std::int32_t leftmost =
            level.rightU < 0 ? placeAt(u, level.rightU, 0, x + across() - 1, 0) : start;
        const int first = std::clamp(leftmost, 0, level.lastU()) >> 16;
        _first = 2 * static_cast<std::ptrdiff_t>(first);
        _blocks = blocksAhead(hn::Sub(hn::ShiftRight<16>(places), hn::Set(kInts, first)), order.down);
        const Int part = hn::BitCast(kInts, of127(hn::And(places, hn::Set(kInts, 0xffff))));
        _weights = hn::Xor(hn::Or(hn::ShiftLeft<16>(part), part), hn::Set(kInts, 127));
    }

    // Sixteen bits and a few more, of which the lower eight are not worth keeping.
    HWY_INLINE Int at(const TexelRows& rows, int y) const {
        const Int blocks = blocksOf(rows.at(y) + _first, rows.at(y + 1) + _first, _blocks);
        return pairProducts(bytePairProducts(blocks, rows.weights(y)), _weights);
    }

private:
    std::ptrdiff_t _first;
    Int _blocks, _weights;
};

// Its rows, and what its box covers.
template <int kLevels>
class UprightBox {
public:
    HWY_INLINE UprightBox(const TileDab& dab, int width) : _width(width), _box(dab) {
        const int from = dab.firstRow / 2 * 2;
        for (int y = from; y < dab.endRow; y += lanes()) {
            const Int row = hn::Add(hn::Iota(kInts, 0), hn::Set(kInts, y));
            const auto isRow = hn::And(hn::Lt(hn::Set(kInts, dab.firstRow - 1), row),
                                       hn::Lt(row, hn::Set(kInts, dab.endRow)));
            hn::StoreU(hn::IfThenElseZero(hn::RebindMask(kFloats, isRow), _box.acrossAt(row)), kFloats,
                       _covered + y);
        }
        for (std::size_t i = 0; i < kLevels; ++i) {
            _rows[i].find(dab.shape->levels[i], dab.v[i], from, dab.endRow);
        }
    }

    HWY_INLINE const TexelRows& level(std::size_t i) const { return _rows[i]; }
    // What it covers of a row and the next one.
    HWY_INLINE Float covered(int y) const { return perRow(_covered + y); }
    // What the box covers of columns, 0 of those before `from` and beyond the tile.
    HWY_INLINE Float covered(Int columns, int from) const {
        const auto isColumn =
            hn::And(hn::Lt(hn::Set(kInts, from - 1), columns), hn::Lt(columns, hn::Set(kInts, _width)));
        return hn::IfThenElseZero(hn::RebindMask(kFloats, isColumn), _box.alongAt(columns));
    }

private:
    int _width;
    BoxPixels _box;
    HWY_ALIGN float _covered[kMostRows];
    TexelRows _rows[kLevels];
};

}  // namespace
}  // namespace HWY_NAMESPACE
}  // namespace dabcanvas
HWY_AFTER_NAMESPACE();
#endif
