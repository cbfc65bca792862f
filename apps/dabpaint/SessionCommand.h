// SPDX-License-Identifier: MIT
// A canvas for programs that paint: a line in, a line out.
#pragma once

#include <QColor>
#include <QSize>
#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

#include "Assignment.h"
#include "Surface/SurfaceOptions.h"

namespace dabcanvas::dabpaint {

struct SessionOptions {
    QSize size{800, 600};
    QString brush;  // an XBF file; empty for the default brush
    std::vector<Assignment> settings;
    std::optional<QColor> background;
    std::optional<std::uint32_t> seed;
    QString record;  // where what enters the canvas is written; empty for nowhere
    SurfaceOptions surface;
};

int runSession(const SessionOptions& options);

}  // namespace dabcanvas::dabpaint
