// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// How a source meets the canvas. Any other value, 3 among them, draws as normal.
enum ESBlendType : std::uint32_t {
    ESBlendTypeNormal = 1,
    ESBlendTypeReplace = 2,
    ESBlendTypeBehind = 4,
    ESBlendTypeErase = 5,
    ESBlendTypeTarnish = 6,
    ESBlendTypeBrightness = 7,
    ESBlendTypeMultiply = 8,
    ESBlendTypeReset = 9,
};
