// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QList>
#include <QString>

#include "Brushes/ESColor.h"
#include "LineProcess/LPTypes.h"

namespace dabcanvas {

/// Every brush setting of one canvas, as stored (after clamping): a field for each row of BrushPropertyList.h.
struct BrushSettings {
#define BRUSH_PROPERTY(type, name, Name, ...) type name{};
#include "Brushes/BrushPropertyList.h"
};

}  // namespace dabcanvas
