// SPDX-License-Identifier: MIT
// A canvas to paint on, headless, and what tests ask of its pixels.
#pragma once

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <memory>
#include <ostream>

#include "ESRender/Utilities/ESGLErrors.h"
#include "LineProcess/LPRandom.h"
#include "QDEAGLView/QDDrawCanvas.h"

class CanvasTest : public ::testing::Test {
protected:
    // Call first. Without GL the test is skipped, or fails where GL is required.
    std::unique_ptr<QDDrawCanvas> makeCanvas(int width = 200, int height = 150) {
        auto canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, width, height));
        if (!canvas) {
            ADD_FAILURE() << "no canvas could be made";
            std::abort();
        }
        canvas->setRepeatableRandom(true);
        lpRandom();  // seeds from the clock once
        srand(1);
        srand48(1);
        return canvas;
    }

    void SetUp() override { _errors = dabcanvas::drainedGLErrors(); }
    void TearDown() override { EXPECT_EQ(dabcanvas::drainedGLErrors(), _errors) << "GL errors were logged"; }

private:
    std::uint64_t _errors = 0;
};

// A wavy stroke across the canvas; online as the caller likes, with a look at the canvas after every move if
// wanted.
inline void paintWave(QDDrawCanvas& canvas, double y = 75, int moves = 30,
                      const std::function<void(int)>& afterMove = {}) {
    const QSizeF size = canvas.bufferSize();
    const auto at = [&](int i) {
        return QPointF(20 + (size.width() - 40) * i / moves, y + 25 * std::sin(i * 0.35));
    };
    const auto pressure = [&](int i) {
        return 0.2f + 0.7f * static_cast<float>(std::sin(3.14159 * i / moves));
    };
    canvas.drawingWithBeginPoint(at(0), pressure(0), 0.2f);
    for (int i = 1; i < moves; ++i) {
        canvas.drawingWithMoveToPoint(at(i), pressure(i), 0.2f);
        if (afterMove) {
            afterMove(i);
        }
    }
    canvas.drawingWithEndPoint(at(moves), pressure(moves), 0.2f);
}

// Same size and same bytes; says where they first differ and writes both out.
inline ::testing::AssertionResult SamePixels(const QImage& actual, const QImage& expected) {
    if (actual.size() != expected.size()) {
        return ::testing::AssertionFailure() << "sizes differ: " << actual.width() << " x " << actual.height()
                                             << " and " << expected.width() << " x " << expected.height();
    }
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            const QColor a = actual.pixelColor(x, y);
            const QColor b = expected.pixelColor(x, y);
            if (a != b) {
                const std::string name = ::testing::UnitTest::GetInstance()->current_test_info()->name();
                const QString stem = QString::fromStdString(name).replace(QLatin1Char('/'), QLatin1Char('-'));
                actual.save(stem + QStringLiteral("-actual.png"));
                expected.save(stem + QStringLiteral("-expected.png"));
                return ::testing::AssertionFailure()
                       << "at (" << x << ", " << y << "): " << a.name(QColor::HexArgb).toStdString()
                       << ", expected " << b.name(QColor::HexArgb).toStdString();
            }
        }
    }
    return ::testing::AssertionSuccess();
}

// The smallest rectangle around every pixel that is not this colour.
inline QRect painted(const QImage& image, const QColor& ground = Qt::transparent) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != ground) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}
