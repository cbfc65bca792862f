// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include "Maths/Export.h"
#include "Recording/StrokesFile.h"

namespace dabcanvas {

/// Reads InkML, the W3C's ink markup, as drawing programs write it.
///
/// Strokes   every <trace> outside <definitions> whose type is not penUp, in the order of the file; the parts
///           of a continued trace are one stroke.
/// Formats   of the trace's, its groups' or the current context, directly, by reference or through its ink
///           source; X and Y as decimals when none is declared.
/// Places    in/cm/mm/pt and the like at 96 pixels an inch, after division by the declared resolution; any
///           other unit and none as pixels. A channel with orientation -ve counts the other way. A drawing that
///           does not lie on a canvas of 4096 pixels (16384 when its units are lengths) is moved to 32 pixels
///           from the top and the left, and when it is longer than that, made smaller so that it fits 1024
///           pixels with 32 pixels around.
/// Pressure  F within its declared range as 0..1; without one as it is while no value exceeds 1, else divided
///           by the largest value of the file.
/// Altitude  the angle between pen and upright, 90 degrees being 1: from OE (elevation above the surface) or
///           else OTx and OTy (tilts from upright). Degrees unless the unit is rad or the range at most that of
///           radians; without a unit a range beyond 90 has its end at 90 degrees.
/// Brushes   colour and width (as radius, kept within what a brush may have), when the trace has a brush.
///
/// Where a pressure or tilt is unknown the nearest earlier one of the stroke holds, before the first known the
/// first. Samples of unknown position are left out. Mappings, canvas transforms and trace views are not applied.
DABCANVAS_RECORDING_API Result<RecordedStrokes> readInkml(const QByteArray& bytes);

}  // namespace dabcanvas
