// SPDX-License-Identifier: MIT
// Strokes in, the shapes they were meant as out.
#pragma once

#include <QString>
#include <QStringList>

namespace dabcanvas::dabpaint {

struct ShapesOptions {
    QStringList inputs;                    // files, or "-" for standard input; none means the same
    QString output = QStringLiteral("-");  // "-" for standard output
    QString outlines;                      // empty for none
};

int runShapes(const ShapesOptions& options);

}  // namespace dabcanvas::dabpaint
