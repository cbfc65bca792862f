// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include "Maths/Export.h"
#include "Recording/StrokesFile.h"

namespace dabcanvas {

/// Reads the outlines of an SVG drawing as strokes: path, line, polyline, polygon, rect, circle and ellipse, curves as
/// points close enough that no one sees it, pressure 1 all along. A path of several parts is a stroke each.
///
/// Places    by the transforms and the view box, width and height in pixels, in/cm/mm/pt and the like at 96 pixels an
///           inch.
/// Brushes   colour and width of the stroke, else the fill's colour. From attributes and style="...", of groups too;
///           style sheets are not read.
/// Left out  what stands in defs, symbol, clipPath, mask, marker and pattern, what is not displayed, use, text and
///           images.
DABCANVAS_RECORDING_API Result<RecordedStrokes> readSvg(const QByteArray& bytes);

}  // namespace dabcanvas
