// SPDX-License-Identifier: MIT
// GIMP's brushes and pictures as a brush's tips and paper; see BrushImport.h.
#pragma once

#include "Import/BrushImport.h"

namespace dabcanvas {

std::optional<ImportedBrush> tipsFrom(const QByteArray& file, QString& problem);
std::optional<ImportedBrush> paperFrom(const QByteArray& file, QString& problem);

}  // namespace dabcanvas
