// SPDX-License-Identifier: MIT
// A brush file's records as people and as programs read them.
#pragma once

#include <QByteArray>
#include <QJsonObject>

#include "BrushFile.h"

namespace dabcanvas::dabpaint {

// One line a record: the property, or the id of one that is not known, and its value as --set takes it, where it does.
QByteArray presetAsText(const QString& file, const BrushFileContents& contents);

// {"file", "problem" (null for none), "version", "brushes": [{"name", "records": [{"id", "property", "part",
// "method", "type", "value"}]}]}; the value of data is {"bytes", "width", "height"}, the last two for an image.
QJsonObject presetAsJson(const QString& file, const BrushFileContents& contents);

}  // namespace dabcanvas::dabpaint
