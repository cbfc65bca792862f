// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// The render targets of a canvas.
enum ESRenderType : std::int32_t {
    ESRenderTypeCanvas = 0,   ///< the canvas image
    ESRenderTypeLine = 1,     ///< the line layer
    ESRenderTypeSubLine = 2,  ///< the sub-line layer
    ESRenderTypeSmudge = 3,   ///< the smudge layer, half size each way
};
namespace dabcanvas {
inline constexpr int kRenderTypeCount = 4;
}  // namespace dabcanvas
