// SPDX-License-Identifier: MIT
/// \file
/// The fixed random values of debug mode. They never change: recorded strokes are replayed with them.
#pragma once

#include <cstdint>

#include "Maths/Export.h"

namespace dabcanvas {
inline constexpr int kTingleTableSize = 1024;
}  // namespace dabcanvas

DABCANVAS_STROKE_API extern const float FloatValue[dabcanvas::kTingleTableSize];  ///< uniform, 0.0011..0.9995
DABCANVAS_STROKE_API extern const std::int32_t IntValue[dabcanvas::kTingleTableSize];  ///< uniform, 2..1023
