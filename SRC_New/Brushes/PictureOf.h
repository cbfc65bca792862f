// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <memory>

#include "Dabs/Picture.h"

namespace dabcanvas {

// An image as plain pixels. They are converted once, and shared where they need no converting.
inline Picture pictureOf(const QImage& image) {
    if (image.isNull()) {
        return {};
    }
    const auto held =
        std::make_shared<const QImage>(image.convertToFormat(QImage::Format_RGBA8888_Premultiplied));
    return {.pixels = {held->constBits(), {held->width(), held->height()}, held->bytesPerLine()},
            .density = image.devicePixelRatio(),
            .owner = held};
}

}  // namespace dabcanvas
