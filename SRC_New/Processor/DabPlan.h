// SPDX-License-Identifier: MIT
// What is worked out of a dab once, before the tiles that it touches are drawn one by one. Plain values; what they point
// at is the tip's.
#pragma once

#include <cstdint>
#include <optional>

#include "Dabs/Dab.h"
#include "Dabs/DabMap.h"
#include "Maths/Rect.h"
#include "Processor/DabKernel.h"
#include "Processor/TipTables.h"

namespace dabcanvas {

struct PlannedDab {
    Dab dab;
    DabMap map;
    Rect touched;  // pixels that may change, on the layer
    TipTables::Pair levels;
    TileDab tile;  // what is the same in every tile
    std::uint64_t number;
    std::optional<Multicolour> multicolour;
};

// Nothing for a dab that cannot be seen or is not finite.
std::optional<PlannedDab> planned(const Dab& dab, const DabStyle& style, TipTables& tip, const Size& layer,
                                  std::uint64_t number);

// The dab as the tile at these pixels has it; without paper.
TileDab inTile(const PlannedDab& dab, int x, int y);

}  // namespace dabcanvas
