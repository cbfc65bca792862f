// SPDX-License-Identifier: MIT
/// \file
/// Surfaces in plain memory, drawn by the processor: no context, no driver and no call of OpenGL.
#pragma once

#include <memory>

#include "Maths/Export.h"
#include "Surface/PaintSurface.h"
#include "Surface/SurfaceOptions.h"

namespace dabcanvas {

/// Transparent. Null, after one log line, when a side is not from 1 to 32768, for a depth that is neither 8 nor 16, and
/// without the memory.
DABCANVAS_PROCESSOR_API std::unique_ptr<PaintSurface> makeProcessorSurface(
    const Size& size, const SurfaceOptions& options = {});

}  // namespace dabcanvas
