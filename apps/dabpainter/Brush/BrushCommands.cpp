// SPDX-License-Identifier: MIT
#include "Brush/BrushCommands.h"

#include <algorithm>
#include <cmath>

namespace dabcanvas::dabpainter {

void stepRadius(BrushModel& brush, int direction) {
    const float radius = brush.value(BrushKey::radius).toFloat();
    // On the way down a tenth of what is come to.
    const float step = std::max(1.0f, std::round(radius / (direction > 0 ? 10 : 11)));
    brush.setValue(BrushKey::radius, radius + float(direction) * step);
}

void stepHardness(BrushModel& brush, int direction) {
    const float hardness = brush.value(BrushKey::hardness).toFloat();
    brush.setValue(BrushKey::hardness, std::round((hardness + 0.1f * float(direction)) * 100) / 100);
}

void swapColors(BrushModel& brush) {
    const QVariant color = brush.value(BrushKey::renderColor);
    brush.setValue(BrushKey::renderColor, brush.value(BrushKey::backRenderColor));
    brush.setValue(BrushKey::backRenderColor, color);
}

void setDefaultColors(BrushModel& brush) {
    brush.setValue(BrushKey::renderColor, QVariant::fromValue(ESColor::rgba(0, 0, 0)));
    brush.setValue(BrushKey::backRenderColor, QVariant::fromValue(ESColor::rgba(1, 1, 1)));
}

}  // namespace dabcanvas::dabpainter
