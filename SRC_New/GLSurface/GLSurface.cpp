// SPDX-License-Identifier: MIT
#include "GLSurface/GLSurface.h"

#include <epoxy/gl.h>

#include <array>
#include <iterator>
#include <utility>

#include "Dabs/DabBounds.h"
#include "ESRender/DabRecord.h"
#include "ESRender/ESImageRender.h"
#include "ESRender/ESLineRender.h"
#include "ESRender/ESSmudgeRender.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "GLSurface/MaskDraw.h"
#include "GLSurface/ThreadGL.h"
#include "GLSurface/WetLayer.h"

namespace dabcanvas {
namespace {

// Filtering between the smudge layer's resolution and the picture's reaches this far, in buffer pixels.
constexpr int kSmudgeReach = 4;
constexpr GLenum kLineUnit = GL_TEXTURE4, kSubLineUnit = GL_TEXTURE5, kSmudgeUnit = GL_TEXTURE7;

// The one dab that covers a rectangle when its renderer's roundness is the rectangle's height over its width.
LPPoint dabOf(const Rect& rect) {
    return {{static_cast<float>(rect.x + rect.width * 0.5), static_cast<float>(rect.y + rect.height * 0.5)},
            static_cast<float>(rect.width),
            {1.0f, 1.0f, 1.0f}};
}

float roundnessOf(const Rect& rect) {
    return static_cast<float>(static_cast<double>(rect.height) / rect.width);
}

// The mode's program writes nothing where the layer, dry, has next to no paint.
bool leavesNearlyBare(std::uint32_t blendType) {
    return blendType >= ESBlendTypeReplace && blendType <= ESBlendTypeMultiply;
}

}  // namespace

// ---- Making

std::unique_ptr<GLSurface> GLSurface::make(const QSizeF& size, const SurfaceOptions& options) {
    if (!options.isUsable()) {
        qCWarning(lcDabcanvasGL, "%s", kDepthProblem);
        return nullptr;
    }
    auto gl = ThreadGL::ofThisThread();
    if (!gl) {
        return nullptr;
    }
    const std::lock_guard lock(gl->use);
    auto context = ThreadGL::makeContext(gl);
    if (!context) {
        return nullptr;
    }
    context->setLayerDepth(options.layerDepth);
    context->setCanvasDepth(options.canvasDepth);
    const ESCurrentScope current(&gl->view());
    if (!current || !context->createFirstBuffersWithSize(size)) {
        return nullptr;
    }
    const Size pixels{context->backingWidth(), context->backingHeight()};
    std::unique_ptr<GLSurface> surface(new GLSurface(pixels, gl, std::move(context)));
    return surface->makeRenders() ? std::move(surface) : nullptr;
}

GLSurface::GLSurface(const Size& size, std::shared_ptr<ThreadGL> gl, std::unique_ptr<ESContext> context)
    : PaintSurface(size),
      _gl(std::move(gl)),
      _context(std::move(context)),
      _line{.render = {}, .tipUnit = GL_TEXTURE1, .tips = {}, .paper = {}},
      _subLine{.render = {}, .tipUnit = GL_TEXTURE2, .tips = {}, .paper = {}},
      _smudge{.render = {}, .tipUnit = GL_TEXTURE6, .tips = {}, .paper = {}},
      _kept(size),
      _smudgeStale(Rect::of(size)) {}

bool GLSurface::makeRenders() {
    const QSizeF buffer(size().width, size().height);
    for (const GLenum capability : {GL_STENCIL_TEST, GL_DEPTH_TEST, GL_SCISSOR_TEST}) {
        ESContext::setEnable(false, capability);
    }
    _context->setViewSize(buffer);
    _compositor = ESImageRender::initWithBufferSize(buffer, _gl->programs());
    _line.render = ESLineRender::init(_gl->programs());
    _subLine.render = ESLineRender::init(_gl->programs());
    if (!_compositor || !_line.render || !_subLine.render) {
        qCWarning(lcDabcanvasGL, "a surface cannot be made: a shader program did not build");
        return false;
    }
    _compositor->setCanvasDepth(_context->canvasDepth());
    _compositor->setLineTextureID(_context->lineTexture(), kLineUnit);
    _line.render->setBufferSize(buffer);
    _subLine.render->setBufferSize(buffer);
    commit(PictureId::first, Rect::of(size()));
    if (!std::exchange(_gl->isWarm, true)) {
        warmUp();
    }
    return true;
}

// Drivers finish compiling when a program first draws, which would make the first segment of the first stroke late. So
// each draws once where nothing is.
void GLSurface::warmUp() {
    const LPPoint outside{{-100, -100}, 1, {1, 1, 1}};
    _context->beginRenderForType(ESRenderTypeLine);
    _context->setBlendModelForType(ESRenderTypeLine);
    _line.render->drawPoints(&outside, 1);
    if (isFine()) {
        warmUpDabs();
    }
    _context->beginRenderForType(ESRenderTypeCanvas);
    blend({-100, -100, 1, 1}, ESBlendTypeNormal, 1, false, 0);
    _context->finishRender();
}

// Of a tip as it is, and of one between two of its levels.
void GLSurface::warmUpDabs() {
    constexpr int kSide = 4;
    static const std::array<std::uint8_t, kSide * kSide * 4> texels{};
    const auto view = PixelView::topRowFirst(texels.data(), {kSide, kSide});
    const DabStyle style{.tips = std::make_shared<const TipSet>(1, Picture{view, 1, {}}), .paper = {}};
    for (const float width : {2.0f * kSide, 0.7f * kSide}) {
        const Dab dab{.x = -100,
                      .y = -100,
                      .halfSize = width / 2,
                      .radian = 0,
                      .roundness = 1,
                      .flipX = 1,
                      .flipY = 1,
                      .flow = 0,
                      .color = {0, 0, 0},
                      .random = 0,
                      .tip = 0};
        drawInto(ESRenderTypeLine, _line, {&dab, 1}, style);
    }
    _line.dabs = 0;
}

GLSurface::~GLSurface() {
    const std::lock_guard lock(_gl->use);
    const ESCurrentScope current(&_gl->view());  // be it lost or not
    // Each goes while the context is current. Without it, deleting their names would hit the host's; they go with it.
    const auto release = [&](auto& render) {
        current ? render.reset() : static_cast<void>(render.release());
    };
    release(_compositor);
    if (_wetLayer) {
        release(*_wetLayer);
    }
    if (_maskDraw) {
        release(*_maskDraw);
    }
    for (DabRender* of : {&_line, &_subLine, &_smudge}) {
        release(of->render);
    }
    _context.reset();
}

bool GLSurface::enter() {
    _gl->use.lock();
    _scopes.emplace_back(*_context);
    if (!_scopes.back()) {
        leave();
        return false;
    }
    return true;
}

void GLSurface::leave() {
    _scopes.pop_back();
    _gl->use.unlock();
}

std::string GLSurface::name() {
    const auto* name = reinterpret_cast<const char*>(glGetString(GL_RENDERER));
    return name != nullptr ? name : "";
}

void GLSurface::finish() {
    glFinish();  // drivers work ahead
}

void GLSurface::noteChanged(PictureId picture, const Rect& rect) {
    const Rect changed = rect.intersected(Rect::of(size()));
    noteTouched(picture, changed);
    _smudgeStale = _smudgeStale.united(changed);
}

// ---- Dabs

void GLSurface::takeTips(DabRender& of, const DabStyle& style) {
    if (style.tips != of.tips) {
        of.tips = style.tips;
        of.render->setTips(style.tips, of.tipUnit);
    }
}

void GLSurface::takeStyle(DabRender& of, const DabStyle& style) {
    ESLineRender& render = *of.render;
    takeTips(of, style);
    if (style.paper != of.paper) {
        of.paper = style.paper;
        render.setPaper(style.paper);
    }
    render.setNeedMaskTexture(style.paper != nullptr);
    render.setMaskScale(style.paperStyle.scale);
    render.setMaskRelief(style.paperStyle.gain, style.paperStyle.level);
    render.setColorFul(style.multicolour);
    render.setHueTingle(style.hueTingle);
    render.setSaturationTingle(style.saturationTingle);
    render.setBrightnessTingle(style.brightnessTingle);
}

Rect GLSurface::drawInto(ESRenderType target, DabRender& with, std::span<const Dab> dabs,
                         const DabStyle& style) {
    _context->beginRenderForType(target);
    takeStyle(with, style);
    _context->setBlendModelForType(ESRenderTypeLine);
    if (target != ESRenderTypeCanvas && isFine()) {
        with.render->drawDabsFinely(dabs, with.dabs);
        with.dabs += static_cast<std::uint32_t>(dabs.size());
    } else {
        with.render->drawDabs(dabs);
    }
    _context->finishRender();
    DabBounds bounds{static_cast<double>(size().width), static_cast<double>(size().height)};
    for (const Dab& dab : dabs) {
        bounds.grow(dab);
    }
    const Rect touched = bounds.pixelsOnBuffer();
    if (target != ESRenderTypeCanvas) {
        with.holds = with.holds.united(touched);
    }
    if (target == ESRenderTypeLine) {
        _kept.drawn(touched);
    }
    return touched;
}

bool GLSurface::prepare(PaintLayer layer) {
    switch (layer) {
        case PaintLayer::line:
            if (!_context->hasTarget(ESRenderTypeLine)) {
                if (!_context->provideTarget(ESRenderTypeLine)) {
                    return false;
                }
                _compositor->setLineTextureID(_context->lineTexture(), kLineUnit);
            }
            return true;
        case PaintLayer::subLine:
            if (!_context->hasTarget(ESRenderTypeSubLine)) {
                if (!_context->provideTarget(ESRenderTypeSubLine)) {
                    return false;
                }
                _compositor->setSubLineTextureID(_context->subLineTexture(), kSubLineUnit);
            }
            return true;
        case PaintLayer::smudge:
            return prepare(PaintLayer::line) && smudgeRender() != nullptr;
    }
    return false;
}

Rect GLSurface::draw(PaintLayer layer, std::span<const Dab> dabs, const DabStyle& style) {
    if (!prepare(layer)) {
        return {};
    }
    const bool isSubLine = layer == PaintLayer::subLine;
    return drawInto(isSubLine ? ESRenderTypeSubLine : ESRenderTypeLine, dabRenderOf(layer), dabs, style);
}

Rect GLSurface::draw(PictureId picture, std::span<const Dab> dabs, const DabStyle& style) {
    const Rect touched = drawInto(ESRenderTypeCanvas, _subLine, dabs, style);
    noteChanged(picture, touched);
    return touched;
}

void GLSurface::clear(PaintLayer layer, const Rect& rect) {
    const bool smudge = layer == PaintLayer::smudge;
    const ESRenderType target = smudge                      ? ESRenderTypeSmudge
                                : layer == PaintLayer::line ? ESRenderTypeLine
                                                            : ESRenderTypeSubLine;
    if (!_context->hasTarget(target)) {
        return;  // there is none yet
    }
    _context->beginRenderForType(target);
    if (smudge) {
        _smudgeStale = Rect::of(size());
    } else {
        glEnable(GL_SCISSOR_TEST);  // to the pixel, where scissorRect() leaves a margin
        glScissor(rect.x, size().height - rect.bottom(), rect.width, rect.height);
        DabRender& of = dabRenderOf(layer);
        const bool all = rect.contains(of.holds);
        if (layer == PaintLayer::line) {
            _kept.cleared(all ? Rect::of(size()) : rect);
        }
        if (all) {
            of.holds = {};
            of.dabs = 0;
        }
    }
    _compositor->clear();
    _context->finishRender();
}

// ---- Smudging

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

// ---- Layers and picture

// What a picture rounds by; nothing for layers of 8 bits.
std::optional<float> GLSurface::noiseTurn(std::uint32_t kept) const {
    return isFine() ? std::optional(dabcanvas::noiseTurn(kept)) : std::nullopt;
}

// Draws one rectangle in a blend mode onto the picture, which is the target.
void GLSurface::blend(const Rect& rect, std::uint32_t blendType, float opacity, bool masked,
                      std::uint32_t kept) {
    // The program has mixed source and background already: its result replaces what is there.
    _context->setBlendWithSCFactor(GL_ONE, GL_ZERO, GL_ONE, GL_ZERO);
    ESImageRender& render = *_compositor;
    render.setNoiseTurn(noiseTurn(kept));
    if (render.blendType() != blendType) {
        render.setBlendType(blendType);
    }
    render.setFlipX(false);
    render.setFlipY(true);
    render.setUseLargeTexture(false);
    render.setRepeatedlyRenderEnabled(masked);
    render.setRadian(0);
    render.setOpacity(opacity);
    render.setRoundness(roundnessOf(rect));
    const LPPoint dab = dabOf(rect);
    render.drawPoints(&dab, 1);
}

void GLSurface::composite(PictureId picture, std::span<const Rect> rects, const CompositeStyle& style) {
    if (!prepare(PaintLayer::line) ||
        (style.smudged ? !_smudge.render : style.masked && !prepare(PaintLayer::subLine))) {
        return;  // nothing was smudged, or there is no mask
    }
    const bool isDry = style.reach() > 0 && dry(rects, style);
    // Drying takes paint away that was composited there.
    const bool startsAnew = isDry && leavesNearlyBare(style.blendType);
    _compositor->setLeavesBare(isDry);
    _compositor->setLocksAlpha(style.locksAlpha);
    if (isDry) {
        _compositor->setLineTextureID((*_wetLayer)->texture(), kLineUnit);
    }
    _context->beginRenderForType(ESRenderTypeCanvas);
    for (const Rect& rect : rects) {
        const Rect cut = rect.intersected(Rect::of(size()));
        if (cut.isEmpty()) {
            continue;
        }
        _kept.forEachPart(cut, [&](const Rect& part, std::uint32_t kept) {
            if (style.smudged) {
                showSmudges(part, style, kept);
                return;
            }
            if (startsAnew) {
                blend(part, ESBlendTypeReset, 1, false, kept);
            }
            blend(part, style.shownType(), style.opacity, style.masked, kept);
        });
        _kept.blended(cut);
        noteChanged(picture, cut);
    }
    if (isDry) {
        _compositor->setLineTextureID(_context->lineTexture(), kLineUnit);
    }
    _compositor->setLocksAlpha(false);
    _context->finishRender();
}

void GLSurface::revert(PictureId picture, const Rect& rect) {
    const Rect cut = rect.intersected(Rect::of(size()));
    if (cut.isEmpty() || !prepare(PaintLayer::line)) {
        return;  // its program reads no layer, but wants one bound
    }
    _context->beginRenderForType(ESRenderTypeCanvas);
    blend(cut, ESBlendTypeReset, 1, false, 0);
    _context->finishRender();
    noteChanged(picture, cut);
}

void GLSurface::commit(PictureId, const Rect& rect) {
    _context->beginRenderForType(ESRenderTypeCanvas);
    _compositor->updateBGTextureAtOrigin(QPointF(rect.x, rect.y), QSizeF(rect.width, rect.height),
                                         GL_TEXTURE3);
    _kept.kept(rect);
}

void GLSurface::fill(PictureId picture, const PaintColor& color) {
    _context->beginRenderForType(ESRenderTypeCanvas);
    _compositor->clearWithRed(color.red, color.green, color.blue, color.alpha);
    _kept.forget(Rect::of(size()));
    _context->finishRender();
    noteChanged(picture, Rect::of(size()));
}

}  // namespace dabcanvas
