// SPDX-License-Identifier: MIT
/// \file
/// Where the dabs of a shape lie, so that it looks drawn by one steady hand.
#pragma once

#include <vector>

#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"
#include "Recognition/ShapeRecord.h"

/// The places of a shape's dabs, one list for each time that a pen would be put down: an arrow takes two, its
/// shaft and its head. They are about `spacing` apart, which is stretched or shrunk a little so that every
/// corner and both ends of an open outline have a dab of their own and a closed one shows no seam. Empty for
/// none, for a record that lacks corners or half axes, for numbers that are not finite, for outlines that are
/// longer than kMostShapePoints, and for a spacing that is not above 0.
DABCANVAS_SHAPES_API std::vector<std::vector<LPPosition>> placesOnShape(const ShapeRecord& shape,
                                                                        double spacing);
