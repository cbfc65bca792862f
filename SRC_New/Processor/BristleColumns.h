// SPDX-License-Identifier: MIT
// What the bristles of a smudge brush hold, from dab to dab of a stroke. See Dabs/Bristles.h.
//
// Same     single precision, each operation by itself: the same whatever the processor has.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "Dabs/SmudgeDabs.h"
#include "Processor/SmudgeRows.h"
#include "Processor/Tiles.h"

namespace dabcanvas {

class BristleColumns {
public:
    using Layer = TileGrid<std::uint16_t>;

    // Before the dab is drawn, takes up what lay in the layer before the stroke. The dab is in texels.
    void takeUp(const BristleDab& bristles, const Dab& inLayer, const Layer& before);
    // The texels that takeUp() reads.
    static Rect reach(const BristleDab& bristles, const Dab& inLayer, const Size& layer);

    // What they hold, side by side for as far beyond the outermost ones as the dab goes, seen from the texels of a part. Valid
    // until they next take up; on any thread.
    CarriedColours carried(const Rect& part) const;

private:
    using Colour = std::array<float, 4>;

    void layOut(const BristleDab& bristles, const Dab& inLayer, float across);

    // The outermost ones go on beyond the others.
    static constexpr int kBeyond = kMostBristles / 2 + 4, kMost = kMostBristles + 2 * kBeyond;
    std::array<Colour, kMostBristles> _held{};
    std::array<std::int16_t, kMost * 4 + kSpareValues> _words{};
    int _laidOut = 0;
    // Among those laid out: that of the layer's corner, and of steps of one texel.
    double _corner = 0, _right = 0, _down = 0;
};

}  // namespace dabcanvas
