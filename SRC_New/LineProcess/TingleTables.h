// SPDX-License-Identifier: MIT
// The fixed random values of debug mode. They never change: recorded strokes are replayed with them.
#pragma once

#include <cstdint>

inline constexpr int kTingleTableSize = 1024;

extern const float FloatValue[kTingleTableSize];       // uniform, 0.0011..0.9995
extern const std::int32_t IntValue[kTingleTableSize];  // uniform, 2..1023
