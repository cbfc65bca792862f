// SPDX-License-Identifier: MIT
// Brush property values as people write them, and as the canvas takes them.
#pragma once

#include <QColor>
#include <QVariant>
#include <optional>

#include "Brushes/BrushProperties.h"
#include "Maths/Export.h"
#include "Recording/StrokesFile.h"

namespace dabcanvas {

// "#rrggbb", "#rrggbbaa", a colour's name or "transparent"; none for anything else.
DABCANVAS_RECORDING_API std::optional<QColor> colorFromText(const QString& text);

// What a number may be: the property's range, or from its first choice to its last.
DABCANVAS_RECORDING_API BrushRange meantRange(const BrushProperty& property);

// "a number from 0 to 1", as messages and listings say it.
DABCANVAS_RECORDING_API QString expectedValue(const BrushProperty& property);

// "#rrggbb", or "#rrggbbaa" of a colour that is not opaque.
DABCANVAS_RECORDING_API QString colorText(const QColor& color);

// The property's default as a value one could write; empty where it cannot be written.
DABCANVAS_RECORDING_API QString defaultText(const BrushProperty& property);

// What lies outside a property's range is refused, as is what is no value at all: a slip is told, not cut to size.

// Pixels of the images of a value; 0 of any other.
DABCANVAS_RECORDING_API qint64 pixelsOf(const QVariant& value);
// The message when a recording's images would have this many together.
DABCANVAS_RECORDING_API QString pixelsRefusal(qint64 pixels);

// A value from the command line, such as "0.5", "yes", "1,0,0" or "tip.png,other.png".
DABCANVAS_RECORDING_API Result<QVariant> propertyValueFromText(const BrushProperty& property,
                                                               const QString& text);

// A recording's value; image paths are relative to `folder`. The setting must have a value.
DABCANVAS_RECORDING_API Result<QVariant> propertyValueFromSetting(const BrushProperty& property,
                                                                  const Setting& setting,
                                                                  const QString& folder);

// The files that such a value names; none of a property that takes no image.
DABCANVAS_RECORDING_API QStringList imageFilesOfText(const BrushProperty& property, const QString& text);
DABCANVAS_RECORDING_API QStringList imageFiles(const BrushProperty& property, const Setting& setting,
                                               const QString& folder);

// Every property's name, and what one hears who names another.
DABCANVAS_RECORDING_API QStringList propertyNames();
DABCANVAS_RECORDING_API QString unknownProperty(const QString& name);

}  // namespace dabcanvas
