// SPDX-License-Identifier: MIT
/// \file
/// Strokes as tables of points: one row a point, with columns sample_id, x and y among others.
#pragma once

#include <QByteArray>
#include <string>
#include <vector>

#include "Maths/Export.h"
#include "Recognition/ShapeRecord.h"
#include "Recording/Problem.h"

namespace dabcanvas {

/// The points of the rows that have one name.
struct NamedStroke {
    std::string id;
    std::vector<ShapePoint> points;  ///< in the order of their rows
};

/// The strokes in the order in which their names first come; the rows of one need not follow each other. The
/// first row names the columns. Linear in the size of the bytes.
DABCANVAS_RECORDING_API Result<std::vector<NamedStroke>> readStrokesCsv(const QByteArray& bytes);

/// Appends text as one field, in quotes where it needs them.
DABCANVAS_RECORDING_API void appendCsvField(std::string& out, std::string_view text);

}  // namespace dabcanvas
