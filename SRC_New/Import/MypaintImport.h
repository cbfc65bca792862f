// SPDX-License-Identifier: MIT
#pragma once

#include "Import/BrushImport.h"
#include "Import/MypaintBrush.h"

namespace dabcanvas {

// The brush that paints most alike: values and influences are fitted to what MyPaint's curves come to, over pressure,
// speed and tilt.
ImportedBrush importedFrom(const MypaintBrush& brush);

// In words, what of a brush is not even looked at.
QStringList lossesOf(const MypaintBrush& brush);

}  // namespace dabcanvas
