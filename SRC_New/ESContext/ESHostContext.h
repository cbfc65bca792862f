// SPDX-License-Identifier: MIT
#pragma once

#include "Maths/Export.h"

class QOpenGLContext;
class QSurface;

/// The OpenGL context that a thread had current before one of ours took its place, to be put back later.
///
/// A plain value: it owns nothing, so the host must not destroy what is written down here in between.
/// It records the window system's own state (EGL, or GLX where the process has loaded it), because a host
/// may bypass any toolkit, and Qt's idea of the current context beside it.
/// Thread   restoreNative() must run on the thread that took the record.
struct DABCANVAS_RENDER_API ESHostContext {
    /// EGL; all null when no EGL context was current.
    void* eglDisplay = nullptr;
    void* eglContext = nullptr;
    void* eglDraw = nullptr;
    void* eglRead = nullptr;
    /// GLX; all zero when no GLX context was current.
    void* glxDisplay = nullptr;
    void* glxContext = nullptr;
    unsigned long glxDraw = 0;
    unsigned long glxRead = 0;
    /// What QOpenGLContext::currentContext() said, null when Qt had none.
    QOpenGLContext* qtContext = nullptr;
    QSurface* qtSurface = nullptr;

    /// Writes down what is current now: a few thread-local reads, no round trip to a driver.
    static ESHostContext capture();

    /// Makes exactly the recorded window-system state current again and leaves Qt's own record alone.
    /// Returns false when the window system refuses, after one log line.
    bool restoreNative() const;

    bool hasEGL() const { return eglContext != nullptr; }
    bool hasGLX() const { return glxContext != nullptr; }
    bool sameNativeContext(const ESHostContext& other) const {
        return eglContext == other.eglContext && glxContext == other.glxContext;
    }

    /// Lets go of whatever GLX (or EGL) context is current; a context of one of the two window systems
    /// cannot be made current while the other holds the thread.
    static void releaseGLX();
    static void releaseEGL();
};
