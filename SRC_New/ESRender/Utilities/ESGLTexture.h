// SPDX-License-Identifier: MIT
// What every owner of a texture needs: power-of-two sides, and storage without undefined contents.
#pragma once

#include <epoxy/gl.h>

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>

// The smallest power of two not below n.
// Deliberate: only bits 0 to 19 of n are looked at, so 0 gives 1 and sides of 2^20 or more come out wrong.
constexpr int ExponentialWithInter(int n) {
    const unsigned bits = static_cast<unsigned>(n) & 0xFFFFFu;
    unsigned power = 1;
    while (power < bits) {
        power <<= 1;
    }
    return static_cast<int>(power);
}

namespace dabcanvas {

// GL_MAX_TEXTURE_SIZE of the current context.
int maxTextureSize();

// Makes `texture` transparent all over. It must have storage at level 0; leaves all bindings as they were.
void clearTexture(GLuint texture);

// Makes a texture of the given sides on the active unit and leaves it bound: clamped, GL_LINEAR
// magnification, the given minification, 8 or 16 bits a channel, all transparent. The caller owns the name; 0 when the
// driver has no room.
GLuint makeClearedTexture(const QSize& size, GLenum minFilter, int depth = 8);

// Copies `rect` (bottom-up rows) of the read framebuffer to the same place of the bound texture.
// Parts outside `bounds` have no defined pixels and are left out. False when nothing was left to copy.
bool copyFramebufferToTexture(const QRect& rect, const QSize& bounds);

// Copies the rows of a Format_RGBA8888_Premultiplied or Format_RGBA64_Premultiplied image to a place of the bound
// texture, the first one lowest.
void copyRowsToTexture(const QImage& rows, const QPoint& place);

}  // namespace dabcanvas
