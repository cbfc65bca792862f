// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>

namespace dabcanvas::dabpainter {

// The average of side x side pixels about one, as far as there is paint: what is half transparent counts half. Opaque, or
// invalid where there is none. Reads no other pixels.
QColor shownColor(const QImage& shown, QPoint pixel, int side);

}  // namespace dabcanvas::dabpainter
