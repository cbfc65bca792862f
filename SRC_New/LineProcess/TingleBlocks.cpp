// SPDX-License-Identifier: MIT
#include "LineProcess/TingleBlocks.h"

#include "LineProcess/Tingle.h"
#include "LineProcess/TingleInternal.h"

const std::function<float(float, float, float)> radiusTingleBlock = RadiusTingle;

const std::function<float(LPPosition, LPPosition)> radianBlock = Radian;

const std::function<std::uint64_t(LPPoint, std::uint64_t, float, std::uint64_t, LPControlParams)>
    distributionCountTingleBlock =
        [](LPPoint point, std::uint64_t count, float amount, std::uint64_t index, LPControlParams control) {
            return dabcanvas::countOfCopies(count, index, amount, point, control);
        };

const std::function<LPPosition(LPPoint, float, bool, std::int64_t, float, LPControlParams)>
    positionTingleBlock = PositionTingle;

const std::function<RgbType(LPPoint, RgbType, RgbType, float, std::int64_t, LPControlParams)>
    colorTingleBlock = ColorTingle;

const std::function<RgbType(RgbType, float, float, float)> hsvTingleBlock = HSVTingle;

const std::function<float(LPPoint, float, float, float, bool, std::int64_t, LPControlParams)>
    radianTingleBlock = RadianTingle;

const std::function<float(LPPoint, float, float, float, std::int64_t, LPControlParams)> roundnessTingleBlock =
    RoundnessTingle;

const std::function<std::uint64_t(LPPoint, std::uint64_t, bool, std::uint64_t, LPControlParams)>
    textureIndexTingleBlock =
        [](LPPoint point, std::uint64_t count, bool random, std::uint64_t index, LPControlParams control) {
            return TextureIndexTingle(count, random, index, point, control);
        };

const std::function<float(float, float, std::uint64_t, std::int32_t, float, std::int64_t, LPControlParams)>
    opacityTingleBlock = [](float opacity, float amount, std::uint64_t fadeCount, std::int32_t mode,
                            float minimum, std::int64_t index, LPControlParams values) {
        return OpacityTingle(mode, fadeCount, index, opacity, amount, minimum, values);
    };

const std::function<float(LPPoint, float, float, float, float, float, std::int64_t, LPControlParams)>
    flowTingleBlock = FlowTingle;
