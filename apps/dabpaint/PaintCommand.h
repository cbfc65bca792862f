// SPDX-License-Identifier: MIT
// Recordings in, a picture out.
#pragma once

#include <QColor>
#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "Assignment.h"
#include "Surface/SurfaceOptions.h"

namespace dabcanvas::dabpaint {

// Some minutes of painting by software.
inline constexpr qint64 kMostDabs = 50'000'000;

struct PaintOptions {
    QStringList recordings;
    QString output;  // "-" for standard output
    QSize size;      // invalid: as large as the recordings need
    QString brush;   // an XBF file; empty for the default brush
    std::vector<Assignment> settings;
    std::optional<QColor> background;
    qint64 mostDabs = kMostDabs;
    int undo = 0;            // strokes taken back at the end
    bool recognise = false;  // strokes are meant as shapes
    bool repeatable = false;
    bool stats = false;
    SurfaceOptions surface;
};

int runPaint(const PaintOptions& options);

}  // namespace dabcanvas::dabpaint
