// SPDX-License-Identifier: MIT
// A job painted, and the pictures on the way.
#pragma once

#include <QImage>
#include <QString>

#include "Canvas/StageClock.h"
#include "Frames.h"
#include "PaintJob.h"

namespace dabcanvas::dabpaint {

struct Painting {
    QImage image;
    StrokeStats stats;
    QString renderer;
};

// The message when it could not be done.
QString paintStrokes(const PaintOptions& options, const Job& job, Frames& frames, Painting& painting);
QString paintRecording(const PaintOptions& options, const Job& job, Frames& frames, Painting& painting);

}  // namespace dabcanvas::dabpaint
