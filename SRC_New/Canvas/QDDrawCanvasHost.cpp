// SPDX-License-Identifier: MIT
#include "Canvas/QDDrawCanvasHost.h"

#include <utility>

#include "Canvas/CanvasLayers.h"
#include "Preview/LeafDrawing.h"

using dabcanvas::Alive;
using dabcanvas::Rect;
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
      _before(host._calls == 0 ? host.present() : Before()) {
    ++host._calls;
}

QDDrawCanvas::Host::Call::~Call() {
    if (_alive && --_host._calls == 0) {
        _host.tellAll(_before);
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

double QDDrawCanvas::Host::pointScale() const {
    const MustStay stays(_canvas);
    return _canvas.pointScale();
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
    // The display hears of a begin first: the delegate may end the stroke, of which the display then hears after it.
    if (stage == StrokeStage::begin) {
        tellStroke(stage, point);
    }
    if (alive && delegate != nullptr) {
        (delegate->*callbacks.did)(_canvas, point);
    }
    if (alive && stage != StrokeStage::begin) {
        tellStroke(stage, point);
    }
    return static_cast<bool>(alive);
}

void QDDrawCanvas::Host::tellStroke(StrokeStage stage, QPointF point) {
    _strokeAt = point;
    switch (stage) {
        case StrokeStage::begin:
            _strokeBegan = true;
            _strokeStays = _strokeWasLeft = false;
            return _canvas.strokeDidBegin(point);
        case StrokeStage::move:
            return _strokeBegan ? _canvas.strokeDidMove(point) : void();
        case StrokeStage::end:
            return tellStrokeEnd();
    }
}

void QDDrawCanvas::Host::tellStrokeEnd() {
    if (std::exchange(_strokeBegan, false)) {
        _strokeStays ? _canvas.strokeDidEnd(_strokeAt) : _canvas.strokeWasWithdrawn();
    }
}

void QDDrawCanvas::Host::strokeWasLeft(bool stays) {
    const Call call(*this);
    _strokeStays = stays;
    _strokeWasLeft = true;
}

dabcanvas::CanvasLayers QDDrawCanvas::Host::layersOfCanvas() const {
    return dabcanvas::CanvasLayers(_canvas);
}

// ---- What is told when a call is done

QDDrawCanvas::Host::Before QDDrawCanvas::Host::present() const {
    return _watched == nullptr ? Before()
                               : Before{_watched->canUndo(), _watched->canRedo(), _watched->isModified()};
}

void QDDrawCanvas::Host::canvasSizeChanged() {
    const Call call(*this);
    _sizeChanged = true;
}

void QDDrawCanvas::Host::layersChanged() {
    const Call call(*this);
    _layersChanged = true;
}

void QDDrawCanvas::Host::brushChanged() {
    const Call call(*this);
    _brushChanged = true;
}

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

// Whatever is heard may destroy the canvas, and change what is yet to be told.
void QDDrawCanvas::Host::tellAll(const Before& before) {
    const Alive alive(life);
    if (std::exchange(_sizeChanged, false)) {
        _canvas.canvasSizeDidChange();
    }
    if (alive && std::exchange(_layersChanged, false)) {
        _canvas.layersDidChange();
    }
    if (const auto shown = alive ? std::exchange(_showsPreview, {}) : std::nullopt) {
        _canvas.showLeafDrawView(*shown);
    }
    const Rect area = alive && _watched != nullptr ? _watched->takeChanged() : Rect();
    if (!area.isEmpty()) {
        _canvas.pictureDidChange(QRect(area.x, area.y, area.width, area.height));
    }
    for (const QRectF& rect : alive ? std::exchange(_toShow, {}) : std::vector<QRectF>()) {
        if (alive) {
            _canvas.redisplayRect(rect);
        }
    }
    if (alive && _watched != nullptr) {
        tellDelegate(before);
    }
    if (alive && _watched != nullptr) {
        tellDisplay(before);
    }
}

void QDDrawCanvas::Host::tellDelegate(const Before& before) {
    const Alive alive(life);
    _lossIsNew = _watched->isLost() && !std::exchange(_lossTold, true);
    if (_lossIsNew && delegate != nullptr) {
        delegate->drawViewDidLoseContext(_canvas);
    }
    if (alive && delegate != nullptr && _watched->canUndo() != before.canUndo) {
        delegate->drawViewDidUpdateUndoStatus(_canvas, !before.canUndo);
    }
    if (alive && delegate != nullptr && _watched->canRedo() != before.canRedo) {
        delegate->drawViewDidUpdateRedoStatus(_canvas, !before.canRedo);
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

void QDDrawCanvas::Host::tellDisplay(const Before& before) {
    const Alive alive(life);
    if (std::exchange(_strokeWasLeft, false)) {
        tellStrokeEnd();
    }
    if (alive && std::exchange(_brushChanged, false)) {
        _canvas.brushDidChange();
    }
    if (alive && _watched->canUndo() != before.canUndo) {
        _canvas.canUndoDidChange(!before.canUndo);
    }
    if (alive && _watched->canRedo() != before.canRedo) {
        _canvas.canRedoDidChange(!before.canRedo);
    }
    if (alive && _watched->isModified() != before.isModified) {
        _canvas.modifiedDidChange(!before.isModified);
    }
    if (alive && std::exchange(_lossIsNew, false)) {
        _canvas.contextWasLost();
    }
}
