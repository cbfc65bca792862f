// SPDX-License-Identifier: MIT
// The line layer as it dries (Surface/WetEdge.h), in a texture of its own: what is composited in its place.
//
// Units    buffer pixels, top-left origin.
// Owns     a texture of the buffer's size, 16 bits a channel, a small one for the means of rows, their framebuffers.
//          The context must be current to make, use and destroy it. Programs are the pool's.
#pragma once

#include <epoxy/gl.h>

#include <memory>

#include "ESRender/Utilities/ProgramPool.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas {

class WetLayer {
public:
    // Null, after one log line, without the memory or where a program does not build.
    static std::unique_ptr<WetLayer> make(const Size& buffer, ProgramPool& programs);
    ~WetLayer();
    WetLayer(const WetLayer&) = delete;
    WetLayer& operator=(const WetLayer&) = delete;

    // Of a layer as large as the buffer, on the buffer. Leaves a target of its own bound; blending must replace.
    void dry(GLuint layer, const Rect& rect, const CompositeStyle& style);
    GLuint texture() const { return _layer.texture; }

private:
    struct Target {
        GLuint texture = 0, framebuffer = 0;
    };

    explicit WetLayer(const Size& buffer) : _buffer(buffer) {}
    static bool makeTarget(Target& target, const Size& size, GLint format);
    void dryPiece(const Rect& piece, const CompositeStyle& style);

    Size _buffer;
    Target _layer, _means;
    std::shared_ptr<ESProgram> _alongRows, _alongColumns;
};

}  // namespace dabcanvas
