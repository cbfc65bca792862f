// SPDX-License-Identifier: MIT
// What a canvas asks and tells its host: the delegate and the display. Whatever the host does meanwhile, be it
// destroying the canvas, nothing here touches a member of one that is gone.
#include <utility>

#include "QDEAGLView/LeafDrawing.h"
#include "QDEAGLView/QDDrawCanvasScopes.h"

// ---- Questions, whose answer is waited for

QRectF QDDrawCanvas::shownFrame() const {
    const MustStay stays(*this);
    return displayFrame();
}

QPointF QDDrawCanvas::pointOf(const QDDrawTouch& touch) const {
    const MustStay stays(*this);
    return localPointWithTouch(touch);
}

bool QDDrawCanvas::isContextLost() const {
    return _esContext && _esContext->isLost();
}

// ---- Callbacks of a stroke. These return false when the canvas is gone.

// The delegate is asked anew before every call: a callback may take it off.
bool QDDrawCanvas::tell(Callback callback, QPointF point) {
    const Alive alive(*this);
    if (_delegate != nullptr) {
        (_delegate->*callback)(*this, point);
    }
    return static_cast<bool>(alive);
}

// A filter that makes the point unusable is not followed.
bool QDDrawCanvas::announce(Filter should, Callback will, QPointF& point) {
    const Alive alive(*this);
    if (_delegate != nullptr) {
        const QPointF filtered = (_delegate->*should)(*this, point);
        if (!alive) {
            return false;
        }
        if (acceptsSample(filtered, 0, 0)) {
            point = filtered;
        }
    }
    return tell(will, point);
}

// A preview's stroke comes onto the canvas before anything else does.
bool QDDrawCanvas::finishPreview() {
    const Alive alive(*this);
    _leafDrawView->finishPending();  // whose complention() may be the host's
    return static_cast<bool>(alive);
}

// ---- What is told when a call is done

void QDDrawCanvas::redisplayBufferRect(const QRectF& rect) {
    const Call call(*this);
    const QSizeF toView = scale();
    _toShow.emplace_back(rect.x() * toView.width(), rect.y() * toView.height(), rect.width() * toView.width(),
                         rect.height() * toView.height());
}

void QDDrawCanvas::redisplayAll() {
    const Call call(*this);
    _toShow.emplace_back(QPointF(0, 0), shownFrame().size());
}

void QDDrawCanvas::tellHost(bool couldUndo, bool couldRedo) {
    const Alive alive(*this);
    if (const auto shown = std::exchange(_showsLeaf, {})) {
        showLeafDrawView(*shown);
        if (!alive) {
            return;
        }
    }
    for (const QRectF& rect : std::exchange(_toShow, {})) {
        redisplayRect(rect);
        if (!alive) {
            return;
        }
    }
    const bool lossIsNew = isContextLost() && !std::exchange(_lossTold, true);
    if (lossIsNew && _delegate != nullptr) {
        _delegate->drawViewDidLoseContext(*this);
        if (!alive) {
            return;
        }
    }
    if (_delegate != nullptr && canUndo() != couldUndo) {
        _delegate->drawViewDidUpdateUndoStatus(*this, !couldUndo);
        if (!alive) {
            return;
        }
    }
    if (_delegate != nullptr && canRedo() != couldRedo) {
        _delegate->drawViewDidUpdateRedoStatus(*this, !couldRedo);
    }
}
