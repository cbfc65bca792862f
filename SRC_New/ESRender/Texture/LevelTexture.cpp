// SPDX-License-Identifier: MIT
#include "ESRender/Texture/LevelTexture.h"

#include <algorithm>
#include <vector>

#include "ESRender/Utilities/ESGLErrors.h"

namespace dabcanvas {
namespace {

constexpr char kFile[] = "SRC_New/ESRender/Texture/LevelTexture";

}  // namespace

GLuint makeLevelTexture(const Size& size, int channels, int levels, GLint wrap) {
    drainGLErrors(kFile, __LINE__);  // what is found below must be this texture's
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, wrap);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, wrap);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, levels > 1 ? GL_LINEAR_MIPMAP_LINEAR : GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAX_LEVEL, levels - 1);
    for (int level = 0; level < levels; ++level) {
        glTexImage2D(GL_TEXTURE_2D, level, channels == 1 ? GL_R16 : GL_RGBA16,
                     std::max(size.width >> level, 1), std::max(size.height >> level, 1), 0,
                     channels == 1 ? GL_RED : GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    }
    if (takeGLErrors() > 0) {
        glBindTexture(GL_TEXTURE_2D, 0);
        glDeleteTextures(1, &texture);
        return 0;
    }
    return texture;
}

void uploadLevel(const Pixels& level, int x, int y, GLint mip) {
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    std::vector<GLushort> wide(level.bytes.size());
    std::transform(level.bytes.begin(), level.bytes.end(), wide.begin(),
                   [](std::uint8_t byte) { return static_cast<GLushort>(byte * 257); });
    glTexSubImage2D(GL_TEXTURE_2D, mip, x, y, level.size.width, level.size.height,
                    level.channels == 1 ? GL_RED : GL_RGBA, GL_UNSIGNED_SHORT, wide.data());
}

}  // namespace dabcanvas
