// SPDX-License-Identifier: MIT
// Blurs of whole pictures on the CPU.
//
// Pixels   any QImage comes in; Format_RGBA8888_Premultiplied of the same size goes out. All four channels
//          are blurred alike, so that the colours of transparent pixels do not bleed.
// Edges    beyond the picture its edge pixels go on: nothing darkens at an edge, and a picture of one colour
//          stays.
// Cost     the same for every radius, in time and memory; the rows of a window are added up once and slide.
// Errors   a radius that is not finite or has no effect, a null picture, or no memory for the result give the
//          picture as it came in.
#pragma once

#include <QImage>

namespace dabcanvas {

// The mean of a window of 2 round(radius) + 1 pixels each way around every pixel, rounded once. Radius in
// pixels of the picture; larger than the picture is as large as the picture.
QImage boxBlurred(const QImage& image, float radius);

// A Gaussian of this standard deviation in pixels, as three box means with soft ends whose variances add up
// to it: within 3 % of the bell's height from a deviation of 1 on, rounded to whole levels three times.
QImage gaussianBlurred(const QImage& image, float deviation);

}  // namespace dabcanvas
