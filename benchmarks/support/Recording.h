// SPDX-License-Identifier: MIT
// The pen session that strokes are replayed from.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace dabcanvas::bench {

struct Sample {
    float x, y;       // pixels, within about 1000 x 800
    float pressure;   // 0..1
    double interval;  // seconds since the sample before
};

// The samples from where the pen comes down to where it leaves the surface.
using Stroke = std::vector<Sample>;

struct Recording {
    std::string label;  // which file it is, and why if it is not the usual one
    std::vector<Stroke> strokes;
    std::size_t samples = 0;
};

// A real pen session of 30 seconds where the shared data stand beside the checkout, else the sample that
// comes with the project. Read once; ends the program with one message when neither can be read.
const Recording& penSession();

}  // namespace dabcanvas::bench
