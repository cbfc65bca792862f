// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace dabcanvas::dabpaint {

// Every brush property with its type, range, default and meaning, from the canvas's own table.
QByteArray propertiesAsText();
QByteArray propertiesAsJson();

int runProperties(bool json);

}  // namespace dabcanvas::dabpaint
