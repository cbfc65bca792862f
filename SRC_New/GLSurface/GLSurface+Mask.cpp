// SPDX-License-Identifier: MIT
// The part of GLSurface that keeps strokes to a mask.
#include "ESRender/ESImageRender.h"
#include "GLSurface/GLSurface.h"
#include "GLSurface/MaskDraw.h"
#include "GLSurface/ThreadGL.h"

namespace dabcanvas {

// Where there is no room for the mask all goes back: paint must not come where it is kept out.
void GLSurface::confine(PictureId picture, const Rect& rect, const std::shared_ptr<const PaintMask>& mask) {
    const Rect cut = rect.intersected(Rect::of(size()));
    if (cut.isEmpty()) {
        return;
    }
    if (!_maskDraw) {
        _maskDraw = MaskDraw::make(size(), *_gl->programs());
    }
    if (!*_maskDraw || !(*_maskDraw)->take(mask)) {
        return revert(picture, cut);
    }
    _context->beginRenderForType(ESRenderTypeCanvas);
    (*_maskDraw)->draw(_compositor->backgroundTexture(), cut);
    _context->finishRender();
}

}  // namespace dabcanvas
