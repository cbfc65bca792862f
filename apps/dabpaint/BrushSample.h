// SPDX-License-Identifier: MIT
// Pictures of what a brush does.
#pragma once

#include <QImage>
#include <QSize>
#include <vector>

#include "BrushFile.h"
#include "BrushPlan.h"
#include "SampleStrokes.h"

namespace dabcanvas::dabpaint {

enum class SampleGround {
    asNeeded,  // white; coloured stripes for a brush that changes what is there or shades it
    plain,     // white also for one that shades
    bands,     // of strong colours, dark to light
};

struct BrushView {
    SampleKind kind = SampleKind::wave;  // of which the live preview brush gets an outline
    SampleGround ground = SampleGround::asNeeded;
    double largest = 0.6;  // a larger brush is made smaller; in heights of the picture
};

// The same brush gives the same pixels.
Result<QImage> brushSample(const Brush& brush, const std::vector<BrushPlan::Step>& settings,
                           const QSize& size, const BrushView& view = {});

}  // namespace dabcanvas::dabpaint
