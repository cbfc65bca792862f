// SPDX-License-Identifier: MIT
/// \file
/// Tips and papers as plain pixels that several brushes, canvases and threads may share: never changed once made.
#pragma once

#include <memory>
#include <vector>

#include "Maths/PixelView.h"

namespace dabcanvas {

/// A tip or a paper. Keeps whatever holds its pixels alive.
struct Picture {
    PixelView pixels;    ///< premultiplied; null for an image that is none
    double density = 1;  ///< pixels a point, of images for dense screens: a tip counts in points
    std::shared_ptr<const void> owner;
};

/// The tips of a brush, in the order in which dabs name them.
using TipSet = std::vector<Picture>;

/// Cells of the square atlas that so many tips lie in; beyond the last one, its first stands for a tip.
constexpr unsigned tipCells(unsigned tips) {
    return tips <= 1 ? 1 : tips <= 4 ? 4 : 16;
}

}  // namespace dabcanvas
