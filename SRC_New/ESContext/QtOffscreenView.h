// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <memory>

#include "ESContext/ESOpenGLView.h"
#include "Maths/Export.h"

class QOffscreenSurface;
class QOpenGLContext;

/// An OpenGL view over QOffscreenSurface and QOpenGLContext, for platforms without surfaceless EGL.
///
/// Needs    a QGuiApplication whose platform has OpenGL (Qt's own "offscreen" platform has none).
/// State    the surface format is set on these two objects only, never as the application's default.
/// Thread   create() on the GUI thread, as QOffscreenSurface asks; makeCurrent() there too, as a
///          QOpenGLContext belongs to the thread that made it.
/// Errors   create() returns null and says in *reason what is missing.
class DABCANVAS_RENDER_API QtOffscreenView final : public ESOpenGLView {
public:
    /// Leaves whatever was current on this thread as it was; nothing is made current.
    static std::unique_ptr<QtOffscreenView> create(QString* reason = nullptr);
    ~QtOffscreenView() override;

    bool makeCurrent() override;
    bool isCurrent() const override;
    bool isLost() const override;
    void doneCurrent() override;
    void restoreHost(const ESHostContext& host) override;

private:
    QtOffscreenView();

    std::unique_ptr<QOffscreenSurface> _surface;
    std::unique_ptr<QOpenGLContext> _context;
    ESHostContext _native;  // what the window system calls our context, known after the first makeCurrent()
};
