// SPDX-License-Identifier: MIT
// Recordings in, a picture out.
#pragma once

#include <QColor>
#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace dabcanvas::dabpaint {

struct PaintOptions {
    struct Assignment {
        QString property;
        QString value;
    };

    QStringList recordings;
    QString output;  // "-" for standard output
    QSize size;      // invalid: as large as the recordings need
    std::vector<Assignment> settings;
    std::optional<QColor> background;
    bool repeatable = false;
    bool stats = false;
};

int runPaint(const PaintOptions& options);

}  // namespace dabcanvas::dabpaint
