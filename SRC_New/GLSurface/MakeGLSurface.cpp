// SPDX-License-Identifier: MIT
#include "GLSurface/MakeGLSurface.h"

#include "GLSurface/GLSurface.h"

namespace dabcanvas {

std::unique_ptr<PaintSurface> makeGLSurface(const QSizeF& size, const SurfaceOptions& options) {
    return GLSurface::make(size, options);
}

GLSurface* asGLSurface(PaintSurface& surface) {
    return dynamic_cast<GLSurface*>(&surface);
}

}  // namespace dabcanvas
