// SPDX-License-Identifier: MIT
// The brush from run to run: values by the property's name, in the "brush" section.
#pragma once

#include <QSettings>

#include "BrushModel.h"

namespace dabcanvas::dabpainter {

// Only what differs from the default is written, so that a better default reaches everyone.
void writeBrush(QSettings& settings, const BrushModel& model);

// Sets what it can read; unknown names and broken values are left out.
void readBrush(QSettings& settings, BrushModel& model);

}  // namespace dabcanvas::dabpainter
