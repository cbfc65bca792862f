// SPDX-License-Identifier: MIT
/// \file
/// Free functions for sizes, points, rectangles and angles.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include "Maths/Export.h"

/// Deliberate: all three divide by the scale, whatever their names say. They turn view units into buffer
/// units, given how many view units a buffer pixel is on each axis (the width and height of `scale`).
DABCANVAS_BRUSHES_API QSizeF CGSizeApplyScale(const QSizeF& size, const QSizeF& scale);
DABCANVAS_BRUSHES_API QPointF CGPointApplyScale(const QPointF& point, const QSizeF& scale);
DABCANVAS_BRUSHES_API QRectF CGRectApplyScale(const QRectF& rect, const QSizeF& scale);

/// Half-extent of a box turned by `angle` radians, from its half width and half height. Computed in single
/// precision.
DABCANVAS_BRUSHES_API QSizeF CGSizeApplyRotation(const QSizeF& halfSize, float angle);

/// What `center` moves by when it turns about `point` by `radian`, counter-clockwise as seen with the y axis
/// down.
DABCANVAS_BRUSHES_API QPointF offsetWithCenter(const QPointF& center, const QPointF& point, double radian);

/// The angle of the line from (x1, y1) to (x2, y2) in (-3 pi / 2, pi / 2]; 0 when the points are equal.
DABCANVAS_BRUSHES_API float RadianF(float x1, float y1, float x2, float y2);
DABCANVAS_BRUSHES_API long double RadianLD(long double x1, long double y1, long double x2, long double y2);
