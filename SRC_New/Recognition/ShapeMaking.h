// SPDX-License-Identifier: MIT
// Makes the tidy shape of a stroke whose kind is known.
#pragma once

#include "Recognition/ShapeFeatures.h"
#include "Recognition/ShapeRecord.h"

namespace dabcanvas {

// The shape in the caller's units, without its confidence; kind none where the stroke does not fit the kind after all.
//   legs   of a fold line: how many; from kManyLegs up the stroke itself tells.
ShapeRecord makeShape(ShapeKind kind, int legs, const StrokePath& stroke, const ShapeFits& fits);

inline constexpr int kManyLegs = 5;

}  // namespace dabcanvas
