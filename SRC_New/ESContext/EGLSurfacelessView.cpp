// SPDX-License-Identifier: MIT
#include "ESContext/EGLSurfacelessView.h"

#ifdef DABCANVAS_HAVE_EGL

#include <epoxy/egl.h>

#include <array>
#include <vector>

namespace {

// The rendering API is bound per thread; a host may be drawing with OpenGL ES.
class ScopedOpenGLAPI {
public:
    ScopedOpenGLAPI() : _before(eglQueryAPI()) { _bound = eglBindAPI(EGL_OPENGL_API); }
    ~ScopedOpenGLAPI() { eglBindAPI(_before); }
    ScopedOpenGLAPI(const ScopedOpenGLAPI&) = delete;
    ScopedOpenGLAPI& operator=(const ScopedOpenGLAPI&) = delete;
    explicit operator bool() const { return _bound; }

private:
    EGLenum _before;
    bool _bound = false;
};

// What the driver is asked for besides: to tell of a reset, which it may not know how to.
EGLContext makeContext(EGLDisplay display, bool tellsOfResets) {
    EGLConfig config = EGL_NO_CONFIG_KHR;
    if (!epoxy_has_egl_extension(display, "EGL_KHR_no_config_context")) {
        const EGLint wanted[] = {EGL_SURFACE_TYPE, 0, EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT, EGL_NONE};
        EGLint count = 0;
        if (!eglChooseConfig(display, wanted, &config, 1, &count) || count < 1) {
            return EGL_NO_CONTEXT;
        }
    }
    std::vector<EGLint> attributes = {
        EGL_CONTEXT_MAJOR_VERSION_KHR,       3,
        EGL_CONTEXT_MINOR_VERSION_KHR,       2,
        EGL_CONTEXT_OPENGL_PROFILE_MASK_KHR, EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT_KHR};
    if (epoxy_has_egl_extension(display, "EGL_KHR_context_flush_control")) {
        attributes.insert(attributes.end(),
                          {EGL_CONTEXT_RELEASE_BEHAVIOR_KHR, EGL_CONTEXT_RELEASE_BEHAVIOR_NONE_KHR});
    }
    if (tellsOfResets) {
        attributes.insert(attributes.end(), {EGL_CONTEXT_OPENGL_RESET_NOTIFICATION_STRATEGY_KHR,
                                             EGL_LOSE_CONTEXT_ON_RESET_KHR});
    }
    attributes.push_back(EGL_NONE);
    return eglCreateContext(display, config, EGL_NO_CONTEXT, attributes.data());
}

EGLContext makeContext(EGLDisplay display) {
    if (epoxy_has_egl_extension(display, "EGL_EXT_create_context_robustness")) {
        const EGLContext context = makeContext(display, true);
        if (context != EGL_NO_CONTEXT) {
            return context;
        }
    }
    return makeContext(display, false);
}

// Whether an initialised display can give what is needed; tried by making a context.
bool isUsable(EGLDisplay display) {
    if (!epoxy_has_egl_extension(display, "EGL_KHR_surfaceless_context") ||
        !epoxy_has_egl_extension(display, "EGL_KHR_create_context")) {
        return false;
    }
    const EGLContext context = makeContext(display);
    if (context == EGL_NO_CONTEXT) {
        return false;
    }
    eglDestroyContext(display, context);
    return true;
}

EGLDisplay usableDisplay(EGLenum platform, void* native) {
    const EGLDisplay display = eglGetPlatformDisplayEXT(platform, native, nullptr);
    if (display == EGL_NO_DISPLAY || !eglInitialize(display, nullptr, nullptr)) {
        return EGL_NO_DISPLAY;
    }
    return isUsable(display) ? display : EGL_NO_DISPLAY;
}

EGLDisplay findDisplay() {
    if (!epoxy_has_egl()) {
        return EGL_NO_DISPLAY;
    }
    const ScopedOpenGLAPI api;
    if (!api) {
        return EGL_NO_DISPLAY;
    }
    if (epoxy_has_egl_extension(EGL_NO_DISPLAY, "EGL_MESA_platform_surfaceless")) {
        const EGLDisplay display = usableDisplay(EGL_PLATFORM_SURFACELESS_MESA, nullptr);
        if (display != EGL_NO_DISPLAY) {
            return display;
        }
    }
    if (epoxy_has_egl_extension(EGL_NO_DISPLAY, "EGL_EXT_platform_device") &&
        epoxy_has_egl_extension(EGL_NO_DISPLAY, "EGL_EXT_device_enumeration")) {
        std::array<EGLDeviceEXT, 16> devices;
        EGLint count = 0;
        eglQueryDevicesEXT(static_cast<EGLint>(devices.size()), devices.data(), &count);
        for (EGLint i = 0; i < count; ++i) {
            const EGLDisplay display =
                usableDisplay(EGL_PLATFORM_DEVICE_EXT, devices[static_cast<std::size_t>(i)]);
            if (display != EGL_NO_DISPLAY) {
                return display;
            }
        }
    }
    return EGL_NO_DISPLAY;
}

}  // namespace

std::unique_ptr<EGLSurfacelessView> EGLSurfacelessView::create(QString* reason) {
    // Looked for once a process: a missing driver does not appear later, and finding out is slow.
    static const EGLDisplay display = findDisplay();
    if (display == EGL_NO_DISPLAY) {
        if (reason) {
            *reason = QStringLiteral("no EGL display gives a surfaceless OpenGL 3.2 core context");
        }
        return nullptr;
    }
    const ScopedOpenGLAPI api;
    const EGLContext context = makeContext(display);
    if (context == EGL_NO_CONTEXT) {
        if (reason) {
            *reason = QStringLiteral("EGL gave no further context (error 0x%1)").arg(eglGetError(), 4, 16);
        }
        return nullptr;
    }
    return std::unique_ptr<EGLSurfacelessView>(new EGLSurfacelessView(display, context));
}

EGLSurfacelessView::~EGLSurfacelessView() {
    doneCurrent();
    eglDestroyContext(_display, _context);
}

bool EGLSurfacelessView::makeCurrent() {
    if (isCurrent()) {
        return true;
    }
    const ESHostContext host = ESHostContext::capture();
    ESHostContext::releaseGLX();
    if (eglMakeCurrent(_display, EGL_NO_SURFACE, EGL_NO_SURFACE, _context)) {
        return true;
    }
    _isLost = eglGetError() == EGL_CONTEXT_LOST;
    if (host.hasGLX()) {
        host.restoreNative();
    }
    return false;
}

bool EGLSurfacelessView::isCurrent() const {
    return eglGetCurrentContext() == _context;
}

#else

std::unique_ptr<EGLSurfacelessView> EGLSurfacelessView::create(QString* reason) {
    if (reason) {
        *reason = QStringLiteral("this was built without EGL");
    }
    return nullptr;
}
EGLSurfacelessView::~EGLSurfacelessView() = default;
bool EGLSurfacelessView::makeCurrent() {
    return false;
}
bool EGLSurfacelessView::isCurrent() const {
    return false;
}

#endif

void EGLSurfacelessView::doneCurrent() {
    if (isCurrent()) {
        ESHostContext::releaseEGL();
    }
}

// Qt was never told that its context went, so its own record still holds once the window system's does.
void EGLSurfacelessView::restoreHost(const ESHostContext& host) {
    host.restoreNative();
}
