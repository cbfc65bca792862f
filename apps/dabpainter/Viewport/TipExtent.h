// SPDX-License-Identifier: MIT
#pragma once

#include "Brush/BrushModel.h"

namespace dabcanvas::dabpainter {

// How wide the mark of this brush's tip is seen to be, as a part of the dabs' size: a soft rim is nothing that one sees. By
// a stroke, as dabs over one another make the rim stronger; it takes a millisecond or two. 0..1.
double tipExtent(const BrushModel& model);
// Whether that depends on it.
bool isOfTipExtent(BrushKey key);

}  // namespace dabcanvas::dabpainter
