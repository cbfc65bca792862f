// SPDX-License-Identifier: MIT
// The strokes that show what a brush does.
#pragma once

#include <QSize>
#include <vector>

#include "Recording/StrokesFile.h"

namespace dabcanvas::dabpaint {

enum class SampleKind {
    wave,        // from left to right, pressure and speed rising and falling
    outline,     // of a leaf, for a brush that fills what is enclosed
    scribble,    // fast, back and forth and in loops
    patch,       // filled line by line, its right third twice
    pressure,    // from none to all
    tilt,        // from upright to flat
    speed,       // from slow to fast
    loop,        // a wave that crosses itself
    zigzag,      // with corners
    shaky,       // level, by a hand that trembles
    ring,        // closed, by such a hand
    threeLines,  // three short ones, one above the other
};

// As many strokes as it takes on a canvas of this size; rows of a patch lie closer than `width`, the brush's. Of
// altitude only the one that is about it knows.
std::vector<std::vector<RecordedSample>> sampleStrokes(SampleKind kind, const QSize& size, double width);

}  // namespace dabcanvas::dabpaint
