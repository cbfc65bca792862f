// SPDX-License-Identifier: MIT
#include <QBuffer>
#include <algorithm>

#include "Documents/OpenRaster.h"
#include "Documents/OpenRasterStack.h"
#include "Documents/ZipFile.h"
#include "PictureKinds.h"
#include "Window/Translations.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kThumbnailSide = 256;

// Whether any of these bytes is another than 0.
bool hasSome(const uchar* bytes, qsizetype count) {
    return std::any_of(bytes, bytes + count, [](uchar byte) { return byte != 0; });
}

// Where something is; at least a pixel, as no picture is without any.
QRect contentOf(const QImage& image) {
    const qsizetype pixel = image.depth() / 8, row = image.width() * pixel;
    int top = 0, bottom = image.height() - 1, left = image.width() - 1, right = 0;
    while (top < bottom && !hasSome(image.constScanLine(top), row))
        ++top;
    while (bottom > top && !hasSome(image.constScanLine(bottom), row))
        --bottom;
    for (int y = top; y <= bottom; ++y) {
        const uchar* const line = image.constScanLine(y);
        int x = 0;
        while (x < left && !hasSome(line + x * pixel, pixel))
            ++x;
        left = x;
        for (x = image.width() - 1; x > right && !hasSome(line + x * pixel, pixel);)
            --x;
        right = std::max(right, x);
    }
    return right < left ? QRect(0, 0, 1, 1) : QRect(QPoint(left, top), QPoint(right, bottom));
}

QImage thumbnailOf(const QImage& image) {
    const QSize side(kThumbnailSide, kThumbnailSide),
        fitting = image.size().scaled(side, Qt::KeepAspectRatio);
    return image.width() <= kThumbnailSide && image.height() <= kThumbnailSide
               ? image
               : image.scaled(fitting.expandedTo(QSize(1, 1)), Qt::IgnoreAspectRatio,
                              Qt::SmoothTransformation);
}

// Of 16 bits a channel; Qt's own conversion loses some.
QImage straightened(const QImage& image) {
    if (image.format() != QImage::Format_RGBA64_Premultiplied)
        return image;
    QImage straight(image.size(), QImage::Format_RGBA64);
    for (int y = 0; y < straight.height(); ++y) {
        const auto* from = reinterpret_cast<const quint16*>(image.constScanLine(y));
        auto* to = reinterpret_cast<quint16*>(straight.scanLine(y));
        for (int i = 0; i < 4 * image.width(); ++i) {
            const quint64 alpha = from[i | 3];
            to[i] = i % 4 == 3 ? from[i]
                    : alpha == 0
                        ? quint16(0)
                        : quint16(std::min<quint64>(65535, (from[i] * quint64{65535} + alpha / 2) / alpha));
        }
    }
    return straight;
}

class RasterWriter {
    Q_DECLARE_TR_FUNCTIONS(dabcanvas::dabpainter::RasterWriter)

public:
    explicit RasterWriter(QByteArray& bytes)
        : _buffer(&bytes), _zip((_buffer.open(QIODevice::WriteOnly), _buffer)) {}
    QString write(const LayeredPicture& picture);

private:
    bool addPng(const QString& name, const QImage& image);
    bool addLayer(const LayeredPicture& picture, std::size_t layer);

    QBuffer _buffer;
    ZipWriter _zip;
    RasterStack _stack;
    QString _fault;
};

bool RasterWriter::addPng(const QString& name, const QImage& image) {
    QByteArray bytes;
    _fault = encodePicture(straightened(image), name, bytes);
    return _fault.isEmpty() && _zip.add(name, bytes, ZipWriter::As::stored);
}

bool RasterWriter::addLayer(const LayeredPicture& picture, std::size_t layer) {
    const PictureLayer& from = picture.layers[layer];
    const QString name = QStringLiteral("data/layer%1.png").arg(layer, 3, 10, QLatin1Char('0'));
    QImage image = from.image;
    QPoint at = from.at;
    if (image.isNull()) {
        image = QImage(1, 1, QImage::Format_RGBA8888_Premultiplied);
        image.fill(Qt::transparent);
    } else {
        const QRect content = contentOf(image);
        at += content.topLeft();
        image = content == image.rect() ? image : image.copy(content);
    }
    _stack.layers.push_back({name, from.settings, at, int(layer) == picture.active});
    return addPng(name, image);
}

QString RasterWriter::write(const LayeredPicture& picture) {
    if (!hasZip())
        return tr("this dabpainter was built without QuaZip, which OpenRaster needs");
    _stack.size = picture.size;
    _stack.paper = picture.paper;
    bool isGood =
        _zip.add(QStringLiteral("mimetype"), QByteArrayLiteral("image/openraster"), ZipWriter::As::stored);
    for (std::size_t layer = 0; isGood && layer < picture.layers.size(); ++layer)
        isGood = addLayer(picture, layer);
    isGood = isGood && _zip.add(QStringLiteral("stack.xml"), writeStack(_stack), ZipWriter::As::packed) &&
             addPng(QStringLiteral("mergedimage.png"), picture.merged) &&
             addPng(QStringLiteral("Thumbnails/thumbnail.png"), thumbnailOf(picture.merged)) && _zip.finish();
    return isGood || !_fault.isEmpty() ? _fault : tr("there is no memory for the file");
}

}  // namespace

QString writeOpenRaster(const LayeredPicture& picture, QByteArray& bytes) {
    return RasterWriter(bytes).write(picture);
}

}  // namespace dabcanvas::dabpainter
