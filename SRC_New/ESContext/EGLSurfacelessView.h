// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <memory>

#include "ESContext/ESOpenGLView.h"
#include "Maths/Export.h"

/// An OpenGL view over EGL without any surface: needs neither a window system nor a Qt application object.
///
/// Display  Mesa's surfaceless platform, else the first EGL device that gives an OpenGL 3.2 core context.
///          The display is initialised once a process and never terminated: EGL shares it with every other
///          user in the process, whose contexts would die with it.
/// Flushing the context is made with release behaviour "none" where the driver knows it, so that letting go
///          of it for the host's context does not flush.
/// Resets   of the graphics card are told of where the driver can.
/// Errors   create() returns null and says in *reason what is missing; it never ends the process.
class DABCANVAS_RENDER_API EGLSurfacelessView final : public ESOpenGLView {
public:
    /// Leaves whatever was current on this thread as it was; nothing is made current.
    static std::unique_ptr<EGLSurfacelessView> create(QString* reason = nullptr);
    ~EGLSurfacelessView() override;

    bool makeCurrent() override;
    bool isCurrent() const override;
    bool isLost() const override { return _isLost; }
    void doneCurrent() override;
    void restoreHost(const ESHostContext& host) override;

private:
    EGLSurfacelessView(void* display, void* context) : _display(display), _context(context) {}

    void* _display;  // EGLDisplay, shared, not ours to terminate
    void* _context;  // EGLContext, ours
    bool _isLost = false;
};
