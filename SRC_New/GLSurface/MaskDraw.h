// SPDX-License-Identifier: MIT
// Puts a background back onto a picture where a mask keeps paint out.
//
// Units    buffer pixels, top-left origin.
// Owns     a texture of the mask that was drawn last. The context must be current to make, use and destroy it. The
//          program is the pool's.
#pragma once

#include <epoxy/gl.h>

#include <memory>

#include "ESRender/Utilities/ProgramPool.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas {

class MaskDraw {
public:
    // Null, after one log line, where the program does not build.
    static std::unique_ptr<MaskDraw> make(const Size& buffer, ProgramPool& programs);
    ~MaskDraw();
    MaskDraw(const MaskDraw&) = delete;
    MaskDraw& operator=(const MaskDraw&) = delete;

    // False, after one log line, without the memory for it.
    bool take(const std::shared_ptr<const PaintMask>& mask);
    // Onto the target, as large as the buffer, by the mask that was taken; leaves blending changed.
    void draw(GLuint background, const Rect& rect);

private:
    explicit MaskDraw(const Size& buffer) : _buffer(buffer) {}

    Size _buffer;
    std::shared_ptr<const PaintMask> _mask;  // what the texture has
    GLuint _texture = 0;
    std::shared_ptr<ESProgram> _program;
};

}  // namespace dabcanvas
