// SPDX-License-Identifier: MIT
/// \file
/// The tool's own recordings, and the input of the dabs command, which share their list of strokes.
#pragma once

#include <QByteArray>
#include <cstdint>
#include <optional>

#include "Maths/Export.h"
#include "Recording/StrokesFile.h"

namespace dabcanvas {

/// Strokes by sample, and the brush and the canvas that they are for:
///     {"canvas": {"width": W, "height": H, "background": "#rrggbbaa"},
///      "brush": "pencil.xbf",
///      "strokes": [{"brush": "ink.xbf", "set": {property: value, ...},
///                   "samples": [[x, y, pressure, altitude], ...]}, ...]}
/// Everything but "strokes" and "samples" may be left out, pressure and altitude too. Pressure and altitude
/// are 0..1 or -1. Members that are not known, and members given twice, are refused.
DABCANVAS_RECORDING_API Result<RecordedStrokes> readStrokesJson(const QByteArray& bytes);

/// Strokes whose dabs are asked for.
struct DabsInput {
    std::optional<std::uint32_t> seed;
    std::vector<RecordedStroke> strokes;
};

/// Strokes by sample, and a seed:
///     {"srand": N, "strokes": [{"set": {...}, "samples": [...], "end": true}, ...]}
/// Samples may be any numbers that a float holds; a missing pressure is -1, a missing altitude 0.
DABCANVAS_RECORDING_API Result<DabsInput> readDabsInput(const QByteArray& bytes);

}  // namespace dabcanvas
