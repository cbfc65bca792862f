// SPDX-License-Identifier: MIT
#include "GLSurface/ThreadGL.h"

#include <epoxy/gl.h>

#include <string_view>

#include "ESContext/ESCurrentScope.h"
#include "ESRender/Utilities/ESGLErrors.h"

namespace dabcanvas {
namespace {

constexpr char kFile[] = "SRC_New/GLSurface/ThreadGL";
constexpr int kScenes = 64;  // of llvmpipe
constexpr GLsizei kSceneSide = 1024;

// The shared view, as one ESContext sees it: only its frame is its own.
class SharedView final : public ESOpenGLView {
public:
    explicit SharedView(std::shared_ptr<ThreadGL> gl) : _gl(std::move(gl)) {}

    bool makeCurrent() override { return _gl->view().makeCurrent(); }
    bool isCurrent() const override { return _gl->view().isCurrent(); }
    bool isLost() const override { return _gl->view().isLost(); }
    void doneCurrent() override { _gl->view().doneCurrent(); }
    void flushBuffer() override { _gl->view().flushBuffer(); }
    ESHostContext saveHost() const override { return _gl->view().saveHost(); }
    void restoreHost(const ESHostContext& host) override { _gl->view().restoreHost(host); }

private:
    std::shared_ptr<ThreadGL> _gl;
};

}  // namespace

std::shared_ptr<ThreadGL> ThreadGL::ofThisThread() {
    thread_local std::weak_ptr<ThreadGL> shared;
    auto gl = shared.lock();
    if (!gl || !gl->isUsable()) {
        auto view = ESContext::makePlatformView();
        gl = view ? std::make_shared<ThreadGL>(std::move(view)) : nullptr;
        shared = gl;
    }
    return gl;
}

// Not once the driver has taken it away, nor while it is in use on another thread, which may take long.
bool ThreadGL::isUsable() {
    const std::unique_lock lock(use, std::try_to_lock);
    const ESCurrentScope current(lock ? _view.get() : nullptr);
    return current && !drainFindsLostContext(kFile, __LINE__);
}

std::unique_ptr<ESContext> ThreadGL::makeContext(const std::shared_ptr<ThreadGL>& gl) {
    return ESContext::init(std::make_unique<SharedView>(gl));
}

// Driver: Mesa's llvmpipe. What it draws goes through 64 scenes, and each keeps the textures and targets that it was last
// drawn with until it is used again, long after they were deleted. So as many are used at once, none of them done at once.
void ThreadGL::dropDeleted() {
    const auto* const driver = reinterpret_cast<const char*>(glGetString(GL_RENDERER));
    if (driver == nullptr || std::string_view(driver).find("llvmpipe") == std::string_view::npos) {
        return;
    }
    GLuint pixels = 0, target = 0;
    glGenRenderbuffers(1, &pixels);
    glBindRenderbuffer(GL_RENDERBUFFER, pixels);
    glRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, kSceneSide, kSceneSide);
    glGenFramebuffers(1, &target);
    glBindFramebuffer(GL_FRAMEBUFFER, target);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, pixels);
    glDisable(GL_SCISSOR_TEST);
    for (int scene = 0; scene < kScenes; ++scene) {
        glClear(GL_COLOR_BUFFER_BIT);
        glFlush();
    }
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    glDeleteFramebuffers(1, &target);
    glDeleteRenderbuffers(1, &pixels);
    drainGLErrors(kFile, __LINE__);
}

ThreadGL::~ThreadGL() {
    const ESCurrentScope current(_view.get());
    if (!current) {
        // Deleting their names would hit the host's; they go with the context.
        static_cast<void>(new std::shared_ptr(std::move(_programs)));
    }
    _programs.reset();
}

}  // namespace dabcanvas
