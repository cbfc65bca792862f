// SPDX-License-Identifier: MIT
#include "support/Images.h"

#include <QDir>
#include <cstdlib>

QImage solidImage(const QSize& size, const QColor& color) {
    QImage image(size, QImage::Format_RGBA8888_Premultiplied);
    image.fill(color);
    return image;
}

void fillRect(QImage& image, const QRect& rect, const QColor& color) {
    const QRect inside = rect.intersected(image.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            image.setPixelColor(x, y, color);
        }
    }
}

QImage patternImage(const QSize& size, int seed) {
    QImage image(size, QImage::Format_RGBA8888_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, qRgba(x % 251, y % 241, seed, 255));
        }
    }
    return image;
}

QRect painted(const QImage& image) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}

::testing::AssertionResult imagesMatch(const QImage& actual, const QImage& expected, int tolerance) {
    const auto fail = [&] {
        const auto* const test = ::testing::UnitTest::GetInstance()->current_test_info();
        QString name = QStringLiteral("%1.%2").arg(test->test_suite_name(), test->name());
        name.replace(QLatin1Char('/'), QLatin1Char('_'));
        const QDir folder(QDir::temp().filePath(QStringLiteral("dabcanvas-failures")));
        folder.mkpath(QStringLiteral("."));
        actual.save(folder.filePath(name + QStringLiteral("-actual.png")));
        expected.save(folder.filePath(name + QStringLiteral("-expected.png")));
        return ::testing::AssertionFailure()
               << "images written to " << qPrintable(folder.filePath(name)) << "-*.png; ";
    };
    if (actual.size() != expected.size()) {
        return fail() << "sizes " << actual.width() << " x " << actual.height() << " and " << expected.width()
                      << " x " << expected.height();
    }
    const QImage a = actual.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    const QImage b = expected.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    for (int y = 0; y < a.height(); ++y) {
        const uchar* const left = a.constScanLine(y);
        const uchar* const right = b.constScanLine(y);
        for (int i = 0; i < a.width() * 4; ++i) {
            if (std::abs(left[i] - right[i]) > tolerance) {
                return fail() << "pixel (" << i / 4 << ", " << y << ") channel " << i % 4 << " is "
                              << int{left[i]} << ", expected " << int{right[i]};
            }
        }
    }
    return ::testing::AssertionSuccess();
}
