// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include "Maths/Export.h"
#include "Recording/StrokesFile.h"

namespace dabcanvas {

/// Reads rows of "seconds x y pressure [altitude]", blanks between the numbers; every row has as many as the
/// first. Pressure 0 is a pen in the air: rows with the pen down that follow each other are one stroke.
/// Pressure and altitude are 0..1, or -1 for a device that gives none. Blank lines and what follows a # are
/// left out.
DABCANVAS_RECORDING_API Result<RecordedStrokes> readRows(const QByteArray& bytes);

}  // namespace dabcanvas
