// SPDX-License-Identifier: MIT
#include "Selection/PictureMime.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QUrl>

namespace dabcanvas::dabpainter {

namespace {

constexpr const char* kPng = "image/png";

QString pictureFile(const QMimeData& data) {
    const QList<QByteArray> kinds = QImageReader::supportedImageFormats();
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile() && kinds.contains(QFileInfo(url.toLocalFile()).suffix().toLower().toLatin1()))
            return url.toLocalFile();
    }
    return {};
}

}  // namespace

bool hasPicture(const QMimeData& data) {
    return data.hasImage() || data.hasFormat(QLatin1String(kPng)) || !pictureFile(data).isEmpty();
}

// A file before an image: file managers offer its icon as that.
ReadImage pictureOf(const QMimeData& data) {
    if (const QString file = pictureFile(data); !file.isEmpty())
        return readImageFile(file);
    QImage image;
    if (data.hasFormat(QLatin1String(kPng)))
        image = QImage::fromData(data.data(QLatin1String(kPng)), "png");
    if (image.isNull())
        image = qvariant_cast<QImage>(data.imageData());
    return {image.convertToFormat(QImage::Format_RGBA8888_Premultiplied), {}};
}

std::unique_ptr<QMimeData> mimeOf(const QImage& picture) {
    auto data = std::make_unique<QMimeData>();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    // Other programs may ask for other kinds, which Qt makes of the image.
    picture.save(&buffer, "png");
    data->setData(QLatin1String(kPng), bytes);
    data->setImageData(picture);
    return data;
}

}  // namespace dabcanvas::dabpainter
