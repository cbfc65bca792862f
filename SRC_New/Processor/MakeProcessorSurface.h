// SPDX-License-Identifier: MIT
// Surfaces in plain memory, drawn by the processor: no context, no driver and no call of OpenGL.
#pragma once

#include <memory>

#include "Maths/Export.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas {

// Transparent. Null, after one log line, when a side is not from 1 to 32768 or there is no memory.
DABCANVAS_PROCESSOR_API std::unique_ptr<PaintSurface> makeProcessorSurface(const Size& size);

}  // namespace dabcanvas
