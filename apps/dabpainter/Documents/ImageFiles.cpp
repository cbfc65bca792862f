// SPDX-License-Identifier: MIT
#include "Documents/ImageFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>

#include "OutputFile.h"
#include "PictureKinds.h"
#include "Window/Translations.h"

namespace dabcanvas::dabpainter {

namespace {

QString shown(const QString& path) {
    return QDir::toNativeSeparators(path);
}

}  // namespace

QString sizeRefusal(qint64 width, qint64 height) {
    if (width < 1 || height < 1)
        return tr("a canvas is at least 1 x 1 pixel large");
    if (width > kMostSide || height > kMostSide)
        return tr("%1 x %2 pixels are too large: a side has at most %3")
            .arg(width)
            .arg(height)
            .arg(kMostSide);
    if (width * height > kMostPixels)
        return tr("%1 x %2 pixels are too large: a canvas has at most %3 million")
            .arg(width)
            .arg(height)
            .arg(kMostPixels / 1000000);
    return {};
}

ReadImage readImageFile(const QString& path) {
    const auto failed = [&](const QString& why) {
        return ReadImage{{}, tr("\"%1\" cannot be opened: %2.").arg(shown(path), why)};
    };
    const QFileInfo info(path);
    if (!info.exists())
        return failed(tr("there is no such file"));
    if (!info.isFile())
        return failed(tr("it is not a file"));
    if (!info.isReadable())
        return failed(tr("permission denied"));
    // Qt's own limit is below that of a canvas.
    QImageReader::setAllocationLimit(int(kMostPixels * 4 / (1024 * 1024)) + 1);
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!reader.canRead())
        return failed(tr("it is not an image of a known kind"));
    const QSize size = reader.size();
    if (size.isValid()) {
        const QString refusal = sizeRefusal(size.width(), size.height());
        if (!refusal.isEmpty())
            return failed(refusal);
    }
    const QImage image = reader.read();
    if (image.isNull())
        return failed(tr("it is damaged (%1)").arg(reader.errorString()));
    const QString refusal = sizeRefusal(image.width(), image.height());
    if (!refusal.isEmpty())
        return failed(refusal);
    QImage converted = image.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    converted.setDevicePixelRatio(1);  // a "@2x" in the name must not halve it
    return converted.isNull() ? failed(tr("out of memory")) : ReadImage{converted, {}};
}

bool isOpaque(const QImage& image) {
    if (!image.hasAlphaChannel())
        return true;
    const QImage alpha = image.convertToFormat(QImage::Format_Alpha8);
    for (int y = 0; y < alpha.height(); ++y) {
        const uchar* line = alpha.constScanLine(y);
        if (std::any_of(line, line + alpha.width(), [](uchar a) { return a != 255; }))
            return false;
    }
    return true;
}

QString writeImageFile(const QString& path, const QImage& image) {
    const auto failed = [&](const QString& why) {
        return tr("\"%1\" cannot be saved: %2.").arg(shown(path), why);
    };
    if (image.isNull())
        return failed(tr("the canvas cannot be read"));
    if (const QString wrong = pictureKindRefusal(path); !wrong.isEmpty())
        return failed(wrong);
    QByteArray bytes;
    if (const QString wrong = encodePicture(image, path, bytes); !wrong.isEmpty())
        return failed(wrong);
    OutputFile file(path);
    return file.write(bytes) ? QString() : failed(file.errorString());
}

}  // namespace dabcanvas::dabpainter
