// SPDX-License-Identifier: MIT
#include "Preview/ImageBlur.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "support/Images.h"

namespace {

using dabcanvas::boxBlurred;
using dabcanvas::gaussianBlurred;

// Every window's mean by adding up all of its pixels.
QImage slowMeans(const QImage& image, int radius) {
    QImage means = image.copy();
    const int across = std::min(radius, image.width()), down = std::min(radius, image.height());
    const int count = (2 * across + 1) * (2 * down + 1);
    for (int i = 0; i < image.width() * image.height() * 4; ++i) {
        const int x = i / 4 % image.width(), y = i / 4 / image.width();
        int sum = count / 2;
        for (int dy = -down; dy <= down; ++dy) {
            const std::uint8_t* row = image.constScanLine(std::clamp(y + dy, 0, image.height() - 1));
            for (int dx = -across; dx <= across; ++dx) {
                sum += row[std::clamp(x + dx, 0, image.width() - 1) * 4 + i % 4];
            }
        }
        means.scanLine(y)[x * 4 + i % 4] = static_cast<std::uint8_t>(sum / count);
    }
    return means;
}

TEST(ImageBlurTest, BoxIsTheMeanOfItsWindow) {
    QImage image = patternImage(QSize(23, 9));
    fillRect(image, QRect(4, 2, 9, 4), QColor(200, 40, 90, 100));
    for (const auto& [radius, whole] : {std::pair{0.6f, 1}, {1.0f, 1}, {2.5f, 3}, {12.0f, 12}, {1e30f, 23}}) {
        SCOPED_TRACE(radius);
        EXPECT_TRUE(imagesMatch(boxBlurred(image, radius), slowMeans(image, whole)));
    }
}

TEST(ImageBlurTest, WithoutEffectThePictureStays) {
    const QImage image = patternImage(QSize(7, 5));
    const float infinity = std::numeric_limits<float>::infinity();
    for (const float radius : {0.0f, -3.0f, infinity, std::nanf("")}) {
        SCOPED_TRACE(radius);
        EXPECT_TRUE(imagesMatch(boxBlurred(image, radius), image));
        EXPECT_TRUE(imagesMatch(gaussianBlurred(image, radius), image));
    }
    EXPECT_TRUE(boxBlurred(QImage(), 3).isNull() && gaussianBlurred(QImage(), 3).isNull());
    const QImage plain = solidImage(QSize(9, 4), QColor(10, 20, 30, 40));
    EXPECT_TRUE(imagesMatch(gaussianBlurred(plain, 2.3f), plain));
}

TEST(ImageBlurTest, GaussianIsABell) {
    for (const float deviation : {0.4f, 1.0f, 3.7f, 9.0f}) {
        SCOPED_TRACE(deviation);
        // The edge of a half plane becomes the bell's integral, the same from both sides.
        QImage image = solidImage(QSize(80, 5));
        fillRect(image, QRect(40, 0, 40, 5), Qt::white);
        const QImage blurred = gaussianBlurred(image, deviation);
        for (int x = 0; x < 80; ++x) {
            const double exact = 127.5 * std::erfc((39.5 - x) / (deviation * std::sqrt(2.0)));
            EXPECT_NEAR(qAlpha(blurred.pixel(x, 2)), exact, deviation < 1 ? 8 : 4) << x;
        }
    }
}

}  // namespace
