// SPDX-License-Identifier: MIT
#include "ESRender/Utilities/ESGLTexture.h"

#include "ESRender/Utilities/ESGLErrors.h"

namespace dabcanvas {
namespace {
constexpr char kFile[] = "SRC_New/ESRender/Utilities/ESGLTexture";
}

int maxTextureSize() {
    GLint size = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &size);
    return size;
}

void clearTexture(GLuint texture) {
    GLint drawBefore = 0;
    GLboolean maskBefore[4] = {};
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &drawBefore);
    glGetBooleanv(GL_COLOR_WRITEMASK, maskBefore);
    const GLboolean scissorBefore = glIsEnabled(GL_SCISSOR_TEST);

    GLuint framebuffer = 0;
    glGenFramebuffers(1, &framebuffer);
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, framebuffer);
    glFramebufferTexture2D(GL_DRAW_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, texture, 0);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    glDisable(GL_SCISSOR_TEST);
    constexpr GLfloat kTransparent[4] = {};
    glClearBufferfv(GL_COLOR, 0, kTransparent);

    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, static_cast<GLuint>(drawBefore));
    glDeleteFramebuffers(1, &framebuffer);
    glColorMask(maskBefore[0], maskBefore[1], maskBefore[2], maskBefore[3]);
    if (scissorBefore) {
        glEnable(GL_SCISSOR_TEST);
    }
}

GLuint makeClearedTexture(const QSize& size, GLenum minFilter, int depth) {
    const int limit = maxTextureSize();
    if (size.width() < 1 || size.height() < 1 || size.width() > limit || size.height() > limit) {
        qCWarning(lcDabcanvasGL, "A texture of %d x %d pixels is not possible here, at most %d x %d",
                  size.width(), size.height(), limit, limit);
        return 0;
    }
    drainGLErrors(kFile, __LINE__);  // what is found below must be this texture's
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, static_cast<GLint>(minFilter));
    glTexImage2D(GL_TEXTURE_2D, 0, depth > 8 ? GL_RGBA16 : GL_RGBA8, size.width(), size.height(), 0, GL_RGBA,
                 GL_UNSIGNED_BYTE, nullptr);
    if (drainGLErrors(kFile, __LINE__) > 0) {
        glBindTexture(GL_TEXTURE_2D, 0);
        glDeleteTextures(1, &texture);
        return 0;
    }
    clearTexture(texture);
    return texture;
}

bool copyFramebufferToTexture(const QRect& rect, const QSize& bounds) {
    const QRect inside = rect.intersected(QRect(QPoint(0, 0), bounds));
    if (rect.isEmpty() || inside.isEmpty()) {  // QRect turns an inverted rectangle round before it intersects
        return false;
    }
    glCopyTexSubImage2D(GL_TEXTURE_2D, 0, inside.x(), inside.y(), inside.x(), inside.y(), inside.width(),
                        inside.height());
    return true;
}

void copyRowsToTexture(const QImage& rows, const QPoint& place) {
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glPixelStorei(GL_UNPACK_ROW_LENGTH, static_cast<GLint>(rows.bytesPerLine() * 8 / rows.depth()));
    glTexSubImage2D(GL_TEXTURE_2D, 0, place.x(), place.y(), rows.width(), rows.height(), GL_RGBA,
                    rows.depth() > 32 ? GL_UNSIGNED_SHORT : GL_UNSIGNED_BYTE, rows.constBits());
    glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);  // as all other uploads take it to be
}

}  // namespace dabcanvas
