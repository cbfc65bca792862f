// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include "Maths/Export.h"
#include "Recording/StrokesFile.h"

namespace dabcanvas {

/// Reads strokes as comma-separated values, a row a point. The first row names the columns, in any order and either
/// case: x and y, and where they are there t (or time, timestamp, seconds), pressure (p, force), altitude (tilt), and
/// stroke (stroke_id, sample_id, id), by which rows belong together, in the order in which the names first come. Other
/// columns are left out. Without names a row is x,y or x,y,pressure or seconds,x,y,pressure[,altitude].
///
/// Pressure 0 is a pen in the air, which parts strokes where no column does. Pressure and altitude are 0..1, -1 or
/// empty for a device that gives none.
DABCANVAS_RECORDING_API Result<RecordedStrokes> readTable(const QByteArray& bytes);

/// Whether the first row is that of such a table.
DABCANVAS_RECORDING_API bool isTable(const QByteArray& bytes);

}  // namespace dabcanvas
