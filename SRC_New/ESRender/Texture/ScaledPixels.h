// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <utility>

namespace dabcanvas {

/// An image's pixels at another size, smoothed, as Format_RGBA8888_Premultiplied; null without the memory. Qt's own
/// scaling reads beyond images of fewer than 32 bits that have a device pixel ratio, which plays no role here.
inline QImage scaledPixels(QImage image, const QSize& size) {
    image = std::move(image).convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    image.setDevicePixelRatio(1);
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGBA8888_Premultiplied);
}

}  // namespace dabcanvas
