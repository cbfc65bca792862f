// SPDX-License-Identifier: MIT
// Recordings in, a picture out.
#pragma once

#include <QColor>
#include <QSize>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <vector>

#include "Assignment.h"
#include "Surface/SurfaceOptions.h"

namespace dabcanvas::dabpaint {

// Some minutes of painting by software.
inline constexpr qint64 kMostDabs = 50'000'000;

struct PaintOptions {
    QStringList recordings;
    QString output;  // "-" for standard output; may be a pattern, see OutputPattern.h
    QSize size;      // invalid: as large as the recordings need
    QString brush;   // an XBF file; empty for the default brush
    std::vector<Assignment> settings;
    std::optional<QColor> background;
    qint64 mostDabs = kMostDabs;
    int undo = 0;            // strokes taken back at the end
    bool recognise = false;  // strokes are meant as shapes
    bool repeatable = false;
    bool stats = false;
    std::optional<std::uint32_t> seed;
    int every = 0;      // strokes from one picture on the way to the next; 0: none
    QString timelapse;  // an animated WebP, or a folder of frames; empty: none
    int jobs = 0;       // processes at once; 0: this one alone
    SurfaceOptions surface;
};

// The message when the options do not go together.
QString paintRefusal(const PaintOptions& options);
// One for each picture.
std::vector<PaintOptions> paintedApart(const PaintOptions& options);

int runPaint(const PaintOptions& options);

}  // namespace dabcanvas::dabpaint
