// SPDX-License-Identifier: MIT
// A canvas as the tool's commands use it: headless, with failures told in one line.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <memory>

#include "Canvas/QDDrawCanvas.h"
#include "Recording/Problem.h"
#include "Recording/StrokesFile.h"

namespace dabcanvas::dabpaint {

// An empty canvas of this many pixels with the default brush.
Result<std::unique_ptr<QDDrawCanvas>> makeCanvas(const QSize& size, const SurfaceOptions& surface = {});

// Paints one stroke; `advance` is called after every sample.
template <typename Advance>
void paintSamples(QDDrawCanvas& canvas, const std::vector<RecordedSample>& samples, const Advance& advance) {
    // Nobody watches the canvas, so nothing is shown on the way ("online" is off).
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const RecordedSample& sample = samples[i];
        const QPointF point(sample.x, sample.y);
        if (i == 0)
            canvas.drawingWithBeginPoint(point, sample.pressure, sample.altitude, false);
        else if (i + 1 < samples.size())
            canvas.drawingWithMoveToPoint(point, sample.pressure, sample.altitude, false);
        if (i + 1 == samples.size())
            canvas.drawingWithEndPoint(point, sample.pressure, sample.altitude, false);
        advance();
    }
}

}  // namespace dabcanvas::dabpaint
