// SPDX-License-Identifier: MIT
// What is worked out of a dab once, before the tiles that it touches are drawn one by one. Plain values; what they point
// at is the tip's.
#pragma once

#include <cstdint>

#include "Dabs/Dab.h"
#include "Maths/Rect.h"
#include "Processor/DabKernel.h"
#include "Processor/TipTables.h"

namespace dabcanvas {

struct PlannedDab {
    DabShape shape{};  // in one colour
    Rect touched;      // pixels that may change, on the layer
    double x = 0, y = 0;
    double halfAcross = 0, halfDown = 0;  // of the upright rectangle around it
    double perWidth = 0, perHeight = 0;   // of the box
    std::uint64_t number = 0;
};

// First all but where it lies, then that. False for a dab that cannot be seen or is not finite: nothing is planned.
bool shapeDab(const Dab& dab, TipTables& tip, PlannedDab& plan);
bool placeDab(const Dab& dab, const Size& layer, std::uint64_t number, PlannedDab& plan);

// They differ in nothing but where they lie.
bool haveOneShape(const Dab& one, const Dab& other);

// The dab in the tile of these pixels.
TileDab inTile(const PlannedDab& dab, const Rect& tile);

}  // namespace dabcanvas
