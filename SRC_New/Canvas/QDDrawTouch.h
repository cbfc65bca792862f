// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

// What stroke entry needs to know of a pointer event, whichever device it came from.
struct QDDrawTouch {
    QPointF locationInWindow;  // view points from the top left of the window that shows the canvas
    float pressure = 1;        // 0..1
};
