// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

#include "ESContext/ESContext.h"
#include "ESContext/ESCurrentScope.h"
#include "GLSurface/KeptCounts.h"
#include "GLSurface/MakeGLSurface.h"
#include "Maths/Export.h"
#include "Surface/PaintSurface.h"

class ESImageRender;
class ESLineRender;
class ESSmudgeRender;

namespace dabcanvas {

class ThreadGL;
class MaskDraw;
class WetLayer;

/// Paint in the memory of an OpenGL driver, put there by the renderers of ESRender over one ESContext.
///
/// Layers    the line layer is made with the surface; sub-line and smudge layer with the first dab
///           that needs one.
/// Depth     16 bits a channel in the layers, or 8; so have picture and background. What comes from layers of 16 bits
///           is rounded by a noise: of place and dabs in the layer, of place and of what was kept there before in the
///           picture.
/// Context   is shared with the other surfaces made on the same thread, and so is its loss. It may be used on any
///           thread: a SurfaceScope keeps it from the others meanwhile, which wait.
/// Textures  a tip or paper becomes one when it is first drawn with, and stays until another takes its place.
class DABCANVAS_RENDER_API GLSurface final : public PaintSurface {
public:
    /// Transparent; the sides are cut to integers. Null, after one log line, when there is no OpenGL 3.2, a side is not
    /// from 1 to the driver's limit or a depth neither 8 nor 16.
    static std::unique_ptr<GLSurface> make(const QSizeF& size, const SurfaceOptions& options = {});
    ~GLSurface() override;

    /// For hosts that draw with OpenGL themselves, inside a SurfaceScope, and leave blending equation, colour mask and
    /// pixel store as they were: other surfaces draw in the same context.
    ESContext& context() { return *_context; }

    std::string name() override;
    bool isLost() const override { return _context->isLost(); }
    void finish() override;

    bool prepare(PaintLayer layer) override;
    Rect draw(PaintLayer layer, std::span<const Dab> dabs, const DabStyle& style) override;
    Rect draw(PictureId picture, std::span<const Dab> dabs, const DabStyle& style) override;
    void clear(PaintLayer layer, const Rect& rect) override;
    bool prepareSmudge(PictureId picture) override;
    Rect smudge(std::span<const SmudgeDab> dabs, const DabStyle& style, float load) override;

    void composite(PictureId picture, std::span<const Rect> rects, const CompositeStyle& style) override;
    void confine(PictureId picture, const Rect& rect, const std::shared_ptr<const PaintMask>& mask) override;
    void revert(PictureId picture, const Rect& rect) override;
    void commit(PictureId picture, const Rect& rect) override;
    void fill(PictureId picture, const PaintColor& color) override;
    bool place(PictureId picture, const Placed& placed) override;

    int pixelBytes() const override { return _context->canvasDepth() / 2; }
    bool read(PictureId picture, const Rect& rect, const MutablePixelView& rows) override;
    bool write(PictureId picture, const Rect& rect, const PixelView& rows) override;
    bool writeBackground(PictureId picture, const Rect& rect, const PixelView& rows) override;

private:
    // A renderer, and what its textures were made of.
    struct DabRender {
        std::unique_ptr<ESLineRender> render;
        GLenum tipUnit;
        std::shared_ptr<const TipSet> tips;
        std::shared_ptr<const Picture> paper;
        Rect holds = {};         // where its layer may have dabs
        std::uint32_t dabs = 0;  // since its layer was empty
    };

    GLSurface(const Size& size, std::shared_ptr<ThreadGL> gl, std::unique_ptr<ESContext> context);
    bool makeRenders();
    void warmUp();
    void warmUpDabs();
    ESSmudgeRender* smudgeRender();
    void warmUpSmudging();

    bool enter() override;
    void leave() override;

    DabRender& dabRenderOf(PaintLayer layer) { return layer == PaintLayer::subLine ? _subLine : _line; }
    void takeTips(DabRender& of, const DabStyle& style);
    void takeStyle(DabRender& of, const DabStyle& style);
    Rect drawInto(ESRenderType target, DabRender& with, std::span<const Dab> dabs, const DabStyle& style);
    bool isFine() const { return _context->layerDepth() > 8; }
    void blend(const Rect& rect, std::uint32_t blendType, float opacity, bool masked, std::uint32_t kept);
    bool dry(std::span<const Rect> rects, const CompositeStyle& style);
    void showSmudges(const Rect& rect, const CompositeStyle& style, std::uint32_t kept);
    std::optional<float> noiseTurn(std::uint32_t kept) const;
    void noteChanged(PictureId picture, const Rect& rect);
    bool provideBand(std::size_t bytes);
    bool send(const Rect& rect, const PixelView& rows, bool onlyBackground);

    std::shared_ptr<ThreadGL> _gl;
    std::unique_ptr<ESContext> _context;
    std::unique_ptr<ESImageRender> _compositor;
    std::optional<std::unique_ptr<WetLayer>> _wetLayer;  // none: not asked for yet; null: cannot be had
    std::optional<std::unique_ptr<MaskDraw>> _maskDraw;  // the same
    DabRender _line, _subLine, _smudge;                  // the last one's render is an ESSmudgeRender
    KeptCounts _kept;
    Rect _smudgeStale;                // where the smudge layer may differ from the background
    std::vector<std::uint8_t> _band;  // rows on their way to or from the caller's
    std::deque<ESCurrentScope> _scopes;
};

}  // namespace dabcanvas
