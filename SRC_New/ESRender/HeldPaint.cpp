// SPDX-License-Identifier: MIT
#include "ESRender/HeldPaint.h"

#include <algorithm>
#include <cmath>

#include "ESRender/ESBaseRender.h"
#include "ESRender/SmudgeShaderNames.h"
#include "ESRender/Utilities/ESGLErrors.h"

namespace dabcanvas {
namespace {

constexpr char kFile[] = "SRC_New/ESRender/HeldPaint";

// Programs are told nothing that is not a number of a sane size.
float sane(float value, float low, float high) {
    return value >= low ? std::min(value, high) : low;
}
float saneTexel(float value) {
    constexpr float kFar = 1 << 20;
    return std::isfinite(value) ? std::clamp(value, -kFar, kFar) : 0.0f;
}

}  // namespace

std::unique_ptr<HeldPaint> HeldPaint::make(ProgramPool* pool) {
    std::unique_ptr<HeldPaint> held(new HeldPaint);
    const QString vertex = ESBaseRender::stringWithFileName(QStringLiteral("Shaders.bundle/Bristles.vsh"));
    const QString fragment = ESBaseRender::stringWithFileName(QStringLiteral("Shaders.bundle/Bristles.fsh"));
    ProgramPool own;
    held->_program = (pool != nullptr ? *pool : own).program(vertex, fragment);
    if (!held->_program || !held->addSet()) {
        qCWarning(lcDabcanvasGL, "bristles carry no colour: the driver has no room or no program for it");
        return nullptr;
    }
    ESProgram& program = *held->_program;
    held->_held = program.uniformIndex(smudge::kHeldTexture);
    held->_before = program.uniformIndex(smudge::kBeforeTexture);
    held->_centre = program.uniformIndex(smudge::kCentre);
    held->_span = program.uniformIndex(smudge::kSpan);
    held->_uptake = program.uniformIndex(smudge::kUptake);
    held->_ownColour = program.uniformIndex(smudge::kOwnColour);
    return held;
}

HeldPaint::~HeldPaint() {
    while (!_sets.empty()) {
        dropLastSet();
    }
}

void HeldPaint::dropLastSet() {
    const Set& set = _sets.back();
    glDeleteFramebuffers(static_cast<GLsizei>(set.framebuffers.size()), set.framebuffers.data());
    glDeleteTextures(static_cast<GLsizei>(set.textures.size()), set.textures.data());
    _sets.pop_back();
}

// Single precision: what a short way adds is below a step of anything coarser.
bool HeldPaint::addSet() {
    Set& set = _sets.emplace_back();
    GLint drawBefore = 0;
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &drawBefore);
    glGenTextures(static_cast<GLsizei>(set.textures.size()), set.textures.data());
    glGenFramebuffers(static_cast<GLsizei>(set.framebuffers.size()), set.framebuffers.data());
    bool isWhole = true;
    for (std::size_t i = 0; i < set.textures.size(); ++i) {
        bind(kUnit, set.textures[i]);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA32F, kMostBristles, 1, 0, GL_RGBA, GL_FLOAT, nullptr);
        glBindFramebuffer(GL_DRAW_FRAMEBUFFER, set.framebuffers[i]);
        glFramebufferTexture2D(GL_DRAW_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, set.textures[i], 0);
        isWhole = isWhole && glCheckFramebufferStatus(GL_DRAW_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
        constexpr GLfloat kNothing[4] = {};
        glClearBufferfv(GL_COLOR, 0, kNothing);
    }
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, static_cast<GLuint>(drawBefore));
    if (drainGLErrors(kFile, __LINE__) == 0 && isWhole) {
        return true;
    }
    dropLastSet();
    return false;
}

HeldPaint::Set& HeldPaint::setOf(const BristleDab& bristles) {
    const auto set = static_cast<std::size_t>(std::clamp(bristles.set, 0, kMostBristleSets - 1));
    while (set >= _sets.size()) {
        if (!addSet()) {
            return _sets.front();
        }
    }
    return _sets[set];
}

void HeldPaint::bind(GLenum unit, GLuint texture) {
    glActiveTexture(unit);
    glBindTexture(GL_TEXTURE_2D, texture);
}

void HeldPaint::noteTarget() {
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &_target);
    glGetIntegerv(GL_VIEWPORT, _viewport);
}

void HeldPaint::takeUp(const BristleDab& bristles, const Dab& inLayer, int rows, GLenum beforeUnit) {
    Set& set = setOf(bristles);
    _program->bind();
    bind(kUnit, set.textures[set.now]);
    set.now = 1 - set.now;
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, set.framebuffers[set.now]);
    glViewport(0, 0, kMostBristles, 1);

    const BristleSpan span(inLayer, bristles);
    const float lag = bristleLag(bristles, span);
    const float count = static_cast<float>(std::clamp(bristles.count, 1, kMostBristles));
    glUniform1i(_held, kUnit - GL_TEXTURE0);
    glUniform1i(_before, static_cast<GLint>(beforeUnit - GL_TEXTURE0));
    glUniform2f(_centre, saneTexel(inLayer.x), static_cast<float>(rows) - saneTexel(inLayer.y));
    glUniform4f(_span, saneTexel(bristles.acrossX * span.across), -saneTexel(bristles.acrossY * span.across),
                saneTexel(bristles.acrossY * lag), saneTexel(bristles.acrossX * lag));
    glUniform4f(_uptake, sane(bristles.uptake, 0, 50), sane(bristles.load, 0, 1), count,
                bristles.isFirst ? 1.0f : 0.0f);
    const RgbType& own = inLayer.color;
    glUniform4f(_ownColour, sane(own.r, 0, 1), sane(own.g, 0, 1), sane(own.b, 0, 1), 1);
    glDrawArrays(GL_TRIANGLE_FAN, 0, 4);

    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, static_cast<GLuint>(_target));
    glViewport(_viewport[0], _viewport[1], _viewport[2], _viewport[3]);
    bind(kUnit, set.textures[set.now]);
}

}  // namespace dabcanvas
