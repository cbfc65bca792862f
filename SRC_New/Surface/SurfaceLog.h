// SPDX-License-Identifier: MIT
// Where surfaces that know no Qt say what went wrong: one line a problem, without its end.
#pragma once

#include "Maths/Export.h"

namespace dabcanvas {

using SurfaceLog = void (*)(const char* line);

// Standard error until another is set. Any thread may set and write.
DABCANVAS_DABS_API void setSurfaceLog(SurfaceLog log);
DABCANVAS_DABS_API void logSurfaceProblem(const char* line);

}  // namespace dabcanvas
