// SPDX-License-Identifier: MIT
// The surfaces that there are: each test of one is a test of all.
#pragma once

#include <QSizeF>
#include <memory>

#include "GLSurface/MakeGLSurface.h"
#include "Processor/MakeProcessorSurface.h"
#include "support/Named.h"

struct Kind : Named {
    std::unique_ptr<dabcanvas::PaintSurface> (*make)(const dabcanvas::Size&);
    double closeness;  // of a dab in the layer to the reference, 1/255
};

inline const Kind kKinds[] = {
    {{"Gpu"},
     [](const dabcanvas::Size& size) { return dabcanvas::makeGLSurface(QSizeF(size.width, size.height)); },
     0.05},
    {{"Processor"}, [](const dabcanvas::Size& size) { return dabcanvas::makeProcessorSurface(size); }, 2},
};
