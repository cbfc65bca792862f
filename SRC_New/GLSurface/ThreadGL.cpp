// SPDX-License-Identifier: MIT
#include "GLSurface/ThreadGL.h"

#include "ESContext/ESCurrentScope.h"
#include "ESRender/Utilities/ESGLErrors.h"

namespace dabcanvas {
namespace {

constexpr char kFile[] = "SRC_New/GLSurface/ThreadGL";

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

ThreadGL::~ThreadGL() {
    const ESCurrentScope current(_view.get());
    if (!current) {
        // Deleting their names would hit the host's; they go with the context.
        static_cast<void>(new std::shared_ptr(std::move(_programs)));
    }
    _programs.reset();
}

}  // namespace dabcanvas
