// SPDX-License-Identifier: MIT
/// \file
/// Surfaces on OpenGL for those who know nothing of it.
#pragma once

#include <QSizeF>
#include <memory>

#include "Maths/Export.h"
#include "Surface/PaintSurface.h"
#include "Surface/SurfaceOptions.h"

namespace dabcanvas {

class GLSurface;

/// As GLSurface::make().
DABCANVAS_RENDER_API std::unique_ptr<PaintSurface> makeGLSurface(const QSizeF& size,
                                                                 const SurfaceOptions& options = {});
/// The surface as what it is; null for one of another kind.
DABCANVAS_RENDER_API GLSurface* asGLSurface(PaintSurface& surface);

}  // namespace dabcanvas
