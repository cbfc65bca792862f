// SPDX-License-Identifier: MIT
// The tips of a brush with all their levels of detail in one texture. Around each level lies a rim of repeated texels, so
// that bilinear reads between its edges never meet a neighbour.
//
// Texels   alpha; for multicolour premultiplied RGBA.
// Owns     the texture. The context must be current to make, bind and destroy it.
#pragma once

#include <epoxy/gl.h>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "Dabs/MipLevels.h"
#include "Dabs/Picture.h"

namespace dabcanvas {

class TipAtlas {
public:
    static constexpr std::size_t kMostTips = 16;

    // Of the first tips; a tip whose picture is null is empty. Null, after one log line, without the memory.
    static std::unique_ptr<TipAtlas> make(const TipSet& tips, bool withColour);
    ~TipAtlas();
    TipAtlas(const TipAtlas&) = delete;
    TipAtlas& operator=(const TipAtlas&) = delete;

    void bind(GLenum unit) const;
    bool hasColour() const { return _withColour; }

    // A level's place in the texture, the rim left out: left, top, width, height as texture coordinates.
    using Place = std::array<float, 4>;
    // How a tip is read at a level of detail: `part` of the second place mixed into the first.
    struct Reading {
        Place first, next;
        float part;
    };
    // Size of a tip's first level; null for one that is empty. An index that no tip of so many can have is the first.
    const Size* sizeOf(std::uint32_t tip) const;
    // Of a tip that is not empty.
    Reading readingAt(std::uint32_t tip, float detail) const;

private:
    // Sizes alone are kept of the levels.
    struct Tip {
        std::vector<Pixels> levels;
        std::vector<Rect> texels;
        std::vector<Place> places;
    };

    explicit TipAtlas(bool withColour) : _withColour(withColour) {}
    Size arrange();
    bool upload(const Size& size);
    const Tip& at(std::uint32_t tip) const { return _tips[tip < _tips.size() ? tip : 0]; }

    bool _withColour;
    GLuint _texture = 0;
    std::vector<Tip> _tips;  // as many as there are cells for so many
};

}  // namespace dabcanvas
