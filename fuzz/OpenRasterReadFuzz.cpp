// SPDX-License-Identifier: MIT
// Any bytes, read as an OpenRaster picture; those that are no archive, as the list of layers of one. What is refused has a
// reason. What is read fits its picture, and is the same again when it was written.
#include <QBuffer>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "Documents/ImageFiles.h"
#include "Documents/OpenRaster.h"
#include "Documents/ZipFile.h"

using namespace dabcanvas;
using namespace dabcanvas::dabpainter;

namespace {

constexpr qint64 kMostWritten = 1 << 18;  // pixels, as encoding is slow

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "OpenRasterReadFuzz: %s\n", what);
    std::abort();
}

QByteArray archiveOf(const QByteArray& stack) {
    QByteArray bytes, png;
    QImage image(3, 2, QImage::Format_RGBA8888);
    image.fill(Qt::red);
    QBuffer pixels(&png), buffer(&bytes);
    pixels.open(QIODevice::WriteOnly);
    image.save(&pixels, "png");
    buffer.open(QIODevice::WriteOnly);
    ZipWriter zip(buffer);
    zip.add(QStringLiteral("mimetype"), "image/openraster", ZipWriter::As::stored);
    zip.add(QStringLiteral("stack.xml"), stack, ZipWriter::As::stored);
    zip.add(QStringLiteral("a.png"), png, ZipWriter::As::stored);
    if (!zip.finish())
        fail("no archive could be made");
    return bytes;
}

ReadRaster readBytes(QByteArray bytes) {
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    readMerged(buffer);
    return readOpenRaster(buffer);
}

void check(const LayeredPicture& picture) {
    const QRect whole(QPoint(), picture.size);
    if (!sizeRefusal(whole.width(), whole.height()).isEmpty() || picture.layers.empty() ||
        picture.active < 0 || picture.active >= int(picture.layers.size()))
        fail("a picture that no canvas could show");
    for (const PictureLayer& layer : picture.layers) {
        if (!(layer.settings.opacity >= 0 && layer.settings.opacity <= 1))
            fail("an opacity that is none");
        if (!layer.image.isNull() && !whole.contains(QRect(layer.at, layer.image.size())))
            fail("a layer that does not fit");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    ReadRaster read = readBytes(isZip(bytes) ? bytes : archiveOf(bytes));
    if (!read.fault.isEmpty())
        return 0;
    LayeredPicture& picture = read.picture;
    check(picture);
    if (qint64{picture.size.width()} * picture.size.height() > kMostWritten)
        return 0;
    picture.merged = QImage(picture.size, QImage::Format_RGBA8888_Premultiplied);
    picture.merged.fill(Qt::transparent);
    QByteArray written;
    if (!writeOpenRaster(picture, written).isEmpty())
        fail("it cannot be written");
    const ReadRaster again = readBytes(written);
    if (!again.fault.isEmpty() || again.picture.layers.size() != picture.layers.size() ||
        again.picture.active != picture.active)
        fail("it is another one when it was written");
    for (std::size_t i = 0; i < picture.layers.size(); ++i) {
        LayerSettings before = picture.layers[i].settings;
        before.name = again.picture.layers[i].settings.name;  // which may have had what no XML can
        if (!(again.picture.layers[i].settings == before))
            fail("what a layer is was lost");
    }
    return 0;
}
