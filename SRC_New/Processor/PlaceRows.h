// SPDX-License-Identifier: MIT
// Puts one picture onto another: stretched, turned, cut to a rectangle.
#pragma once

#include <cstdint>

#include "Processor/Tiles.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas {

// `picture` becomes `background` with what is placed over it, or in its place. Returns the pixels that may have changed.
// Throws std::bad_alloc, with nothing changed.
template <typename Channel>
Rect placeRows(const Placed& placed, const Rect& clip, const TileGrid<Channel>& background,
               TileGrid<Channel>& picture);

}  // namespace dabcanvas
