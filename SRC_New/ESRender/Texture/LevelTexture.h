// SPDX-License-Identifier: MIT
// Levels of detail on their way into textures, where a channel has 16 bits: what has 8, filtering units round to 8, and
// llvmpipe reads it a sixth slower.
#pragma once

#include <epoxy/gl.h>

#include "Dabs/MipLevels.h"

namespace dabcanvas {

// Storage for so many mip levels, on the active unit and left bound there; the first one's texels are undefined until
// they are uploaded. The caller's to delete; 0 without the memory.
GLuint makeLevelTexture(const Size& size, int channels, int levels, GLint wrap);

// Into the bound texture; (x, y) is the place of the top left texel, row 0 at t = 0. Throws std::bad_alloc.
void uploadLevel(const Pixels& level, int x, int y, GLint mip);

}  // namespace dabcanvas
