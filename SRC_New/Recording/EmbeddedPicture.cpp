// SPDX-License-Identifier: MIT
#include "Recording/EmbeddedPicture.h"

#include <QBuffer>
#include <QImageReader>

namespace dabcanvas {

namespace {

// The same bytes under another name.
QImage renamed(const QImage& image, QImage::Format format) {
    QImage same(image.constBits(), image.width(), image.height(), image.bytesPerLine(), format);
    return same.copy();
}

}  // namespace

QByteArray embeddedPicture(const QImage& image) {
    const bool isDeep = image.format() == QImage::Format_RGBA64_Premultiplied;
    const QImage pixels = isDeep ? image : image.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    const QImage straight = renamed(pixels, isDeep ? QImage::Format_RGBA64 : QImage::Format_RGBA8888);
    return straight.save(&buffer, "PNG") ? png : QByteArray();
}

Result<QImage> pictureEmbedded(const QByteArray& png, qint64 most) {
    QBuffer buffer;
    buffer.setData(png);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "png");
    const QSize size = reader.size();
    if (!size.isValid())
        return Problem{0, {}, QStringLiteral("the picture is no PNG")};
    if (qint64(size.width()) * size.height() > most)
        return Problem{0, {}, QStringLiteral("the pictures have too many pixels together")};
    const QImage read = reader.read();
    if (read.isNull())
        return Problem{0, {}, QStringLiteral("the picture cannot be read: %1").arg(reader.errorString())};
    const bool isDeep = read.format() == QImage::Format_RGBA64 || read.format() == QImage::Format_RGBX64;
    const QImage straight = read.convertToFormat(isDeep ? QImage::Format_RGBA64 : QImage::Format_RGBA8888);
    return renamed(straight,
                   isDeep ? QImage::Format_RGBA64_Premultiplied : QImage::Format_RGBA8888_Premultiplied);
}

}  // namespace dabcanvas
