// SPDX-License-Identifier: MIT
#include "Brushes/ImageData.h"

#include <QTemporaryDir>
#include <algorithm>

#include "support/Files.h"
#include "support/Images.h"

namespace {

// Every premultiplied pair of alpha and colour, once.
QImage everyPremultipliedPair() {
    QImage image(256, 256, QImage::Format_RGBA8888_Premultiplied);
    for (int alpha = 0; alpha < 256; ++alpha) {
        uchar* pixel = image.scanLine(alpha);
        for (int x = 0; x < 256; ++x, pixel += 4) {
            pixel[0] = static_cast<uchar>(std::min(x, alpha));
            pixel[1] = static_cast<uchar>(alpha - std::min(x, alpha));
            pixel[2] = 0;
            pixel[3] = static_cast<uchar>(alpha);
        }
    }
    return image;
}

TEST(ImageData, JpegShowsTransparentPartsAsWhitePaper) {
    const QByteArray data = dataOfJPEGFile(solidImage({16, 16}));
    ASSERT_TRUE(data.startsWith("\xFF\xD8"));
    const QImage back = imageWithData(data);
    ASSERT_EQ(back.size(), QSize(16, 16));
    EXPECT_GE(qGray(back.pixel(8, 8)), 253);
    EXPECT_EQ(qAlpha(back.pixel(8, 8)), 255);
}

TEST(ImageData, PngKeepsEveryPixelAndAFileIsReadByContentAtItsPixelSize) {
    const QTemporaryDir folder;
    const QImage image = everyPremultipliedPair();
    const QByteArray data = dataOfPNGFile(image);
    EXPECT_TRUE(data.startsWith("\x89PNG"));
    EXPECT_EQ(imageWithData(data), image);
    const QImage back = imageWithContentsOfFile(writtenTo(folder.filePath("柔角@2x.jpg"), data));
    EXPECT_EQ(back, image);
    EXPECT_EQ(back.devicePixelRatio(), 1.0);
}

TEST(ImageData, FailureIsANullImageOrEmptyData) {
    const QByteArray png = dataOfPNGFile(everyPremultipliedPair());
    EXPECT_TRUE(imageWithData({}).isNull());
    EXPECT_TRUE(imageWithData("neither PNG nor JPEG").isNull());
    EXPECT_TRUE(imageWithData(png.left(20)).isNull());
    EXPECT_TRUE(imageWithContentsOfFile("no/such/file.png").isNull());
    EXPECT_TRUE(dataOfPNGFile({}).isEmpty());
    EXPECT_TRUE(dataOfJPEGFile({}).isEmpty());
    EXPECT_TRUE(dataOfImageType(everyPremultipliedPair(), "no such format").isEmpty());
}

}  // namespace
