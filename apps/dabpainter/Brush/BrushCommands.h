// SPDX-License-Identifier: MIT
// What keys and menus do to the brush in one go.
#pragma once

#include "Brush/BrushModel.h"

namespace dabcanvas::dabpainter {

// By a tenth, +1 up or -1 down; there and back is the same size.
void stepRadius(BrushModel& brush, int direction);
void stepHardness(BrushModel& brush, int direction);
void swapColors(BrushModel& brush);
// Black and white, so that swapping them makes a difference.
void setDefaultColors(BrushModel& brush);

}  // namespace dabcanvas::dabpainter
