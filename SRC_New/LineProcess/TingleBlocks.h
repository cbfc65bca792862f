// SPDX-License-Identifier: MIT
/// \file
/// The jitter functions as objects to call, the form that the dab renderers use. Each computes what the
/// function of its name in Tingle.h does, with arguments in the order below.
#pragma once

#include <cstdint>
#include <functional>

#include "LineProcess/ColorTypes.h"
#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"

/// radius, minimum, amount
DABCANVAS_STROKE_API extern const std::function<float(float, float, float)> radiusTingleBlock;

/// from, to
DABCANVAS_STROKE_API extern const std::function<float(LPPosition, LPPosition)> radianBlock;

/// point, count, amount, index, control. Deliberate: unlike the function, no exception for index 1.
DABCANVAS_STROKE_API extern const std::function<std::uint64_t(LPPoint, std::uint64_t, float, std::uint64_t,
                                                              LPControlParams)>
    distributionCountTingleBlock;

/// point, distribution, two axes, index, direction, control
DABCANVAS_STROKE_API extern const std::function<LPPosition(LPPoint, float, bool, std::int64_t, float,
                                                           LPControlParams)>
    positionTingleBlock;

/// point, first colour, second colour, amount, index, control
DABCANVAS_STROKE_API extern const std::function<RgbType(LPPoint, RgbType, RgbType, float, std::int64_t,
                                                        LPControlParams)>
    colorTingleBlock;

/// colour, hue, saturation and brightness amounts
DABCANVAS_STROKE_API extern const std::function<RgbType(RgbType, float, float, float)> hsvTingleBlock;

/// point, base angle, direction angle, amount, follow the direction, index, control
DABCANVAS_STROKE_API extern const std::function<float(LPPoint, float, float, float, bool, std::int64_t,
                                                      LPControlParams)>
    radianTingleBlock;

/// point, base roundness, amount, spare, index, control
DABCANVAS_STROKE_API extern const std::function<float(LPPoint, float, float, float, std::int64_t,
                                                      LPControlParams)>
    roundnessTingleBlock;

/// point, count, random, index, control
DABCANVAS_STROKE_API extern const std::function<std::uint64_t(LPPoint, std::uint64_t, bool, std::uint64_t,
                                                              LPControlParams)>
    textureIndexTingleBlock;

/// opacity, amount, fade count, mode, minimum opacity, index, the dab's inputs
DABCANVAS_STROKE_API extern const std::function<float(float, float, std::uint64_t, std::int32_t, float,
                                                      std::int64_t, LPControlParams)>
    opacityTingleBlock;

/// point, flow, amount, fade count, minimum flow, maximum flow, index, control
DABCANVAS_STROKE_API extern const std::function<float(LPPoint, float, float, float, float, float,
                                                      std::int64_t, LPControlParams)>
    flowTingleBlock;
