// SPDX-License-Identifier: MIT
/// \file
/// Colours as three floats, each 0..1, and the conversions that the colour jitter uses.
#pragma once

#include "Maths/Export.h"

/// Red, green and blue.
struct RgbType {
    float r;
    float g;
    float b;
};

/// Hue, saturation and value. Hue is a fraction of the full circle, not degrees.
struct HsvType {
    float h;
    float s;
    float v;
};

/// Of three numbers, as they are.
DABCANVAS_STROKE_API RgbType RgbTypeMake(float r, float g, float b);
DABCANVAS_STROKE_API HsvType HsvTypeMake(float h, float s, float v);

/// Pure red has hue 1, grey has hue and saturation 0.
DABCANVAS_STROKE_API HsvType Rgb_to_Hsv(RgbType colour);

/// A hue that is negative, not a number or 7/6 and above gives black: wrap it first.
DABCANVAS_STROKE_API RgbType Hsv_to_Rgb(HsvType colour);
