// SPDX-License-Identifier: MIT
/// \file
/// 4 x 4 matrices of single precision, 16 floats column by column: (row r, column c) is at 4c + r.
/// Each loader writes its whole output. Angles are radians.
#pragma once

#include "Maths/Export.h"

/// The matrices that change nothing, that stretch, that turn about an axis and that move.
DABCANVAS_BRUSHES_API void mat4f_LoadIdentity(float* m);
DABCANVAS_BRUSHES_API void mat4f_LoadScale(float sx, float sy, float sz, float* m);
DABCANVAS_BRUSHES_API void mat4f_LoadXRotation(float radians, float* m);
DABCANVAS_BRUSHES_API void mat4f_LoadYRotation(float radians, float* m);
DABCANVAS_BRUSHES_API void mat4f_LoadZRotation(float radians, float* m);
DABCANVAS_BRUSHES_API void mat4f_LoadTranslation(float tx, float ty, float tz, float* m);
/// As OpenGL means them: the eye looks down -z and depth maps nearZ..farZ to -1..1. The field of view is the
/// vertical one.
DABCANVAS_BRUSHES_API void mat4f_LoadPerspective(float fieldOfView, float aspect, float nearZ, float farZ,
                                                 float* m);
DABCANVAS_BRUSHES_API void mat4f_LoadOrtho(float left, float right, float bottom, float top, float nearZ,
                                           float farZ, float* m);
/// out = a x b. `out` may be a or b.
DABCANVAS_BRUSHES_API void mat4f_MultiplyMat4f(const float* a, const float* b, float* out);
