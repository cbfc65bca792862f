// SPDX-License-Identifier: MIT
// About how many dabs a recording will take, told before any is drawn: a few bytes can ask for hours of work.
#pragma once

#include <vector>

#include "BrushPlan.h"
#include "Recording/StrokesFile.h"

namespace dabcanvas::dabpaint {

// By stroke: the length of the path over the mean distance of dabs, times the dabs at each place, of both lines.
// Pressure and jitter are left out of it, so that the true number may be a few times smaller or larger.
std::vector<double> estimatedDabs(const RecordedStrokes& recording, const BrushPlan& plan, std::size_t index);

}  // namespace dabcanvas::dabpaint
