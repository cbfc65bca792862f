// SPDX-License-Identifier: MIT
#include <QBuffer>
#include <QImageReader>
#include <QtEndian>
#include <algorithm>

#include "Documents/ImageFiles.h"
#include "Documents/OpenRaster.h"
#include "Documents/OpenRasterStack.h"
#include "Documents/ZipFile.h"
#include "Window/Translations.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr qint64 kMostText = 4 << 20;             // bytes of stack.xml
constexpr qint64 kMostDecoded = qint64{1} << 30;  // pixels of all layers together
constexpr qint64 kHeader = 24;                    // bytes of a PNG file up to its height

// By a PNG file's first bytes; empty for any other.
QSize pngSize(const QByteArray& head) {
    if (head.size() < kHeader || !head.startsWith(QByteArrayLiteral("\x89PNG\r\n\x1a\n")))
        return {};
    const auto side = [&](qsizetype at) { return qFromBigEndian<quint32>(head.constData() + at); };
    const quint32 width = side(16), height = side(20);
    return width > kMostSide || height > kMostSide ? QSize(kMostSide + 1, 1) : QSize(int(width), int(height));
}

// As a canvas takes it; of 16 bits a channel, Qt's own conversion loses some.
QImage premultiplied(const QImage& image) {
    if (image.depth() <= 32)
        return image.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    QImage deep = image.convertToFormat(QImage::Format_RGBA64);
    for (int y = 0; y < deep.height(); ++y) {
        auto* row = reinterpret_cast<quint16*>(deep.scanLine(y));
        for (int i = 0; i < 4 * deep.width(); ++i) {
            if (i % 4 != 3)
                row[i] = quint16((row[i] * quint64{row[i | 3]} + 32767) / 65535);
        }
    }
    return deep.reinterpretAsFormat(QImage::Format_RGBA64_Premultiplied) ? deep : QImage();
}

class RasterReader {
    Q_DECLARE_TR_FUNCTIONS(dabcanvas::dabpainter::RasterReader)

public:
    explicit RasterReader(QIODevice& device) : _zip(device) {}

    ReadRaster read();
    QImage readPng(const QString& name);

private:
    bool readStackXml();
    bool readLayer(const StackedLayer& from);
    bool fail(const QString& what);

    ZipReader _zip;
    RasterStack _stack;
    ReadRaster _result;
    qint64 _decoded = 0;
};

bool RasterReader::fail(const QString& what) {
    _result.fault = what;
    return false;
}

// Null, and perhaps a fault of its own, where it is not to be had.
QImage RasterReader::readPng(const QString& name) {
    const QSize size = pngSize(_zip.head(name, kHeader));
    if (size.isEmpty())
        return {};
    if (const QString refusal = sizeRefusal(size.width(), size.height()); !refusal.isEmpty()) {
        fail(refusal);
        return {};
    }
    const qint64 pixels = qint64{size.width()} * size.height();
    _decoded += pixels;
    if (_decoded > kMostDecoded) {
        fail(tr("its layers have too many pixels together"));
        return {};
    }
    // Uncompressed, of 16 bits a channel, with room for what else is told of it.
    auto bytes = _zip.read(name, pixels * 9 + kMostText);
    if (!bytes)
        return {};
    QBuffer buffer(&*bytes);
    QImageReader reader(&buffer, "png");
    return reader.size() == size ? reader.read() : QImage();
}

bool RasterReader::readStackXml() {
    const auto kind = _zip.read(QStringLiteral("mimetype"), 64);
    const auto xml = _zip.read(QStringLiteral("stack.xml"), kMostText);
    if (!kind || kind->trimmed() != "image/openraster" || !xml)
        return fail(tr("it is no OpenRaster picture, or damaged"));
    _stack = readStack(*xml);
    if (!_stack.fault.isEmpty())
        return fail(_stack.fault);
    const QString refusal = sizeRefusal(_stack.size.width(), _stack.size.height());
    return refusal.isEmpty() || fail(refusal);
}

bool RasterReader::readLayer(const StackedLayer& from) {
    const QImage image = readPng(from.source);
    if (image.isNull())
        return fail(!_result.fault.isEmpty() ? _result.fault
                                             : tr("the picture of its layer \"%1\" is missing or damaged")
                                                   .arg(from.settings.name.left(64)));
    const QRect there = QRect(from.at, image.size()) & QRect(QPoint(), _stack.size);
    const QImage part = there.isEmpty() ? QImage() : premultiplied(image.copy(there.translated(-from.at)));
    if (part.isNull() && !there.isEmpty())
        return fail(tr("out of memory"));
    auto& layers = _result.picture.layers;
    if (from.isActive)
        _result.picture.active = int(layers.size());
    layers.push_back({from.settings, there.topLeft(), part});
    layers.back().image.setDevicePixelRatio(1);
    return true;
}

ReadRaster RasterReader::read() {
    if (!hasZip())
        fail(tr("this dabpainter was built without QuaZip, which OpenRaster needs"));
    else if (!_zip.isOpen())
        fail(tr("the archive is damaged"));
    else if (readStackXml()) {
        _result.picture.size = _stack.size;
        _result.picture.paper = _stack.paper;
        _result.picture.active = int(_stack.layers.size()) - 1;
        _result.warning = _stack.warning;
        static_cast<void>(std::all_of(_stack.layers.begin(), _stack.layers.end(),
                                      [this](const StackedLayer& layer) { return readLayer(layer); }));
    }
    return std::move(_result);
}

}  // namespace

ReadRaster readOpenRaster(QIODevice& device) {
    return RasterReader(device).read();
}

QImage readMerged(QIODevice& device) {
    return RasterReader(device).readPng(QStringLiteral("mergedimage.png"));
}

}  // namespace dabcanvas::dabpainter
