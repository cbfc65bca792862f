// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include "Dabs/Picture.h"

namespace dabcanvas {

// Images over pixels that they neither copy nor keep alive. Rows that lie bottom row first in memory come in that
// order, as if the first were the top one.
inline QImage imageOf(const PixelView& pixels) {
    const bool bottomUp = pixels.stride < 0;
    return QImage(
        bottomUp ? pixels.row(pixels.size.height - 1) : pixels.bytes, pixels.size.width, pixels.size.height,
        bottomUp ? -pixels.stride : pixels.stride,
        pixels.pixelBytes > 4 ? QImage::Format_RGBA64_Premultiplied : QImage::Format_RGBA8888_Premultiplied);
}

inline QImage imageOf(const Picture& picture) {
    if (picture.pixels.isNull()) {
        return {};
    }
    QImage image = imageOf(picture.pixels);
    image.setDevicePixelRatio(picture.density);
    return image;
}

}  // namespace dabcanvas
