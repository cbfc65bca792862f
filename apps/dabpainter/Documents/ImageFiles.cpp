// SPDX-License-Identifier: MIT
#include "Documents/ImageFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>

#include "Documents/OpenRaster.h"
#include "Documents/ZipFile.h"
#include "OutputFile.h"
#include "PictureKinds.h"
#include "WebpPicture.h"
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

namespace {

constexpr int kJpegQuality = 95;

// Of any kind that this program reads.
class PictureFile {
    Q_DECLARE_TR_FUNCTIONS(dabcanvas::dabpainter::PictureFile)

public:
    explicit PictureFile(const QString& path) : _file(path) {}
    // False where there is none; then fault() says why.
    bool open();
    bool isRaster() { return isZip(_file.peek(4)); }
    QFile& device() { return _file; }

    QImage readImage();
    bool isPart() const { return _isPart; }
    const QString& fault() const { return _fault; }
    bool fail(const QString& why);

private:
    bool hasGoodSize(const QSize& size);
    QImage readByQt();
    QImage readWebp();

    QFile _file;
    QString _fault;
    bool _isPart = false;
};

bool PictureFile::fail(const QString& why) {
    _fault = tr("\"%1\" cannot be opened: %2.").arg(shown(_file.fileName()), why);
    return false;
}

bool PictureFile::open() {
    const QFileInfo info(_file);
    if (!info.exists())
        return fail(tr("there is no such file"));
    if (!info.isFile())
        return fail(tr("it is not a file"));
    // Qt's own limit is below that of a canvas.
    QImageReader::setAllocationLimit(int(kMostPixels * 8 / (1024 * 1024)) + 1);
    return (info.isReadable() && _file.open(QIODevice::ReadOnly)) || fail(tr("permission denied"));
}

bool PictureFile::hasGoodSize(const QSize& size) {
    const QString refusal = sizeRefusal(size.width(), size.height());
    return refusal.isEmpty() || fail(refusal);
}

QImage PictureFile::readWebp() {
    const QByteArray bytes = _file.readAll();
    const QSize size = webpSize(bytes);
    if (!size.isValid())
        fail(tr("it is not an image of a known kind"));
    else if (hasGoodSize(size)) {
        const QImage image = decodeWebp(bytes);
        if (!image.isNull())
            return image;
        fail(tr("it is damaged"));
    }
    return {};
}

QImage PictureFile::readByQt() {
    QImageReader reader(&_file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!reader.canRead()) {
        _file.seek(0);
        return readWebp();
    }
    const QSize size = reader.size();
    if (size.isValid() && !hasGoodSize(size))
        return {};
    _isPart = reader.imageCount() > 1;
    const QImage image = reader.read();
    if (image.isNull())
        fail(tr("it is damaged (%1)").arg(reader.errorString()));
    return image;
}

QImage PictureFile::readImage() {
    const QImage image = isRaster() ? readMerged(_file) : readByQt();
    if (image.isNull() && _fault.isEmpty())
        fail(tr("it is damaged"));
    if (image.isNull() || !hasGoodSize(image.size()))
        return {};
    QImage converted = image.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    converted.setDevicePixelRatio(1);  // a "@2x" in the name must not halve it
    if (converted.isNull())
        fail(tr("out of memory"));
    return converted;
}

bool isRasterName(const QString& path) {
    return QFileInfo(path).suffix().compare(QLatin1String("ora"), Qt::CaseInsensitive) == 0;
}

}  // namespace

ReadImage readImageFile(const QString& path) {
    PictureFile file(path);
    const QImage image = file.open() ? file.readImage() : QImage();
    return {image, file.fault()};
}

ReadPicture readPictureFile(const QString& path) {
    PictureFile file(path);
    ReadPicture read;
    if (file.open() && file.isRaster()) {
        ReadRaster raster = readOpenRaster(file.device());
        if (!raster.fault.isEmpty())
            file.fail(raster.fault);
        read.picture = std::move(raster.picture);
        read.warning = raster.warning;
    } else if (file.fault().isEmpty()) {
        const QImage image = file.readImage();
        read.isPart = file.isPart();
        read.picture.size = image.size();
        read.picture.layers.push_back({{}, {}, image});
    }
    read.fault = file.fault();
    return read;
}

bool keepsLayers(const QString& path) {
    return hasZip() && isRasterName(path);
}

QStringList savedSuffixes() {
    QStringList suffixes = writtenPictureSuffixes();
    for (const char* suffix : {"webp", "jpg", "png"}) {  // what painters look for stands first
        if (suffixes.removeOne(QLatin1String(suffix)))
            suffixes.prepend(QLatin1String(suffix));
    }
    if (hasZip())
        suffixes.prepend(QStringLiteral("ora"));
    return suffixes;
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

QString writePictureFile(const QString& path, const QString& suffix, const LayeredPicture& picture) {
    const auto failed = [&](const QString& why) {
        return tr("\"%1\" cannot be saved: %2.").arg(shown(path), why);
    };
    const QString kind = QLatin1Char('.') + suffix.toLower();
    if (picture.merged.isNull())
        return failed(tr("the canvas cannot be read"));
    if (!keepsLayers(kind) && !pictureKindRefusal(kind).isEmpty())
        return failed(tr("no picture is written as %1; the kinds are %2")
                          .arg(kind, savedSuffixes().join(QStringLiteral(", "))));
    QByteArray bytes;
    const QColor ground = picture.paper.alpha() == 255 ? picture.paper : QColor(Qt::white);
    const QString wrong = keepsLayers(kind)
                              ? writeOpenRaster(picture, bytes)
                              : encodePicture(picture.merged, kind, bytes, ground, kJpegQuality);
    if (!wrong.isEmpty())
        return failed(wrong);
    OutputFile file(path);
    return file.write(bytes) ? QString() : failed(file.errorString());
}

}  // namespace dabcanvas::dabpainter
