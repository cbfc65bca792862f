// SPDX-License-Identifier: MIT
#include "ESRender/Texture/PaperTexture.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "ESRender/Texture/LevelTexture.h"
#include "ESRender/Utilities/ESGLErrors.h"

namespace dabcanvas {

std::unique_ptr<PaperTexture> PaperTexture::make(const Picture& picture) {
    if (picture.pixels.isNull()) {
        return nullptr;
    }
    try {
        std::unique_ptr<PaperTexture> paper(new PaperTexture);
        std::vector<Pixels>& levels = paper->_levels = paperImageOf(picture).grain;
        paper->_whole = makeLevelTexture(levels.front().size, 1, 1, GL_REPEAT);
        if (paper->_whole == 0) {
            return nullptr;
        }
        uploadLevel(levels.front(), 0, 0, 0);
        const std::size_t first = levels.size() > 1 ? 1 : 0;
        paper->_reduced =
            makeLevelTexture(levels[first].size, 1, static_cast<int>(levels.size() - first), GL_REPEAT);
        if (paper->_reduced == 0) {
            return nullptr;
        }
        for (std::size_t level = first; level < levels.size(); ++level) {
            uploadLevel(levels[level], 0, 0, static_cast<GLint>(level - first));
        }
        for (Pixels& level : levels) {
            level.bytes = {};
        }
        return paper;
    } catch (const std::bad_alloc&) {
        qCWarning(lcDabcanvasGL, "there is no memory for a paper");
        return nullptr;
    }
}

PaperTexture::~PaperTexture() {
    for (const GLuint texture : {_whole, _reduced}) {
        if (texture != 0) {
            glDeleteTextures(1, &texture);
        }
    }
}

void PaperTexture::bind(GLenum whole, GLenum reduced) const {
    glActiveTexture(reduced);
    glBindTexture(GL_TEXTURE_2D, _reduced);
    glActiveTexture(whole);
    glBindTexture(GL_TEXTURE_2D, _whole);
}

PaperTexture::Reading PaperTexture::readingAt(float tileWidth, float tileHeight) const {
    const Size& size = _levels.front().size;
    const float texelsAPixel =
        std::max(static_cast<float>(size.width) / tileWidth, static_cast<float>(size.height) / tileHeight);
    const LevelPair pair = levelPairAt(_levels, std::max(std::log2(texelsAPixel), 0.0f));
    return pair.first == 0 ? Reading{pair.part, 0}
                           : Reading{1, static_cast<float>(pair.first - 1) + pair.part};
}

}  // namespace dabcanvas
