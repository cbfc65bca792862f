// SPDX-License-Identifier: MIT
// The surfaces that there are: each test of one is a test of all.
#pragma once

#include <memory>

#include "Processor/MakeProcessorSurface.h"
#include "support/Named.h"

#ifdef DABCANVAS_WITH_RENDER
#include <QSizeF>

#include "GLSurface/MakeGLSurface.h"
#endif

struct Kind : Named {
    bool onGpu;
    int canvasDepth;
    double closeness;  // of a dab in the layer to the reference, 1/255

    std::unique_ptr<dabcanvas::PaintSurface> make(const dabcanvas::Size& size, int layerDepth = 16) const {
        const dabcanvas::SurfaceOptions options{.canvasDepth = canvasDepth, .layerDepth = layerDepth};
#ifdef DABCANVAS_WITH_RENDER
        if (onGpu) {
            return dabcanvas::makeGLSurface(QSizeF(size.width, size.height), options);
        }
#endif
        return dabcanvas::makeProcessorSurface(size, options);
    }
};

inline const Kind kKinds[] = {
#ifdef DABCANVAS_WITH_RENDER
    {{"Gpu"}, true, 8, 0.05},
    {{"GpuOf16Bits"}, true, 16, 0.05},
#endif
    {{"Processor"}, false, 8, 2},
    {{"ProcessorOf16Bits"}, false, 16, 2},
};
