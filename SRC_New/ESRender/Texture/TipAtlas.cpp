// SPDX-License-Identifier: MIT
#include "ESRender/Texture/TipAtlas.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "Dabs/TipImage.h"
#include "ESRender/Texture/LevelTexture.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "ESRender/Utilities/ESGLTexture.h"

namespace dabcanvas {
namespace {

constexpr int kRim = 1;

// The level itself below, in a frame of the texels at its edges.
Pixels rimmed(const Pixels& level) {
    Pixels framed{{level.size.width + 2 * kRim, level.size.height + 2 * kRim}, level.channels, {}};
    const auto channels = static_cast<std::size_t>(level.channels);
    framed.bytes.resize(static_cast<std::size_t>(framed.size.width) *
                        static_cast<std::size_t>(framed.size.height) * channels);
    for (int y = 0; y < framed.size.height; ++y) {
        const int row = std::clamp(y - kRim, 0, level.size.height - 1);
        for (int x = 0; x < framed.size.width; ++x) {
            std::copy_n(level.at(std::clamp(x - kRim, 0, level.size.width - 1), row), channels,
                        framed.at(x, y));
        }
    }
    return framed;
}

// The first level, and below it the others side by side; from where the tip's block begins.
Size arrangeLevels(const std::vector<Pixels>& levels, std::vector<Rect>& texels) {
    Size block{0, 0};
    int left = 0, top = 0;
    for (const Pixels& level : levels) {
        texels.push_back({left + kRim, top + kRim, level.size.width, level.size.height});
        const int right = left + level.size.width + 2 * kRim;
        block.width = std::max(block.width, right);
        block.height = std::max(block.height, top + level.size.height + 2 * kRim);
        left = top == 0 ? 0 : right;
        top = top == 0 ? block.height : top;
    }
    return block;
}

}  // namespace

std::unique_ptr<TipAtlas> TipAtlas::make(const TipSet& tips, bool withColour) {
    const int limit = maxTextureSize();
    try {
        for (int most = mostTipSide(tips.size()); most > 0; most /= 2) {
            std::unique_ptr<TipAtlas> atlas(new TipAtlas(withColour));
            for (std::size_t i = 0; i < std::min(tips.size(), kMostTips); ++i) {
                TipImage tip = tipImageOf(tips[i], most, withColour);
                atlas->_tips.push_back({std::move(withColour ? tip.colour : tip.alpha), {}, {}});
            }
            atlas->_tips.resize(tipCells(static_cast<unsigned>(atlas->_tips.size())));
            const Size size = atlas->arrange();
            if (std::max(size.width, size.height) <= limit) {
                return atlas->upload(size) ? std::move(atlas) : nullptr;
            }
        }
    } catch (const std::bad_alloc&) {
    }
    qCWarning(lcDabcanvasGL, "there is no memory for the tips of a brush");
    return nullptr;
}

TipAtlas::~TipAtlas() {
    if (_texture != 0) {
        glDeleteTextures(1, &_texture);
    }
}

void TipAtlas::bind(GLenum unit) const {
    glActiveTexture(unit);
    glBindTexture(GL_TEXTURE_2D, _texture);
}

// In rows of as many tips as there are rows.
Size TipAtlas::arrange() {
    const auto columns = static_cast<std::size_t>(std::lround(std::sqrt(_tips.size())));
    Size size{1, 1};
    int left = 0, top = 0, bottom = 0;
    for (std::size_t i = 0; i < _tips.size(); ++i) {
        if (i % columns == 0) {
            left = 0;
            top = bottom;
        }
        const Size block = arrangeLevels(_tips[i].levels, _tips[i].texels);
        for (Rect& texels : _tips[i].texels) {
            texels.x += left;
            texels.y += top;
        }
        left += block.width;
        bottom = std::max(bottom, top + block.height);
        size = {std::max(size.width, left), std::max(size.height, bottom)};
    }
    return size;
}

bool TipAtlas::upload(const Size& size) {
    _texture = makeLevelTexture(size, _withColour ? 4 : 1, 1, GL_CLAMP_TO_EDGE);
    if (_texture == 0) {
        return false;
    }
    const auto width = static_cast<float>(size.width), height = static_cast<float>(size.height);
    for (Tip& tip : _tips) {
        for (std::size_t i = 0; i < tip.levels.size(); ++i) {
            const Rect& at = tip.texels[i];
            uploadLevel(rimmed(tip.levels[i]), at.x - kRim, at.y - kRim, 0);
            tip.places.push_back({static_cast<float>(at.x) / width, static_cast<float>(at.y) / height,
                                  static_cast<float>(at.width) / width,
                                  static_cast<float>(at.height) / height});
            tip.levels[i].bytes = {};
        }
    }
    return true;
}

const Size* TipAtlas::sizeOf(std::uint32_t tip) const {
    const std::vector<Pixels>& levels = at(tip).levels;
    return levels.empty() ? nullptr : &levels.front().size;
}

TipAtlas::Reading TipAtlas::readingAt(std::uint32_t tip, float detail) const {
    const Tip& of = at(tip);
    const LevelPair pair = levelPairAt(of.levels, detail);
    const auto first = static_cast<std::size_t>(pair.first);
    return {of.places[first], of.places[std::min(first + 1, of.places.size() - 1)], pair.part};
}

}  // namespace dabcanvas
