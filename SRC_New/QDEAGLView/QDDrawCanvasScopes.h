// SPDX-License-Identifier: MIT
// Scopes that the canvas's own sources open; nothing for embedders.
#pragma once

#include <QLoggingCategory>
#include <chrono>
#include <optional>
#include <thread>
#include <utility>

#include "ESContext/ESCurrentScope.h"
#include "ESRender/ESImageRender.h"
#include "ESRender/ESSmudgeRender.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "LineProcess/LPProperties.h"
#include "QDEAGLView/QDDrawCanvas.h"

Q_DECLARE_LOGGING_CATEGORY(lcDabcanvas)

namespace dabcanvas {

// Ends debug and sanitizer builds when another thread is in the middle of painting on the canvas of this context.
inline void checkThread([[maybe_unused]] const ESContext& context) {
#if DABCANVAS_GL_CHECKS
    const std::thread::id user = context.openGLView()->user();
    if (user != std::thread::id() && user != std::this_thread::get_id()) {
        qFatal("a canvas was used by two threads at once");
    }
#endif
}

}  // namespace dabcanvas

// One run of line-process calls: this canvas's GL context and its copy of what the line process keeps for a thread
// are current, its random numbers included, so that strokes of several canvases may interleave. May nest. No
// delegate is called inside one.
struct QDDrawCanvas::StrokeScope {
    explicit StrokeScope(QDDrawCanvas& canvas) : _canvas(canvas), _current(*canvas._esContext) {
        dabcanvas::checkThread(*canvas._esContext);
        if (!std::exchange(canvas._strokeStateIsIn, true)) {
            canvas._esContext->openGLView()->user() = std::this_thread::get_id();
            _outer = Outer{lpSharedState(), _lpParaObj};
            lpSetSharedState(canvas._strokeState);
        }
    }
    ~StrokeScope() {
        if (_outer) {
            _canvas._strokeState = lpSharedState();
            lpSetSharedState(_outer->state);
            lpSetParaObj(_outer->record);
            _canvas._strokeStateIsIn = false;
            _canvas._esContext->openGLView()->user() = std::thread::id();
        }
    }
    StrokeScope(const StrokeScope&) = delete;
    StrokeScope& operator=(const StrokeScope&) = delete;

    explicit operator bool() const { return static_cast<bool>(_current); }

private:
    QDDrawCanvas& _canvas;
    ESCurrentScope _current;
    struct Outer {
        LPSharedState state;
        LPLineParams* record;
    };
    std::optional<Outer> _outer;  // none in a nested one
};

// Adds the time a stage takes to the canvas's statistics. Costs one branch while profiling is off.
struct QDDrawCanvas::StageTimer {
    StageTimer(QDDrawCanvas& canvas, Stage stage) : _canvas(canvas), _stage(stage) {
        if (_canvas._profiling) {
            _start = std::chrono::steady_clock::now();
        }
    }
    ~StageTimer() {
        if (!_canvas._profiling) {
            return;
        }
        if (_stage != Stage::geometry) {
            glFinish();  // drivers work ahead; without this the read-back would be charged for everything
        }
        const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - _start;
        StrokeStats& stats = _canvas._stats;
        (_stage == Stage::geometry  ? stats.geometrySeconds
         : _stage == Stage::drawing ? stats.drawingSeconds
                                    : stats.compositingSeconds) += spent.count();
    }
    StageTimer(const StageTimer&) = delete;
    StageTimer& operator=(const StageTimer&) = delete;

private:
    QDDrawCanvas& _canvas;
    Stage _stage;
    std::chrono::steady_clock::time_point _start;
};
