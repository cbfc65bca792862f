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

// Two rows of pixels in one level of the tip.
struct TexelRows {
    const std::uint8_t *upper, *lower;
    std::int32_t weights[2];  // of the upper and the lower row, see rowWeights()
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
    HWY_INLINE Int at(const TexelRows& rows) const {
        const Int blocks = blocksOf(rows.upper + _first, rows.lower + _first, _blocks);
        return pairProducts(bytePairProducts(blocks, perRow(rows.weights)), _weights);
    }

private:
    std::ptrdiff_t _first;
    Int _blocks, _weights;
};

// Two rows of a dab in a tile.
struct UprightRows {
    TexelRows levels[2];
    float covered[2];  // by the box
};

// Its rows, and what its box covers.
class UprightBox {
public:
    HWY_INLINE UprightBox(const TileDab& dab, int width) : _width(width), _box(dab) {
        const DabShape& shape = *dab.shape;
        HWY_ALIGN float covered[kTileSide + hn::MaxLanes(kInts)];
        for (int y = dab.firstRow / 2 * 2; y < dab.endRow; y += lanes()) {
            const Int row = hn::Add(hn::Iota(kInts, 0), hn::Set(kInts, y));
            const auto isRow = hn::And(hn::Lt(hn::Set(kInts, dab.firstRow - 1), row),
                                       hn::Lt(row, hn::Set(kInts, dab.endRow)));
            hn::StoreU(hn::IfThenElseZero(hn::RebindMask(kFloats, isRow), _box.acrossAt(row)), kFloats,
                       covered + y);
        }
        for (int y = dab.firstRow / 2 * 2; y < dab.endRow; y += 2) {
            UprightRows& rows = _rows[y / 2];
            for (int level = 0; level < shape.levelCount; ++level) {
                rows.levels[level] = texelRows(shape.levels[static_cast<std::size_t>(level)],
                                               dab.v[static_cast<std::size_t>(level)], y);
            }
            rows.covered[0] = covered[y];
            rows.covered[1] = covered[y + 1];
        }
    }

    const UprightRows& rows(int y) const { return _rows[y / 2]; }
    // What the box covers of columns, 0 of those before `from` and beyond the tile.
    HWY_INLINE Float covered(Int columns, int from) const {
        const auto isColumn =
            hn::And(hn::Lt(hn::Set(kInts, from - 1), columns), hn::Lt(columns, hn::Set(kInts, _width)));
        return hn::IfThenElseZero(hn::RebindMask(kFloats, isColumn), _box.alongAt(columns));
    }

private:
    static TexelRows texelRows(const DabLevel& level, std::int32_t v, int y) {
        TexelRows rows;
        const auto row = [&](int at, std::int32_t& weights) {
            const std::int32_t texel = std::clamp(placeAt(v, 0, level.downV, 0, at), 0, level.lastV());
            const std::int32_t part = (((texel & 0xffff) >> 1) * 127 + 0x4000) >> 15;
            weights = (part << 8 | (part ^ 127)) * 0x10001;
            return level.pairs + static_cast<std::ptrdiff_t>(texel >> 16) * level.stride;
        };
        rows.upper = row(y, rows.weights[0]);
        rows.lower = row(y + 1, rows.weights[1]);
        return rows;
    }

    int _width;
    BoxPixels _box;
    UprightRows _rows[kTileSide / 2];
};

}  // namespace
}  // namespace HWY_NAMESPACE
}  // namespace dabcanvas
HWY_AFTER_NAMESPACE();
#endif
