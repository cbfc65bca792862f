// SPDX-License-Identifier: MIT
// The brush from run to run: values by the property's name, in the "brush" section.
#pragma once

#include <QSettings>
#include <set>

#include "Brush/BrushModel.h"

namespace dabcanvas::dabpainter {

// Writes the values of these properties. Only what differs from the default is kept, so that a better default reaches
// everyone.
void writeBrush(QSettings& settings, const BrushModel& model, const std::set<BrushKey>& keys);

// Sets what it can read; unknown names and broken values are left out.
void readBrush(QSettings& settings, BrushModel& model);

}  // namespace dabcanvas::dabpainter
