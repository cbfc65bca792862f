// SPDX-License-Identifier: MIT
// Pictures of what a brush does.
#pragma once

#include <QImage>
#include <QSize>
#include <vector>

#include "BrushFile.h"
#include "BrushPlan.h"

namespace dabcanvas::dabpaint {

// A stroke whose pressure and speed rise and fall, on white; a brush that changes what is there gets coloured stripes
// to work on, and the live preview brush an area to enclose. The same brush gives the same pixels. A brush larger than
// there is room for is made smaller.
Result<QImage> brushSample(const Brush& brush, const std::vector<BrushPlan::Step>& settings,
                           const QSize& size);

struct NamedSample {
    QString name;
    QImage image;
};

// Samples of one size in rows, each with its name below.
QImage sampleSheet(const std::vector<NamedSample>& samples);

}  // namespace dabcanvas::dabpaint
