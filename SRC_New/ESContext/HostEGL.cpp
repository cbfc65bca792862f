// SPDX-License-Identifier: MIT
#include "ESContext/HostEGL.h"

#ifdef DABCANVAS_HAVE_EGL
#include <epoxy/egl.h>
#endif

namespace dabcanvas {

#ifdef DABCANVAS_HAVE_EGL

namespace {

bool isThere() {
    static const bool has = epoxy_has_egl();  // calling EGL through epoxy without it would end the process
    return has;
}

}  // namespace

HostEGL HostEGL::current() {
    HostEGL egl;
    if (isThere()) {
        egl.context = eglGetCurrentContext();
        if (egl.context) {
            egl.display = eglGetCurrentDisplay();
            egl.draw = eglGetCurrentSurface(EGL_DRAW);
            egl.read = eglGetCurrentSurface(EGL_READ);
        }
    }
    return egl;
}

bool HostEGL::makeCurrent() const {
    return isThere() && eglMakeCurrent(display, draw, read, context);
}

void HostEGL::release() {
    if (isThere() && eglGetCurrentContext()) {
        eglMakeCurrent(eglGetCurrentDisplay(), EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    }
}

#else

HostEGL HostEGL::current() {
    return {};
}
bool HostEGL::makeCurrent() const {
    return false;
}
void HostEGL::release() {}

#endif

}  // namespace dabcanvas
