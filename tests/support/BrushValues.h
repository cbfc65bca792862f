// SPDX-License-Identifier: MIT
// Values for every property of a brush.
#pragma once

#include <QImage>
#include <algorithm>

#include "Brushes/BrushProperties.h"

namespace dabcanvas {

inline QImage dotted(int side, int seed) {
    QImage image(side, side, QImage::Format_RGBA8888_Premultiplied);
    image.fill(Qt::transparent);
    for (int i = 0; i < side; ++i) {  // two rows, half of each
        image.setPixelColor(1 + i / 2, 1 + seed + i % 2, QColor(200, 100, 50, 128));
    }
    return image;
}

// A value of the property, different for every seed and within its range.
inline QVariant someValue(const BrushProperty& row, int seed) {
    const float part = 0.25f + 0.125f * static_cast<float>(seed);
    const float low = row.low == -kFree ? -2.0f : row.low;
    const float high = row.high == kFree ? std::max(low, 0.0f) + 3.0f : std::min(row.high, low + 60);
    switch (row.type()) {
        case BrushValueType::boolean:
            return seed % 2 != 0;
        case BrushValueType::integer:
            return seed;
        case BrushValueType::real:
            return low + (high - low) * part;
        case BrushValueType::control:
            return QVariant::fromValue(LPControlParams{part, -part, part / 2});
        case BrushValueType::color:
            return QVariant::fromValue(ESColor::rgba(part, 0.5f, 1 - part, 0.75f));
        case BrushValueType::image:
            return dotted(8, seed);
        case BrushValueType::images:
            return QVariant::fromValue(QList<QImage>{dotted(16, seed), dotted(8, seed)});
        case BrushValueType::text:
            break;
    }
    return QString();
}

}  // namespace dabcanvas
