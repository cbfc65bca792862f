// SPDX-License-Identifier: MIT
// MyPaint's round dab as a tip. A hardness is above 0 and at most 1.
#pragma once

#include <QImage>
#include <vector>

namespace dabcanvas {

// Of the drawn disc that differs least.
float hardnessLike(float hardness);
// The mean of the dabs of these hardnesses.
QImage tipLike(const std::vector<float>& hardnesses, int side);

}  // namespace dabcanvas
