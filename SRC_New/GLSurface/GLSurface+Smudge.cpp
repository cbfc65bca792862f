// SPDX-License-Identifier: MIT
// The part of GLSurface that smudges.
#include <epoxy/gl.h>

#include <utility>

#include "ESRender/ESImageRender.h"
#include "ESRender/ESSmudgeRender.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "GLSurface/GLSurface.h"
#include "GLSurface/RectDab.h"
#include "GLSurface/ThreadGL.h"

namespace dabcanvas {
namespace {

// Filtering between the smudge layer's resolution and the picture's reaches this far, in buffer pixels.
constexpr int kSmudgeReach = 4;
constexpr GLenum kSmudgeUnit = GL_TEXTURE7;

}  // namespace

// Made on first use: most brushes never smudge. Null, after one log line, when there is no room for it.
ESSmudgeRender* GLSurface::smudgeRender() {
    if (!_smudge.render) {
        if (!_context->provideTarget(ESRenderTypeSmudge)) {
            return nullptr;
        }
        auto render = ESSmudgeRender::init(_gl->programs());
        if (!render) {
            qCWarning(lcDabcanvasGL, "nothing can be smudged: a shader program did not build");
            return nullptr;
        }
        render->setBufferSize(QSizeF(size().width, size().height));
        render->setSmudgeTextureID(_context->smudgeTexture(), kSmudgeUnit);
        if (!render->hasOwnTextures()) {
            return nullptr;
        }
        _smudge.render = std::move(render);
    }
    return static_cast<ESSmudgeRender*>(_smudge.render.get());
}

bool GLSurface::prepareSmudge(PictureId) {
    const bool isNew = !_smudge.render;
    if (!prepare(PaintLayer::smudge)) {
        return false;
    }
    ESSmudgeRender* const render = smudgeRender();
    _smudge.dabs = 0;
    const Rect rect = std::exchange(_smudgeStale, Rect()).grownBy(kSmudgeReach).intersected(Rect::of(size()));
    if (!rect.isEmpty()) {
        _context->beginRenderForType(ESRenderTypeSmudge);
        _context->setBlendWithSCFactor(GL_ONE, GL_ZERO, GL_ONE, GL_ZERO);
        render->setRoundness(roundnessOf(rect));
        const LPPoint dab = dabOf(rect);
        render->drawPoints(&dab, 1, ESSmudgeDrawShow, [&] {
            glActiveTexture(kSmudgeUnit);
            glBindTexture(GL_TEXTURE_2D, _compositor->backgroundTexture());
            return QSizeF(size().width, size().height);
        });
        render->keepLayer(QRectF(rect.x, rect.y, rect.width, rect.height));
        _context->finishRender();
    }
    if (isNew) {
        warmUpSmudging();
    }
    return true;
}

// As warmUp() does: two dabs without flow, the second of which takes up colour, with bristles, and a look at where none was.
void GLSurface::warmUpSmudging() {
    const Dab dab{.x = 2,
                  .y = 2,
                  .halfSize = 2,
                  .radian = 0,
                  .roundness = 1,
                  .flipX = 1,
                  .flipY = 1,
                  .flow = 0,
                  .color = {0, 0, 0},
                  .random = 0,
                  .tip = 0};
    const BristleDab bristles{.part = 0.5f, .isFirst = true};
    const SmudgeDab dabs[] = {{dab, {0, 0}, 0, 0, 0, 1}, {dab, {3, 2}, 2, 1, 1, 1, bristles}};
    auto* const render = static_cast<ESSmudgeRender*>(_smudge.render.get());
    _context->beginRenderForType(ESRenderTypeSmudge);
    render->drawSmudges(dabs, 1);
    render->takeCoverage();
    _context->beginRenderForType(ESRenderTypeCanvas);
    showSmudges({0, 0, 1, 1}, {}, 0);
    _context->finishRender();
}

Rect GLSurface::smudge(std::span<const SmudgeDab> dabs, const DabStyle& style, float load) {
    if (dabs.empty() || !prepare(PaintLayer::smudge)) {
        return {};
    }
    ESSmudgeRender* const render = smudgeRender();
    _context->beginRenderForType(ESRenderTypeSmudge);
    takeTips(_smudge, style);
    _context->setBlendModelForType(ESRenderTypeLine);
    render->drawSmudges(dabs, load, _smudge.dabs);
    _smudge.dabs += static_cast<std::uint32_t>(dabs.size());
    _context->finishRender();

    // How much of each picture pixel is exchanged, at full resolution: what no dab covered is never touched.
    const DabStyle plain{.tips = style.tips, .paper = {}};
    const Rect covered = drawInto(ESRenderTypeLine, _line, render->takeCoverage(), plain);
    return covered.isEmpty() ? covered : covered.grownBy(kSmudgeReach).intersected(Rect::of(size()));
}

// Puts one rectangle of the smudge layer onto the picture, which is the target.
void GLSurface::showSmudges(const Rect& rect, const CompositeStyle& style, std::uint32_t kept) {
    auto& render = static_cast<ESSmudgeRender&>(*_smudge.render);
    _context->setBlendWithSCFactor(GL_ONE, GL_ZERO, GL_ONE, GL_ZERO);
    render.setShowSources(_context->lineTexture(), _compositor->backgroundTexture());
    render.setNoiseTurn(noiseTurn(kept), _context->canvasDepth());
    render.setOpacity(style.opacity);
    render.setLocksAlpha(style.locksAlpha);
    render.setRoundness(roundnessOf(rect));
    const LPPoint dab = dabOf(rect);
    render.drawPoints(&dab, 1, ESSmudgeDrawShow);
}

}  // namespace dabcanvas
