// SPDX-License-Identifier: MIT
// What the host had current must be current again, whoever the host is.
#include "ESContext/ESCurrentScope.h"

#include <epoxy/egl.h>

#include <thread>

#include "ESContext/EGLSurfacelessView.h"
#include "support/GLTest.h"

namespace {

// Everything EGL says is current on this thread.
struct Current {
    EGLDisplay display = eglGetCurrentDisplay();
    EGLContext context = eglGetCurrentContext();
    EGLSurface draw = eglGetCurrentSurface(EGL_DRAW);
    EGLSurface read = eglGetCurrentSurface(EGL_READ);
    EGLenum api = eglQueryAPI();
    bool operator==(const Current&) const = default;
};

class ESCurrentScopeTest : public GLTest {
protected:
    void prepare() override {
        if (!dynamic_cast<EGLSurfacelessView*>(_context->openGLView())) {
            GTEST_SKIP() << "the context is not over EGL";
        }
        _display = eglGetCurrentDisplay();
        _current.reset();
    }

    void TearDown() override {
        _current.reset();
        if (_context) {
            _current.emplace(*_context);
        }
    }

    EGLDisplay _display = nullptr;
};

// A host's own context, of OpenGL ES, on a surface where the display has any.
class EGLHost {
public:
    explicit EGLHost(EGLDisplay display) : _display(display) {
        eglBindAPI(EGL_OPENGL_ES_API);
        const EGLint wanted[] = {EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_RENDERABLE_TYPE, EGL_OPENGL_ES2_BIT,
                                 EGL_NONE};
        EGLConfig config = nullptr;
        EGLint count = 0;
        eglChooseConfig(display, wanted, &config, 1, &count);
        const EGLint version[] = {EGL_CONTEXT_CLIENT_VERSION, 2, EGL_NONE};
        _context = eglCreateContext(display, count ? config : EGL_NO_CONFIG_KHR, EGL_NO_CONTEXT, version);
        if (count) {
            const EGLint size[] = {EGL_WIDTH, 4, EGL_HEIGHT, 4, EGL_NONE};
            _draw = eglCreatePbufferSurface(display, config, size);
            _read = eglCreatePbufferSurface(display, config, size);
        }
        made = eglMakeCurrent(display, _draw, _read, _context);
    }
    ~EGLHost() {
        eglMakeCurrent(_display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
        eglDestroyContext(_display, _context);
        for (const EGLSurface surface : {_draw, _read}) {
            if (surface != EGL_NO_SURFACE) {
                eglDestroySurface(_display, surface);
            }
        }
        eglBindAPI(EGL_OPENGL_API);
    }

    bool made = false;

private:
    EGLDisplay _display;
    EGLContext _context = EGL_NO_CONTEXT;
    EGLSurface _draw = EGL_NO_SURFACE;
    EGLSurface _read = EGL_NO_SURFACE;
};

}  // namespace

TEST_F(ESCurrentScopeTest, AHostsContextAndSurfacesAreCurrentAgainAfterEveryEntry) {
    EGLHost host(_display);
    ASSERT_TRUE(host.made);
    const Current before;
    {
        const ESCurrentScope current(*_context);
        EXPECT_TRUE(_context->createBufferWithSize({16, 16}));
        {
            const ESCurrentScope nested(*_context);
            EXPECT_TRUE(_context->openGLView()->isCurrent());
        }
        EXPECT_TRUE(_context->openGLView()->isCurrent()) << "only the outermost scope restores";
    }
    EXPECT_EQ(Current(), before);

    auto another = ESContext::init();
    ASSERT_TRUE(another);
    EXPECT_EQ(Current(), before) << "after making a context";
    another.reset();
    EXPECT_EQ(Current(), before) << "after destroying a context";
}

TEST_F(ESCurrentScopeTest, AnotherThreadIsRefusedWhileTheContextIsInUse) {
    {
        const ESCurrentScope current(*_context);
        std::thread([&] {
            const ESCurrentScope elsewhere(*_context);
            EXPECT_FALSE(elsewhere);
            EXPECT_FALSE(_context->createBufferWithSize({8, 8}));
            EXPECT_EQ(eglGetCurrentContext(), EGL_NO_CONTEXT);
        }).join();
        EXPECT_TRUE(_context->openGLView()->isCurrent());
    }
    std::thread([&] {
        const ESCurrentScope elsewhere(*_context);
        EXPECT_TRUE(elsewhere);
    }).join();
}
