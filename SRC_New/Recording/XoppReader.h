// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include "Maths/Export.h"
#include "Recording/StrokesFile.h"

namespace dabcanvas {

/// Reads a page or notebook of Xournal++, once it is unpacked: its strokes, layer by layer. Points of 1/72 inch become
/// 96 pixels an inch. Several pages lie side by side, in rows as wide as there are rows; a page's colour is the
/// background where there is one page.
///
/// Brushes   colour and width, as drawn: without tapers; of a highlighter, half transparent. A width for each point
///           becomes the pressure, 1 being the widest; one that is not above 0, as some files have, is the stroke's
///           own.
/// Left out  texts, images and formulas, and what a page is ruled by.
DABCANVAS_RECORDING_API Result<RecordedStrokes> readXopp(const QByteArray& bytes);

/// What gzip has packed, of at most `most` bytes.
DABCANVAS_RECORDING_API Result<QByteArray> unpackedGzip(const QByteArray& bytes, qint64 most);

}  // namespace dabcanvas
