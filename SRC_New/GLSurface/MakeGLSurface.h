// SPDX-License-Identifier: MIT
// Surfaces on OpenGL for those who know nothing of it.
#pragma once

#include <QSizeF>
#include <memory>

#include "Maths/Export.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas {

class GLSurface;

struct SurfaceOptions {
    // Bits a channel of line, sub-line and smudge layer, 8 or 16. With 8, paint takes half the memory, but faint paint does
    // not add up: dabs below 1/255 leave nothing, and a colour's channels round by themselves.
    int layerDepth = 16;
};

// As GLSurface::make().
DABCANVAS_RENDER_API std::unique_ptr<PaintSurface> makeGLSurface(const QSizeF& size,
                                                                 const SurfaceOptions& options = {});
// The surface as what it is; null for one of another kind.
DABCANVAS_RENDER_API GLSurface* asGLSurface(PaintSurface& surface);

}  // namespace dabcanvas
