// SPDX-License-Identifier: MIT
#pragma once

#include <epoxy/gl.h>

#include <array>
#include <memory>
#include <vector>

#include "Dabs/SmudgeDabs.h"
#include "ESRender/Utilities/ESProgram.h"
#include "ESRender/Utilities/ProgramPool.h"

namespace dabcanvas {

/// What the bristles of a smudge brush hold, on the GPU: a texture of a pixel each. See Dabs/Bristles.h.
///
/// Owns     a program, and for each set of bristles two small textures and their framebuffers.
/// Thread   whichever has the context current, which must be so when it goes, too.
class HeldPaint {
public:
    /// Null, after one log line, where the driver cannot.
    static std::unique_ptr<HeldPaint> make(ProgramPool* pool);
    ~HeldPaint();
    HeldPaint(const HeldPaint&) = delete;
    HeldPaint& operator=(const HeldPaint&) = delete;

    /// The framebuffer and viewport of now are what takeUp() leaves.
    void noteTarget();
    /// Before the dab is drawn, takes up what lies in the texture, of so many texels, whose sampler unit is
    /// `beforeUnit`; the dab is in texels, of a layer whose rows count from the top. Leaves another program in use.
    void takeUp(const BristleDab& bristles, const Dab& inLayer, int rows, GLenum beforeUnit);
    /// The sampler unit on which it stands then.
    static constexpr GLenum kUnit = GL_TEXTURE9;

private:
    HeldPaint() = default;
    struct Set {
        std::array<GLuint, 2> textures{}, framebuffers{};
        std::size_t now = 0;
    };
    static void bind(GLenum unit, GLuint texture);
    void dropLastSet();
    bool addSet();
    // Where there is no room for another one, the stroke's own.
    Set& setOf(const BristleDab& bristles);

    std::shared_ptr<ESProgram> _program;
    std::vector<Set> _sets;
    GLint _target = 0, _viewport[4] = {};
    GLint _held = -1, _before = -1, _centre = -1, _span = -1, _uptake = -1, _ownColour = -1;
};

}  // namespace dabcanvas
