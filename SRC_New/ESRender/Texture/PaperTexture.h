// SPDX-License-Identifier: MIT
// A paper with its levels of detail: begins anew beyond its edges, whatever its size.
//
// Owns     two textures: the paper as it is, and its levels of powers of two, which form a chain of mip levels.
//          The context must be current to make, bind and destroy it.
#pragma once

#include <epoxy/gl.h>

#include <memory>
#include <vector>

#include "Dabs/TipImage.h"

namespace dabcanvas {

class PaperTexture {
public:
    // Null, after one log line, without the memory, or for a picture that is null.
    static std::unique_ptr<PaperTexture> make(const Picture& picture);
    ~PaperTexture();
    PaperTexture(const PaperTexture&) = delete;
    PaperTexture& operator=(const PaperTexture&) = delete;

    void bind(GLenum whole, GLenum reduced) const;
    // How a tile of so many pixels is read: `part` of mip level `level` of the reduced levels mixed into the whole.
    struct Reading {
        float part, level;
    };
    Reading readingAt(float tileWidth, float tileHeight) const;

private:
    PaperTexture() = default;

    GLuint _whole = 0, _reduced = 0;
    std::vector<Pixels> _levels;  // their sizes alone
};

}  // namespace dabcanvas
