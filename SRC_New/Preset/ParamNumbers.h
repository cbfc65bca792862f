// SPDX-License-Identifier: MIT
// What number or colour a parameter's value stands for, whatever class it has; nothing for embedders.
#pragma once

#include <QColor>
#include <QVariant>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "Brushes/ESColor.h"

namespace dabcanvas {

// Deliberate: the three records of a control do not stand in the order of its fields.
inline constexpr std::uint32_t kControlSpeed = 1, kControlPressure = 2, kControlAltitude = 3;

// Truncated, and 0 for what is no number.
inline std::int64_t wholeOf(double value) {
    constexpr double kMost = 9007199254740992.0;  // a double's last exact integers
    return std::isnan(value) ? 0 : static_cast<std::int64_t>(std::clamp(value, -kMost, kMost));
}

inline float floatOf(const QVariant& value) {
    return value.toFloat();
}

inline std::int32_t integerOf(const QVariant& value) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(wholeOf(value.toDouble()), Limits::min(), Limits::max()));
}

inline bool booleanOf(const QVariant& value) {
    return value.typeId() == QMetaType::QString ? value.toBool() : value.toDouble() != 0;
}

inline bool isColor(const QVariant& value) {
    return value.typeId() == qMetaTypeId<ESColor>() || value.typeId() == QMetaType::QColor;
}

// No colour for what is none.
inline ESColor colorOf(const QVariant& value) {
    return value.typeId() == QMetaType::QColor ? ESColor(value.value<QColor>()) : value.value<ESColor>();
}

}  // namespace dabcanvas
