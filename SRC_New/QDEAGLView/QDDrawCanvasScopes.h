// SPDX-License-Identifier: MIT
// Scopes that the canvas's own sources open; nothing for embedders.
#pragma once

#include <QLoggingCategory>
#include <chrono>
#include <memory>

#include "ESContext/ESCurrentScope.h"
#include "ESRender/ESImageRender.h"
#include "ESRender/ESSmudgeRender.h"
#include "QDEAGLView/QDDrawCanvas.h"

Q_DECLARE_LOGGING_CATEGORY(lcDabcanvas)

// Whether a canvas is still there after something that may have destroyed it. Where it is not, no member may be touched.
class QDDrawCanvas::Alive {
public:
    explicit Alive(const QDDrawCanvas& canvas) : _life(canvas._life) {}
    explicit operator bool() const { return !_life.expired(); }

private:
    std::weak_ptr<void> _life;
};

// One call of the host's: the first local of every function that may change what the host is to hear of. That waits for
// the end of the outermost one, when none of the canvas's scopes is open and no member is needed any more: hearing it,
// the host may destroy the canvas.
struct QDDrawCanvas::Call {
    explicit Call(QDDrawCanvas& canvas)
        : _canvas(canvas), _alive(canvas), _canUndo(canvas.canUndo()), _canRedo(canvas.canRedo()) {
        ++canvas._calls;
    }
    ~Call() {
        if (_alive && --_canvas._calls == 0) {
            _canvas.tellHost(_canUndo, _canRedo);
        }
    }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

private:
    QDDrawCanvas& _canvas;
    Alive _alive;
    bool _canUndo, _canRedo;
};

// One run of line-process calls: this canvas's GL context and its copy of the line process's globals are
// current, so that strokes of several canvases may interleave. No delegate is called inside one.
struct QDDrawCanvas::StrokeScope {
    explicit StrokeScope(QDDrawCanvas& canvas)
        : _canvas(canvas), _current(*canvas._esContext), _outer(lpSharedState()) {
        lpSetSharedState(canvas._strokeState);
    }
    ~StrokeScope() {
        _canvas._strokeState = lpSharedState();
        lpSetSharedState(_outer);
    }
    StrokeScope(const StrokeScope&) = delete;
    StrokeScope& operator=(const StrokeScope&) = delete;

    explicit operator bool() const { return static_cast<bool>(_current); }

private:
    QDDrawCanvas& _canvas;
    ESCurrentScope _current;
    LPSharedState _outer;
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
