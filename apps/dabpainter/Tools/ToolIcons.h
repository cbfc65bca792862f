// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace dabcanvas::dabpainter {

enum class ToolSign { brush, eraser, smudge, fill, shapes, pick, undo, redo, symmetry, select, lasso };

// Drawn of lines for every size and density, in the colour that the application's palette has for buttons' texts at the
// moment of drawing.
QIcon toolIcon(ToolSign sign);

}  // namespace dabcanvas::dabpainter
