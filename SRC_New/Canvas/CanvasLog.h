// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

#include "Maths/Export.h"

// "dabcanvas.canvas": every message of the canvas and of the widget that shows it.
DABCANVAS_CANVAS_API const QLoggingCategory& lcDabcanvas();
