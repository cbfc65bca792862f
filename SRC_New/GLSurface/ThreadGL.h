// SPDX-License-Identifier: MIT
// The OpenGL context that the surfaces made on one thread share, and their programs: a second surface costs its pixels.
//
// Owns     view and programs; kept by the surfaces that lie in it, and gone with the last of them.
// Thread   whichever holds `use`, from before it makes the context current until it has given it back. Surfaces that
//          went to another thread wait for each other there, and are none the wiser.
// Loss     is that of every surface in it; the next one that is made gets another context.
#pragma once

#include <memory>
#include <mutex>

#include "ESContext/ESContext.h"
#include "ESContext/ESOpenGLView.h"
#include "ESRender/Utilities/ProgramPool.h"

namespace dabcanvas {

class ThreadGL {
public:
    // This thread's, made unless there is one that can be used now. Null, after one log line, without OpenGL 3.2.
    static std::shared_ptr<ThreadGL> ofThisThread();
    explicit ThreadGL(std::unique_ptr<ESOpenGLView> view) : _view(std::move(view)) {}
    // Leaves the host's context current.
    ~ThreadGL();
    ThreadGL(const ThreadGL&) = delete;
    ThreadGL& operator=(const ThreadGL&) = delete;

    // Buffers of their own in the shared context, none made yet; null, after one log line, for one that is too old.
    static std::unique_ptr<ESContext> makeContext(const std::shared_ptr<ThreadGL>& gl);
    const std::shared_ptr<ProgramPool>& programs() const { return _programs; }
    ESOpenGLView& view() { return *_view; }

    std::recursive_mutex use;
    bool isWarm = false;  // its programs have drawn

private:
    bool isUsable();

    std::unique_ptr<ESOpenGLView> _view;
    std::shared_ptr<ProgramPool> _programs = std::make_shared<ProgramPool>();
};

}  // namespace dabcanvas
