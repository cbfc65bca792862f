// SPDX-License-Identifier: MIT
#include "support/GLTest.h"

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
    prepare();
}

GLTest::~GLTest() {
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
