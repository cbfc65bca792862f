// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace dabcanvas {

// What a canvas lets its paint lie in.
enum class SurfaceKind : std::uint8_t {
    automatic,  // the GPU where there is one, else the processor; the environment's DABCANVAS_SURFACE, gpu or processor,
                // decides where it is set
    gpu,        // OpenGL 3.2, whatever draws it; a software driver is slower than the processor by itself
    processor,  // no OpenGL at all
};

}  // namespace dabcanvas
