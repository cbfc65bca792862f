// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

#include "ESContext/ESHostContext.h"
#include "Maths/Export.h"

/// The platform OpenGL view of a canvas: carries one OpenGL 3.2 core context that draws into framebuffer
/// objects only. It never shows anything by itself.
///
/// Bodies   EGLSurfacelessView (no window system at all), QtOffscreenView (whatever the Qt platform offers).
/// Owns     its context. Destroying a view that is current leaves no context current.
/// Thread   a context is current on one thread at a time; makeCurrent() elsewhere meanwhile returns false.
class DABCANVAS_RENDER_API ESOpenGLView {
public:
    ESOpenGLView() = default;
    virtual ~ESOpenGLView() = default;
    ESOpenGLView(const ESOpenGLView&) = delete;
    ESOpenGLView& operator=(const ESOpenGLView&) = delete;

    /// The view's place in buffer pixels; (0, 0, 1024, 1024) until a buffer of another size is made.
    /// Whole-layer reads start at its origin.
    QRectF frame() const { return _frame; }
    void setFrame(const QRectF& frame) { _frame = frame; }

    /// Makes the context current on this thread; nearly free when it is already. False when the platform
    /// refuses, with what was current before still current.
    virtual bool makeCurrent() = 0;
    /// Whether it is current on this thread.
    virtual bool isCurrent() const = 0;
    /// Why makeCurrent() failed: the platform has taken the context away, for good.
    virtual bool isLost() const { return false; }
    /// Leaves no context current on this thread when this view's was; otherwise does nothing.
    virtual void doneCurrent() = 0;

    /// Presents what was drawn. Nothing to do for an offscreen view: it has no back buffer, and every read
    /// goes through the same context, which keeps its calls in order. A flush here would cost a software
    /// driver more than many dabs.
    virtual void flushBuffer() {}

    /// For ESCurrentScope: what to put back after this view was current, and putting it back.
    virtual ESHostContext saveHost() const { return ESHostContext::capture(); }
    virtual void restoreHost(const ESHostContext& host) = 0;

private:
    QRectF _frame{0, 0, 1024, 1024};
};
