// SPDX-License-Identifier: MIT
/// \file
/// Strokes of any form as a recording, to be played like any other.
#pragma once

#include <QByteArray>
#include <QString>

#include "Maths/Export.h"
#include "Recording/Problem.h"
#include "Recording/Recording.h"
#include "Recording/StrokesFile.h"

namespace dabcanvas {

/// The strokes in the brush of a new canvas, with the settings and brushes that they name, whose paths are relative to
/// `folder`. The canvas is as large as they need and transparent, unless they say otherwise. Strokes without times come
/// a second after one another, their samples a hundredth. The problem when a setting or a brush is no good.
DABCANVAS_RECORDING_API Result<Recording> recordingOf(const RecordedStrokes& strokes, const QString& folder);

/// A canvas's recording, or strokes of any other form that readStrokes() reads.
DABCANVAS_RECORDING_API Result<Recording> readAsRecording(const QByteArray& bytes, const QString& folder);

}  // namespace dabcanvas
