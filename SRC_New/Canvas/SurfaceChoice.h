// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <memory>

#include "Maths/Export.h"
#include "Surface/PaintSurface.h"
#include "Surface/SurfaceOptions.h"

namespace dabcanvas {

/// Transparent; the sides are cut to integers. Null, after one log line, where there is no such surface, a side is not
/// from 1 to its limit or a depth neither 8 nor 16.
DABCANVAS_CANVAS_API std::unique_ptr<PaintSurface> makeSurface(const QSizeF& size,
                                                               const SurfaceOptions& options);

}  // namespace dabcanvas
