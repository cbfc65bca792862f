// SPDX-License-Identifier: MIT
/// \file
/// Random numbers from the C library's rand(), which the whole process shares; the half-used normal pair is one
/// per thread. For clients: strokes that a canvas draws have a generator of their own, see LPSharedState.h.
#pragma once

#include "Maths/Export.h"

/// Uniform in [0, 1). The first call of the process seeds rand() from the clock; to repeat a run, call it
/// once and give srand() a fixed seed afterwards. Nothing else here seeds anything.
DABCANVAS_STROKE_API float lpRandom();

/// From low to below high, all alike.
DABCANVAS_STROKE_API float lpUniformRandom(float low, float high);

/// Normally distributed; every other call uses up the second number of a pair.
DABCANVAS_STROKE_API float lpGaussianRandom(float mean, float deviation);
