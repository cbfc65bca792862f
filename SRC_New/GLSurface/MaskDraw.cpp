// SPDX-License-Identifier: MIT
#include "GLSurface/MaskDraw.h"

#include <QString>
#include <algorithm>

#include "ESRender/Utilities/ESGLErrors.h"
#include "GLSurface/WholeTarget.h"

namespace dabcanvas {
namespace {

constexpr char kSourcePath[] = "SRC_New/GLSurface/MaskDraw";
constexpr GLenum kMaskUnit = GL_TEXTURE12, kBackgroundUnit = GL_TEXTURE13;

// Drivers blend by a factor of the fragment's alpha, which the background needs for its own. So the picture is taken down
// to its share first, and the background's share is added then.
constexpr char kFragment[] = R"(#version 150
precision highp float;
uniform sampler2D u_mask, u_background;
uniform ivec4 u_area;  // of the mask: its left edge and its top, counted from the bottom; its size
uniform bool u_adds;
out vec4 fragColor;
void main() {
    ivec2 place = ivec2(gl_FragCoord.xy);
    ivec2 at = ivec2(place.x - u_area.x, u_area.y - 1 - place.y);
    bool inside = all(greaterThanEqual(at, ivec2(0))) && all(lessThan(at, u_area.zw));
    float share = inside ? texelFetch(u_mask, at, 0).r : 0.0;
    if (share >= 1.0) {
        discard;
    }
    fragColor = u_adds ? texelFetch(u_background, place, 0) * (1.0 - share) : vec4(share);
}
)";

}  // namespace

std::unique_ptr<MaskDraw> MaskDraw::make(const Size& buffer, ProgramPool& programs) {
    std::unique_ptr<MaskDraw> made(new MaskDraw(buffer));
    made->_program =
        programs.program(QString::fromLatin1(kWholeTargetVertices), QString::fromLatin1(kFragment));
    if (!made->_program) {
        qCWarning(lcDabcanvasGL, "strokes cannot keep to a selection: a shader program did not build");
        return nullptr;
    }
    return made;
}

MaskDraw::~MaskDraw() {
    glDeleteTextures(1, &_texture);
}

bool MaskDraw::take(const std::shared_ptr<const PaintMask>& mask) {
    if (mask == _mask) {
        return true;
    }
    drainGLErrors(kSourcePath, __LINE__);  // what is found below must be this texture's
    _mask.reset();
    glActiveTexture(kMaskUnit);
    if (_texture == 0) {
        glGenTextures(1, &_texture);
    }
    glBindTexture(GL_TEXTURE_2D, _texture);
    for (const GLenum filter : {GL_TEXTURE_MIN_FILTER, GL_TEXTURE_MAG_FILTER}) {
        glTexParameteri(GL_TEXTURE_2D, filter, GL_NEAREST);
    }
    const Rect& area = mask->area;
    static const std::uint8_t kNothing = 0;
    GLint alignment = 4;
    glGetIntegerv(GL_UNPACK_ALIGNMENT, &alignment);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_R8, std::max(area.width, 1), std::max(area.height, 1), 0, GL_RED,
                 GL_UNSIGNED_BYTE, area.isEmpty() ? &kNothing : mask->shares.data());
    glPixelStorei(GL_UNPACK_ALIGNMENT, alignment);
    if (takeGLErrors() > 0) {
        qCWarning(lcDabcanvasGL, "strokes cannot keep to a selection of %d x %d pixels: there is no memory",
                  area.width, area.height);
        return false;
    }
    _mask = mask;
    return true;
}

void MaskDraw::draw(GLuint background, const Rect& rect) {
    _program->bind();
    glActiveTexture(kMaskUnit);
    glBindTexture(GL_TEXTURE_2D, _texture);
    glActiveTexture(kBackgroundUnit);
    glBindTexture(GL_TEXTURE_2D, background);
    glUniform1i(_program->uniformIndex("u_mask"), kMaskUnit - GL_TEXTURE0);
    glUniform1i(_program->uniformIndex("u_background"), kBackgroundUnit - GL_TEXTURE0);
    const Rect& area = _mask->area;
    glUniform4i(_program->uniformIndex("u_area"), area.x, _buffer.height - area.y, area.width, area.height);
    glEnable(GL_SCISSOR_TEST);
    glScissor(rect.x, _buffer.height - rect.bottom(), rect.width, rect.height);
    glEnable(GL_BLEND);
    for (const bool adds : {false, true}) {
        glUniform1i(_program->uniformIndex("u_adds"), adds);
        adds ? glBlendFunc(GL_ONE, GL_ONE) : glBlendFunc(GL_ZERO, GL_SRC_ALPHA);
        glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    }
    glDisable(GL_SCISSOR_TEST);
    checkGLStep(kSourcePath, __LINE__);
}

}  // namespace dabcanvas
