// SPDX-License-Identifier: MIT
#include "Canvas/QDDrawCanvasHost.h"

#include <utility>

#include "Preview/LeafDrawing.h"

using dabcanvas::Alive;
using dabcanvas::StrokeStage;

namespace {

using Filter = QPointF (QDDrawViewDelegate::*)(QDDrawCanvas&, QPointF);
using Callback = void (QDDrawViewDelegate::*)(QDDrawCanvas&, QPointF);
using Delegate = QDDrawViewDelegate;

struct StageCallbacks {
    Filter should;
    Callback will, did;
};

// In the order of StrokeStage.
constexpr StageCallbacks kCallbacks[] = {
    {&Delegate::drawViewShouldDrawBegin, &Delegate::drawViewWillDrawBegin, &Delegate::drawViewDidDrawBegin},
    {&Delegate::drawViewShouldDrawMove, &Delegate::drawViewWillDrawMove, &Delegate::drawViewDidDrawMove},
    {&Delegate::drawViewShouldDrawEnd, &Delegate::drawViewWillDrawEnd, &Delegate::drawViewDidDrawEnd},
};

}  // namespace

void QDDrawCanvas::Host::mustNotBeNeeded() const {
    if (neededBy > 0) {
        qFatal(
            "A canvas was destroyed by a call of its own that cannot do without it: a question about its "
            "display, or an "
            "event that hides or resizes it");
    }
}

// Whether the calling thread was in no call yet.
bool QDDrawCanvas::Host::takeThread() {
    const std::thread::id own = std::this_thread::get_id(), user = _user.exchange(own);
#if !defined(NDEBUG) || defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    if (user != std::thread::id() && user != own) {
        qFatal("a canvas was used by two threads at once");
    }
#endif
    return user == std::thread::id();
}

QDDrawCanvas::Host::Call::Call(Host& host)
    : _host(host),
      _alive(host.life),
      _isOutermost(host.takeThread()),
      _canUndo(host._watched != nullptr && host._watched->canUndo()),
      _canRedo(host._watched != nullptr && host._watched->canRedo()) {
    ++host._calls;
}

QDDrawCanvas::Host::Call::~Call() {
    if (_alive && --_host._calls == 0) {
        _host.tellAll(_canUndo, _canRedo);
    }
    if (_alive && _isOutermost) {
        _host._user = std::thread::id();
    }
}

// ---- Questions

QRectF QDDrawCanvas::Host::shownFrame() const {
    const MustStay stays(_canvas);
    return _canvas.displayFrame();
}

QPointF QDDrawCanvas::Host::pointOf(const QDDrawTouch& touch) const {
    const MustStay stays(_canvas);
    return _canvas.localPointWithTouch(touch);
}

std::unique_ptr<LeafDrawing> QDDrawCanvas::Host::makePreview(const QRectF& buffer) const {
    const MustStay stays(_canvas);
    return _canvas.makeLeafDrawView(buffer);
}

// ---- Callbacks. The delegate is asked anew before every call: a callback may take it off.

bool QDDrawCanvas::Host::announce(StrokeStage stage, QPointF& point) {
    const Alive alive(life);
    const StageCallbacks& callbacks = kCallbacks[static_cast<std::size_t>(stage)];
    if (delegate != nullptr) {
        const QPointF filtered = (delegate->*callbacks.should)(_canvas, point);
        if (!alive) {
            return false;
        }
        if (_watched->acceptsPoint(filtered)) {
            point = filtered;  // one that makes the point unusable is not followed
        }
    }
    if (delegate != nullptr) {
        (delegate->*callbacks.will)(_canvas, point);
    }
    return static_cast<bool>(alive);
}

bool QDDrawCanvas::Host::tellDone(StrokeStage stage, QPointF point) {
    const Alive alive(life);
    const StageCallbacks& callbacks = kCallbacks[static_cast<std::size_t>(stage)];
    if (delegate != nullptr) {
        (delegate->*callbacks.did)(_canvas, point);
    }
    return static_cast<bool>(alive);
}

// ---- What is told when a call is done

void QDDrawCanvas::Host::redisplay(const QRectF& viewRect) {
    const Call call(*this);
    _toShow.push_back(viewRect);
}

void QDDrawCanvas::Host::redisplayAll() {
    redisplay(QRectF(QPointF(0, 0), shownFrame().size()));
}

void QDDrawCanvas::Host::showPreview(bool shown) {
    const Call call(*this);
    _showsPreview = shown;
}

void QDDrawCanvas::Host::tellAll(bool couldUndo, bool couldRedo) {
    const Alive alive(life);
    if (const auto shown = std::exchange(_showsPreview, {})) {
        _canvas.showLeafDrawView(*shown);
    }
    if (!alive) {
        return;
    }
    for (const QRectF& rect : std::exchange(_toShow, {})) {
        _canvas.redisplayRect(rect);
        if (!alive) {
            return;
        }
    }
    if (_watched == nullptr) {
        return;
    }
    const bool lossIsNew = _watched->isLost() && !std::exchange(_lossTold, true);
    if (lossIsNew && delegate != nullptr) {
        delegate->drawViewDidLoseContext(_canvas);
    }
    if (alive && delegate != nullptr && _watched->canUndo() != couldUndo) {
        delegate->drawViewDidUpdateUndoStatus(_canvas, !couldUndo);
    }
    if (alive && delegate != nullptr && _watched->canRedo() != couldRedo) {
        delegate->drawViewDidUpdateRedoStatus(_canvas, !couldRedo);
    }
    if (alive && delegate != nullptr && _watched->canUndoAgain()) {
        delegate->drawViewCanUndoAgain(_canvas);
    }
    if (!alive || delegate == nullptr) {
        return;
    }
    if (const auto [dropped, left] = _watched->stepsDropped(); dropped > 0) {
        delegate->drawViewDidDropUndoSteps(_canvas, dropped, left);
    }
}
