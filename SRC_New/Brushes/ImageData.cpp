// SPDX-License-Identifier: MIT
#include "Brushes/ImageData.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QLoggingCategory>
#include <QPainter>

namespace {

Q_LOGGING_CATEGORY(lcImageData, "dabcanvas.brushes.image")

QImage readImage(QImageReader& reader, const QString& source, QString* problem = nullptr) {
    reader.setDecideFormatFromContent(true);
    QImage image = reader.read();
    if (problem) {
        *problem = image.isNull() ? reader.errorString() : QString();
    }
    if (image.isNull()) {
        if (!problem) {
            qCWarning(lcImageData, "Cannot read an image from %s: %s", qUtf8Printable(source),
                      qUtf8Printable(reader.errorString()));
        }
        return {};
    }
    image.convertTo(QImage::Format_RGBA8888_Premultiplied);
    // A file called "tip@2x.png" would otherwise count as half its pixel size.
    image.setDevicePixelRatio(1.0);
    return image;
}

QImage onWhite(const QImage& image) {
    QImage paper(image.size(), QImage::Format_RGB32);
    if (paper.isNull())
        return paper;
    paper.fill(Qt::white);
    QPainter painter(&paper);
    painter.drawImage(paper.rect(), image, image.rect());
    return paper;
}

}  // namespace

QImage imageWithData(const QByteArray& data, QString* problem) {
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    return readImage(reader, QStringLiteral("%1 bytes of data").arg(data.size()), problem);
}

QImage imageWithContentsOfFile(const QString& path) {
    QImageReader reader(path);
    return readImage(reader, path);
}

QByteArray dataOfPNGFile(const QImage& image) {
    return dataOfImageType(image, "PNG");
}

QByteArray dataOfJPEGFile(const QImage& image) {
    return dataOfImageType(image.hasAlphaChannel() ? onWhite(image) : image, "JPEG");
}

QByteArray dataOfImageType(const QImage& image, const char* type) {
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, type);
    if (writer.write(image))
        return data;
    qCWarning(lcImageData, "Cannot write a %d x %d image as %s: %s", image.width(), image.height(), type,
              qUtf8Printable(writer.errorString()));
    return {};
}

QByteArray UIImagePNGRepresentation(const QImage& image) {
    return dataOfPNGFile(image);
}
