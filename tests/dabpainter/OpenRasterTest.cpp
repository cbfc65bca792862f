// SPDX-License-Identifier: MIT
// Pictures with layers in files: as they were, as other programs make them, and as somebody hostile does.
#include "Documents/OpenRaster.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QTemporaryDir>
#include <QtEndian>
#include <random>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"
#include "Documents/ImageFiles.h"
#include "Documents/ZipFile.h"
#include "support/Files.h"
#include "support/Limits.h"

namespace dabcanvas::dabpainter {
namespace {

constexpr std::uint32_t kModes[] = {ESBlendTypeNormal,   ESBlendTypeReplace, ESBlendTypeBehind,
                                    ESBlendTypeErase,    ESBlendTypeTarnish, ESBlendTypeBrightness,
                                    ESBlendTypeMultiply, ESBlendTypeReset};

// Every alpha with every colour that it can have, in 8 bits.
QImage everyPixel() {
    QImage image(256, 256, QImage::Format_RGBA8888_Premultiplied);
    for (int alpha = 0; alpha < 256; ++alpha) {
        for (int x = 0; x < 256; ++x) {
            const auto color = uchar(std::min(x, alpha));
            const uchar pixel[] = {color, uchar(alpha - color), uchar(color / 2), uchar(alpha)};
            std::copy_n(pixel, 4, image.scanLine(alpha) + 4 * x);
        }
    }
    return image;
}

QByteArray pngOf(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "png"));
    return bytes;
}

QByteArray filled(int width, int height, const QColor& color) {
    QImage image(width, height, QImage::Format_RGBA8888);
    image.fill(color);
    return pngOf(image);
}

ReadRaster readBytes(QByteArray bytes) {
    QBuffer buffer(&bytes);
    EXPECT_TRUE(buffer.open(QIODevice::ReadOnly));
    return readOpenRaster(buffer);
}

QByteArray archive(const QByteArray& stack, const QByteArray& png) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly));
    ZipWriter zip(buffer);
    EXPECT_TRUE(zip.add("mimetype", "image/openraster", ZipWriter::As::stored) &&
                zip.add("stack.xml", "<image w='8' h='6'>" + stack + "</image>", ZipWriter::As::packed) &&
                zip.add("a.png", png, ZipWriter::As::packed) && zip.finish());
    return bytes;
}

LayeredPicture pictureOfAllModes() {
    LayeredPicture picture;
    picture.size = {256, 256};
    picture.paper = QColor(250, 240, 230);
    picture.active = 3;
    picture.merged = everyPixel();
    for (const std::uint32_t mode : kModes) {
        const float opacity = 1 / (1 + 0.3f * float(mode));
        picture.layers.push_back(
            {{QString::fromUtf8("Früh <\"&'> %1").arg(mode), opacity, mode, mode != 6, mode == 7},
             {},
             everyPixel()});
    }
    picture.layers[1].image = {};
    picture.layers[2].image = everyPixel().copy(20, 90, 30, 5);
    picture.layers[2].at = {200, 30};
    return picture;
}

TEST(OpenRasterTest, OurOwnComeBackAsTheyWere) {
    const LayeredPicture before = pictureOfAllModes();
    QByteArray bytes;
    ASSERT_EQ(writeOpenRaster(before, bytes), QString());
    EXPECT_EQ(qFromLittleEndian<quint16>(bytes.constData() + 8), 0) << "it is stored";
    EXPECT_EQ(bytes.mid(30, 24), "mimetypeimage/openraster") << "at the place where its kind is looked for";
    const ReadRaster read = readBytes(bytes);
    ASSERT_EQ(read.fault, QString());
    EXPECT_EQ(read.warning, QString());
    const LayeredPicture& after = read.picture;
    EXPECT_EQ(after.size, before.size);
    EXPECT_EQ(after.paper, before.paper);
    EXPECT_EQ(after.active, before.active);
    ASSERT_EQ(after.layers.size(), before.layers.size());
    const auto one = QDDrawCanvas::initWithFrame(QRectF(0, 0, 256, 256), {.kind = SurfaceKind::processor});
    const auto other = QDDrawCanvas::initWithFrame(QRectF(0, 0, 256, 256), {.kind = SurfaceKind::processor});
    ASSERT_TRUE(showLayers(before, *one) && showLayers(after, *other));
    for (int layer = 0; layer < int(before.layers.size()); ++layer) {
        SCOPED_TRACE(layer);
        EXPECT_EQ(one->layers().settings(layer), before.layers[std::size_t(layer)].settings);
        EXPECT_EQ(one->layers().settings(layer), other->layers().settings(layer));
        EXPECT_EQ(one->layers().image(layer), other->layers().image(layer));
    }
    EXPECT_EQ(one->layers().image(0), everyPixel());
    EXPECT_EQ(one->layers().active(), other->layers().active());
    EXPECT_EQ(one->layers().flattened(), other->layers().flattened());

    LayeredPicture deep = before, again;
    deep.layers[0].image = everyPixel().convertToFormat(QImage::Format_RGBA64_Premultiplied);
    for (qsizetype i = 0; i < 256 * 256; ++i)  // what 8 bits do not have
        deep.layers[0].image.bits()[8 * i] /= 2;
    const auto whole = QDDrawCanvas::initWithFrame(QRectF(0, 0, 256, 256), {.canvasDepth = depthOf(deep)});
    ASSERT_TRUE(showLayers(deep, *whole) && readLayers(*whole, deep));
    QByteArray ofDeep;
    ASSERT_EQ(writeOpenRaster(deep, ofDeep), QString());
    again = readBytes(ofDeep).picture;
    ASSERT_EQ(depthOf(again), 16);
    EXPECT_EQ(again.layers[0].image,
              deep.layers[0].image.copy(QRect(again.layers[0].at, again.layers[0].image.size())));

    QBuffer buffer(&bytes);
    ASSERT_TRUE(buffer.open(QIODevice::ReadOnly));
    EXPECT_EQ(readMerged(buffer).convertToFormat(QImage::Format_RGBA8888_Premultiplied), before.merged);
    auto thumbnail = ZipReader(buffer).read("Thumbnails/thumbnail.png", 1 << 20);
    EXPECT_EQ(QImage::fromData(*thumbnail).size(), QSize(256, 256));
}

TEST(OpenRasterTest, OthersAreReadAsFarAsTheirLayersAreKnownHere) {
    const auto layer = [](const char* more) { return QByteArray("<layer src='a.png' ") + more + "/>"; };
    const ReadRaster read = readBytes(archive(
        "<stack opacity='0.5' x='1'>" + layer("name='top' opacity='0.5' composite-op='svg:multiply'") +
            "<stack visibility='hidden' y='-2'>" + layer("name='in' x='3' y='1'") + "</stack>" +
            layer("name='odd' composite-op='svg:hard-light' selected='true' opacity='nan'") +
            "<text/></stack>",
        filled(4, 3, Qt::red)));
    ASSERT_EQ(read.fault, QString());
    EXPECT_NE(read.warning, QString());
    const auto& layers = read.picture.layers;
    ASSERT_EQ(layers.size(), 3u);
    EXPECT_EQ(layers[0].settings, (LayerSettings{.name = "odd", .opacity = 0.5f}));
    EXPECT_EQ(layers[1].settings, (LayerSettings{.name = "in", .opacity = 0.5f, .isVisible = false}));
    EXPECT_EQ(layers[2].settings,
              (LayerSettings{.name = "top", .opacity = 0.25f, .blendType = ESBlendTypeMultiply}));
    EXPECT_EQ(read.picture.active, 0);
    EXPECT_EQ(layers[0].at, QPoint(1, 0));
    EXPECT_EQ(layers[1].at, QPoint(4, 0)) << "cut to the picture";
    EXPECT_EQ(layers[1].image.size(), QSize(4, 2));
}

// PNG's first chunk says one size, whatever follows.
QByteArray claiming(QByteArray png, quint32 width, quint32 height) {
    qToBigEndian(width, png.data() + 16);
    qToBigEndian(height, png.data() + 20);
    return png;
}

TEST(OpenRasterTest, WhatIsBrokenOrBeyondReasonIsRefusedInWords) {
    const QByteArray good = filled(8, 6, Qt::red), layer = "<stack><layer src='a.png'/></stack>";
    QByteArray bomb = good, many = "<stack>";
    bomb.append(256 << 20, '\0');
    for (int i = 0; i < 257; ++i)
        many += "<layer src='a.png'/>";
    QByteArray sum = archive(layer, good);
    sum[sum.indexOf("stack.xml") + 12] = char(sum.at(sum.indexOf("stack.xml") + 12) ^ 1);
    const struct {
        const char* name;
        QByteArray bytes;
        const char* fault;
    } rows[] = {
        {"missing", archive("<stack><layer src='b.png' name='Ink'/></stack>", good), "\"Ink\" is missing"},
        {"no picture", archive(layer, "none"), "missing or damaged"},
        {"cut short", archive(layer, good.left(60)), "missing or damaged"},
        {"unpacks to much", archive(layer, bomb), "missing or damaged"},
        {"huge picture", archive(layer, claiming(good, 4000000000u, 1)), "too large"},
        {"other size", archive(layer, claiming(good, 80, 60)), "missing or damaged"},
        {"many", archive(many + "</stack>", good), "more than 256"},
        {"path", archive("<stack><layer src='../../a.png'/></stack>", good), "outside of the archive"},
        {"absolute", archive("<stack><layer src='/etc/a.png'/></stack>", good), "outside of the archive"},
        {"far", archive("<stack><layer src='a.png' x='2000000000'/></stack>", good), "too far"},
        {"deep", archive(QByteArray("<stack>").repeated(100), good), "too deep"},
        {"none", archive("<stack/>", good), "no layers"},
        {"unclosed", archive("<stack><layer src='a.png'/>", good), "damaged"},
        {"size", archive("</image><image w='20000' h='1'>" + layer, good), "list of layers is damaged"},
        {"wrong sum", sum, "damaged"},
        {"no archive", "PK\x03\x04", "damaged"},
    };
    for (const auto& row : rows) {
        const QString fault = readBytes(row.bytes).fault;
        EXPECT_TRUE(fault.contains(row.fault)) << row.name << ": " << fault.toStdString();
    }
    constexpr qsizetype kEnd = 22;  // bytes of the last record, whose own end nobody needs
    const QByteArray whole = archive(layer, good);
    EXPECT_EQ(readBytes(whole).fault, QString());
    for (qsizetype size = 0; size <= whole.size() - kEnd; ++size)
        EXPECT_NE(readBytes(whole.left(size)).fault, QString()) << size;
}

TEST(OpenRasterTest, TheSuffixDecidesAndAFullDiskLeavesWhatWasThere) {
    const QTemporaryDir folder;
    const auto path = [&](const char* name) { return folder.filePath(QLatin1String(name)); };
    LayeredPicture picture = pictureOfAllModes();
    picture.paper = Qt::blue;
    for (const char* suffix : {"ora", "png", "webp", "JPG"}) {
        SCOPED_TRACE(suffix);
        const QString file = folder.filePath(QStringLiteral("a.") + suffix);
        ASSERT_EQ(writePictureFile(file, suffix, picture), QString());
        const ReadImage flat = readImageFile(file);
        ASSERT_EQ(flat.fault, QString());
        if (*suffix == 'J')
            EXPECT_NEAR(flat.image.pixelColor(128, 0).blue(), 255, 3) << "on its paper";
        else
            EXPECT_EQ(flat.image, picture.merged);
        const ReadPicture read = readPictureFile(file);
        EXPECT_EQ(read.fault, QString());
        EXPECT_EQ(read.picture.layers.size(), *suffix == 'o' ? 8u : 1u);
#ifdef Q_OS_UNIX
        const QByteArray before = contentOf(file);
        picture.layers.front().image.fill(Qt::red);
        const FullDisk full;
        EXPECT_TRUE(writePictureFile(file, suffix, picture).contains("cannot be saved"));
        EXPECT_EQ(contentOf(file), before);
#endif
    }
    EXPECT_TRUE(writePictureFile(path("a.xyz"), "xyz", picture).contains("no picture is written as .xyz"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 4);
}

}  // namespace
}  // namespace dabcanvas::dabpainter
