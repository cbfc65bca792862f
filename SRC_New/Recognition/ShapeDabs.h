// SPDX-License-Identifier: MIT
/// \file
/// The dabs of a shape, by the settings of a line.
#pragma once

#include <vector>

#include "LineProcess/LPProperties.h"
#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"
#include "Recognition/ShapeRecord.h"

/// One run of dabs for each time that a pen would be put down, placed as placesOnShape() says. Spacing, size
/// and its jitter are the line's, as drawn slowly, at full pressure and with an upright pen. The tapers at the
/// ends of a stroke are left out: a shape is as wide where its outline closes as anywhere. The dabs' params
/// are (1, 1, 1). Empty where placesOnShape() is, and a run where the settings leave its dabs no size. Uses
/// the line process, so it is not for two threads at a time; its state and the selected record stay as they
/// were.
DABCANVAS_SHAPES_API std::vector<std::vector<LPPoint>> dabsOnShape(const ShapeRecord& shape,
                                                                   const LPLineParams& line);
