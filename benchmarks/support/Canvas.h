// SPDX-License-Identifier: MIT
// A canvas to paint on, for the benchmarks that need a whole one.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "Canvas/QDDrawCanvas.h"

namespace dabcanvas::bench {

// White, with a blue to paint in. Ends the program where there is no GL.
inline std::unique_ptr<QDDrawCanvas> makeCanvas(int width, int height) {
    auto canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, width, height));
    if (!canvas) {
        std::fprintf(stderr, "a canvas cannot be made\n");
        std::exit(1);
    }
    canvas->clearWithColor(ESColor::grey(1), false);
    canvas->setRenderColor(ESColor::rgba(0.1f, 0.3f, 0.7f));
    return canvas;
}

}  // namespace dabcanvas::bench
