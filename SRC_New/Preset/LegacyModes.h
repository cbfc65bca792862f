// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "LineProcess/LPTypes.h"

// Presets of version 100 hold no controls: whether a group of properties was dynamic, and a mode code for each of its
// properties. What a code stood for differs between the kinds below.
//
// Gathers those of one preset, and tells the controls that they stand for.
class LegacyModes {
public:
    static constexpr int kVersion = 100;

    // Remembers a record; false for an id that is none of them. flag: what its value means as a switch; code: as a mode.
    bool take(std::uint32_t id, bool flag, std::int64_t code);

    LPControlParams radiusControl() const;
    LPControlParams radianControl() const;
    LPControlParams roundnessControl() const;
    LPControlParams distributionControl() const;
    LPControlParams distributionCountControl() const;
    LPControlParams colorControl() const;
    LPControlParams flowControl() const;
    LPControlParams textureControl() const;

private:
    bool _size = false, _distribution = false, _color = false, _flow = false, _texture = false;
    std::int64_t _radiusCode = 0, _radianCode = 0, _roundnessCode = 0, _distributionCode = 0, _countCode = 0,
                 _colorCode = 0, _flowCode = 0, _textureCode = 0;
};
