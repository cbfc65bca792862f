// SPDX-License-Identifier: MIT
// What is to be painted onto one canvas, read and checked before anything is.
#pragma once

#include <QColor>
#include <QSize>
#include <optional>
#include <vector>

#include "BrushPlan.h"
#include "PaintCommand.h"
#include "Recording/Recording.h"
#include "Recording/StrokesFile.h"

namespace dabcanvas::dabpaint {

struct Job {
    std::optional<Recording>
        recording;     // of a canvas, with all that entered it: no strokes below, no plan but what is fixed
    double scale = 1;  // it is played at

    std::vector<RecordedStrokes> recordings;
    BrushPlan plan;
    QSize size;
    QColor background = Qt::white;
    qint64 strokes = 0;
    qint64 samples = 0;
    std::vector<std::vector<double>> dabs;  // estimated, by recording and stroke
    double allDabs = 0;
};

// Reads what the options name; the job's plan has the command line's brush and settings already. The message when one of
// the files is no good, or too much.
QString prepareJob(const PaintOptions& options, Job& job);

}  // namespace dabcanvas::dabpaint
