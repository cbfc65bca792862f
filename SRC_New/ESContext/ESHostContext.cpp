// SPDX-License-Identifier: MIT
#include "ESContext/ESHostContext.h"

#include <QOpenGLContext>
#include <type_traits>

#include "ESContext/HostEGL.h"
#include "ESRender/Utilities/ESGLErrors.h"

#ifdef __unix__
#include <dlfcn.h>
#endif

namespace {

// The few GLX calls needed, taken from the library only when the process has it loaded anyway: a host that
// draws through GLX has, and the others should not pay for it. Types as in X11's headers, spelled plainly.
struct GLX {
    using Drawable = unsigned long;
    void* (*currentContext)() = nullptr;
    void* (*currentDisplay)() = nullptr;
    Drawable (*currentDrawable)() = nullptr;
    Drawable (*currentReadDrawable)() = nullptr;
    int (*makeContextCurrent)(void* display, Drawable draw, Drawable read, void* context) = nullptr;

    bool find() {
#if defined(__unix__) && !defined(__APPLE__)
        void* library = nullptr;
        for (const char* name : {"libGLX.so.0", "libGL.so.1"}) {
            library = dlopen(name, RTLD_LAZY | RTLD_NOLOAD);
            if (library) {
                break;
            }
        }
        if (!library) {
            return false;
        }
        const auto load = [library](const char* name, auto& function) {
            function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(dlsym(library, name));
            return function != nullptr;
        };
        return load("glXGetCurrentContext", currentContext) && load("glXGetCurrentDisplay", currentDisplay) &&
               load("glXGetCurrentDrawable", currentDrawable) &&
               load("glXGetCurrentReadDrawable", currentReadDrawable) &&
               load("glXMakeContextCurrent", makeContextCurrent);
#else
        return false;
#endif
    }
};

// Null while the process has no GLX. Asked anew until found, as a host may load it at any time.
const GLX* glx() {
    thread_local GLX functions;
    thread_local bool found = false;
    if (!found) {
        found = functions.find();
    }
    return found ? &functions : nullptr;
}

}  // namespace

ESHostContext ESHostContext::capture() {
    ESHostContext host;
    const dabcanvas::HostEGL egl = dabcanvas::HostEGL::current();
    host.eglDisplay = egl.display;
    host.eglContext = egl.context;
    host.eglDraw = egl.draw;
    host.eglRead = egl.read;
    if (!host.eglContext) {
        const GLX* const calls = glx();
        host.glxContext = calls ? calls->currentContext() : nullptr;
        if (host.glxContext) {
            host.glxDisplay = calls->currentDisplay();
            host.glxDraw = calls->currentDrawable();
            host.glxRead = calls->currentReadDrawable();
        }
    }
    host.qtContext = QOpenGLContext::currentContext();
    host.qtSurface = host.qtContext ? host.qtContext->surface() : nullptr;
    return host;
}

bool ESHostContext::restoreNative() const {
    bool restored = true;
    if (eglContext) {
        releaseGLX();
        restored = dabcanvas::HostEGL{eglDisplay, eglContext, eglDraw, eglRead}.makeCurrent();
    } else {
        releaseEGL();
    }
    if (glxContext) {
        const GLX* const calls = glx();
        restored = calls && calls->makeContextCurrent(glxDisplay, glxDraw, glxRead, glxContext);
    } else if (!eglContext) {
        releaseGLX();
    }
    if (!restored) {
        qCWarning(lcDabcanvasGL, "The host's OpenGL context could not be made current again");
    }
    return restored;
}

void ESHostContext::releaseGLX() {
    const GLX* const calls = glx();
    if (calls && calls->currentContext()) {
        calls->makeContextCurrent(calls->currentDisplay(), 0, 0, nullptr);
    }
}

void ESHostContext::releaseEGL() {
    dabcanvas::HostEGL::release();
}
