// SPDX-License-Identifier: MIT
#pragma once

#include "Surface/SurfaceKind.h"

namespace dabcanvas {

/// What a canvas's paint lies in, as its host tells when it makes the canvas: {.canvasDepth = 16}, say.
struct SurfaceOptions {
    SurfaceKind kind = SurfaceKind::automatic;
    /// Bits a channel of the picture and its background: 8 or 16. With 16, many faint strokes over one another come out
    /// at what they add up to, without the grain and the steps of 8 bits. Both take 8 bytes a pixel instead of 4, and
    /// so does an undo step. Images and bytes that come in or go out have 8 bits all the same: going out, a noise fixed
    /// by the pixel's place rounds them, so that looking twice gives the same bytes.
    int canvasDepth = 8;
    /// Bits a channel of line, sub-line and smudge layer: 8 or 16. With 8, rounded to the nearest after each dab, faint
    /// paint does not add up: dabs below 1/255 leave nothing, and a colour's channels round by themselves. Layers take
    /// half the memory on OpenGL, on the processor as much and more time.
    int layerDepth = 16;

    bool isUsable() const { return isDepth(canvasDepth) && isDepth(layerDepth); }
    static constexpr bool isDepth(int bits) { return bits == 8 || bits == 16; }
};
/// What is wrong where they are not.
inline constexpr char kDepthProblem[] =
    "a canvas cannot be made: the depth of picture and layers is 8 or 16 bits a channel";

}  // namespace dabcanvas
