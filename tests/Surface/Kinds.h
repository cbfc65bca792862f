// SPDX-License-Identifier: MIT
// The surfaces that there are: each test of one is a test of all.
#pragma once

#include <QSizeF>
#include <memory>

#include "GLSurface/MakeGLSurface.h"
#include "Processor/MakeProcessorSurface.h"
#include "support/Named.h"

struct Kind : Named {
    bool onGpu;
    int canvasDepth;
    double closeness;  // of a dab in the layer to the reference, 1/255

    std::unique_ptr<dabcanvas::PaintSurface> make(const dabcanvas::Size& size, int layerDepth = 16) const {
        const dabcanvas::SurfaceOptions options{.canvasDepth = canvasDepth, .layerDepth = layerDepth};
        return onGpu ? dabcanvas::makeGLSurface(QSizeF(size.width, size.height), options)
                     : dabcanvas::makeProcessorSurface(size, options);
    }
};

inline const Kind kKinds[] = {
    {{"Gpu"}, true, 8, 0.05},
    {{"GpuOf16Bits"}, true, 16, 0.05},
    {{"Processor"}, false, 8, 2},
    {{"ProcessorOf16Bits"}, false, 16, 2},
};
