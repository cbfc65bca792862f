// SPDX-License-Identifier: MIT
// The part of GLSurface that has the line layer dry before it is composited.
#include "GLSurface/GLSurface.h"
#include "GLSurface/ThreadGL.h"
#include "GLSurface/WetLayer.h"

namespace dabcanvas {

// Makes those rectangles dry; false, and nothing is, where there is no room for it.
bool GLSurface::dry(std::span<const Rect> rects, const CompositeStyle& style) {
    if (!_wetLayer) {
        _wetLayer = WetLayer::make(size(), *_gl->programs());
    }
    if (!*_wetLayer) {
        return false;
    }
    _context->setBlendWithSCFactor(GL_ONE, GL_ZERO, GL_ONE, GL_ZERO);
    for (const Rect& rect : rects) {
        (*_wetLayer)->dry(_context->lineTexture(), rect.intersected(Rect::of(size())), style);
    }
    return true;
}

}  // namespace dabcanvas
