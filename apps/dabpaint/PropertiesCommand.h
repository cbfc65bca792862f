// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include "Brushes/BrushProperties.h"

namespace dabcanvas::dabpaint {

// Every brush property with its type, range, default and meaning, from the canvas's own table.
QByteArray propertiesAsText();
QByteArray propertiesAsJson();

// "; in pixels" and the like; empty of ratios and of what has no unit.
QByteArray unitText(const BrushProperty& property);

int runProperties(bool json);

}  // namespace dabcanvas::dabpaint
