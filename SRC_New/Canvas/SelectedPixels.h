// SPDX-License-Identifier: MIT
// What a path selects of a canvas.
#pragma once

#include <QPainterPath>
#include <memory>
#include <optional>

#include "Surface/PaintMask.h"

namespace dabcanvas {

// The same outlines of straight lines, closed: what a recording has, and what a mask is made of. None where a place is not
// finite, or so far off that pixels cannot be told apart there.
std::optional<QPainterPath> straightOutlines(const QPainterPath& path);

// How much of each pixel it covers, on a picture of that size. Nothing, after a log line, without the memory.
std::shared_ptr<const PaintMask> maskOf(const QPainterPath& outlines, const Size& picture);

}  // namespace dabcanvas
