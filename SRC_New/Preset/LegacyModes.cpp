// SPDX-License-Identifier: MIT
#include "Preset/LegacyModes.h"

#include <span>

namespace {

// Of the codes from 3 on: pressure, altitude, speed. Deliberate: the tables differ, and some codes do nothing.
constexpr std::int64_t kFirstCode = 3;
constexpr LPControlParams kRadius[] = {{1, 0, 1},  {-1, 0, -1}, {0, 1, 1}, {0, 1, -1}, {1, 0, 0},
                                       {-1, 0, 0}, {0, 1, 0},   {0, 0, 0}, {1, 1, 1}};
constexpr LPControlParams kRadian[] = {{1, 0, 1},  {-1, 0, -1}, {0, 0, 0},  {0, 0, 0}, {0, 1, 1},
                                       {0, 1, -1}, {1, 0, 0},   {-1, 0, 0}, {0, 1, 0}, {0, 1, 0}};
constexpr LPControlParams kCommon[] = {{1, 0, 1}, {-1, 0, -1}, {0, 1, 1}, {0, 1, -1},
                                       {1, 0, 0}, {-1, 0, 0},  {0, 1, 0}, {0, 1, 0}};

LPControlParams controlOf(bool isOn, std::span<const LPControlParams> table, std::int64_t code) {
    const std::int64_t index = code - kFirstCode;
    if (!isOn || index < 0 || index >= static_cast<std::int64_t>(table.size())) {
        return {0, 0, 0};
    }
    return table[static_cast<std::size_t>(index)];
}

}  // namespace

bool LegacyModes::take(std::uint32_t id, bool flag, std::int64_t code) {
    const struct {
        std::uint32_t id;
        bool* flag;
        std::int64_t* code;
    } known[] = {{0x3001, &_size, nullptr},         {0x3003, nullptr, &_radiusCode},
                 {0x300E, nullptr, &_radianCode},   {0x3012, nullptr, &_roundnessCode},
                 {0x4001, &_distribution, nullptr}, {0x4004, nullptr, &_distributionCode},
                 {0x4008, nullptr, &_countCode},    {0x5001, &_color, nullptr},
                 {0x5003, nullptr, &_colorCode},    {0x6001, &_flow, nullptr},
                 {0x6007, nullptr, &_flowCode},     {0x8001, &_texture, nullptr},
                 {0x8005, nullptr, &_textureCode}};
    for (const auto& row : known) {
        if (row.id == id) {
            row.flag != nullptr ? void(*row.flag = flag) : void(*row.code = code);
            return true;
        }
    }
    return false;
}

LPControlParams LegacyModes::radiusControl() const {
    return controlOf(_size, kRadius, _radiusCode);
}

LPControlParams LegacyModes::radianControl() const {
    return controlOf(_size, kRadian, _radianCode);
}

LPControlParams LegacyModes::roundnessControl() const {
    return controlOf(_size, kCommon, _roundnessCode);
}

LPControlParams LegacyModes::distributionControl() const {
    return controlOf(_distribution, kCommon, _distributionCode);
}

LPControlParams LegacyModes::distributionCountControl() const {
    return controlOf(_distribution, kCommon, _countCode);
}

LPControlParams LegacyModes::colorControl() const {
    return controlOf(_color, kCommon, _colorCode);
}

LPControlParams LegacyModes::flowControl() const {
    return controlOf(_flow, kCommon, _flowCode);
}

LPControlParams LegacyModes::textureControl() const {
    return controlOf(_texture, kCommon, _textureCode);
}
