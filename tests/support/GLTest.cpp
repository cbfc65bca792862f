// SPDX-License-Identifier: MIT
#include "support/GLTest.h"

#include <QDir>
#include <cstdlib>

#include "ESRender/Utilities/ESGLErrors.h"

void GLTest::SetUp() {
    _context = ESContext::init();
    if (!_context) {
        if (qEnvironmentVariableIsSet("DABCANVAS_REQUIRE_GL")) {
            FAIL() << "this run is meant to have OpenGL, but there is none";
        }
        GTEST_SKIP() << "no OpenGL here";
    }
    _current.emplace(*_context);
    ASSERT_TRUE(*_current);
    _errorsBefore = dabcanvas::drainedGLErrors();
}

void GLTest::TearDown() {
    if (!_context) {
        return;
    }
    EXPECT_EQ(dabcanvas::drainedGLErrors() - _errorsBefore, _expectedErrors) << "errors drained on the way";
    EXPECT_EQ(drainGLErrors("tests", __LINE__), 0) << "errors pending at the end";
    _context->destoryBuffer();
    _current.reset();
    _context.reset();
}

void GLTest::fill(const QRect& rect, const QColor& premultiplied, int bufferHeight) {
    const float color[] = {premultiplied.redF(), premultiplied.greenF(), premultiplied.blueF(),
                           premultiplied.alphaF()};
    glEnable(GL_SCISSOR_TEST);
    glScissor(rect.x(), bufferHeight - rect.y() - rect.height(), rect.width(), rect.height());
    glClearBufferfv(GL_COLOR, 0, color);
    glDisable(GL_SCISSOR_TEST);
}

QImage GLTest::readTexture(GLuint texture, int level) {
    GLint width = 0;
    GLint height = 0;
    glBindTexture(GL_TEXTURE_2D, texture);
    glGetTexLevelParameteriv(GL_TEXTURE_2D, level, GL_TEXTURE_WIDTH, &width);
    glGetTexLevelParameteriv(GL_TEXTURE_2D, level, GL_TEXTURE_HEIGHT, &height);
    QImage image(width, height, QImage::Format_RGBA8888_Premultiplied);
    if (!image.isNull()) {
        glGetTexImage(GL_TEXTURE_2D, level, GL_RGBA, GL_UNSIGNED_BYTE, image.bits());
    }
    glBindTexture(GL_TEXTURE_2D, 0);
    return image;
}

QImage GLTest::patternImage(const QSize& size, int seed) {
    QImage image(size, QImage::Format_RGBA8888_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, qRgba(x % 251, y % 241, seed, 255));
        }
    }
    return image;
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
