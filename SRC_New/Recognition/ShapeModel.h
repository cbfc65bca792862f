// SPDX-License-Identifier: MIT
// Judges, from a stroke's features, which kind of shape it was meant as.
#pragma once

#include "Recognition/ShapeFeatures.h"
#include "Recognition/ShapeRecord.h"

namespace dabcanvas {

struct ShapeVerdict {
    ShapeKind kind = ShapeKind::none;
    double confidence = 0;  // 0..1: the probability that the kind is right
    int legs = 0;           // of a fold line: 2 to 5, where 5 stands for as many or more
};

// A small neural network, trained by tools/train_shapes.py on strokes of many made-up hands. A stroke and its
// mirror image get the same verdict.
ShapeVerdict judgeShape(const ShapeFeatures& features);

}  // namespace dabcanvas
