// SPDX-License-Identifier: MIT
#include "Viewport/HeldKey.h"

#include <QAction>
#include <QKeyEvent>

#include "QDEAGLView/QDDrawView.h"
#include "Viewport/CanvasViewport.h"

namespace dabcanvas::dabpainter {

bool HeldKey::filter(const QKeyEvent& event) {
    const QKeySequence key = _action.shortcut();
    if (key.isEmpty() || event.key() != key[0].key())
        return false;
    if (event.type() == QEvent::KeyRelease) {
        const bool wasDown = _isDown;
        _isDown = _isDown && event.isAutoRepeat();
        return wasDown;
    }
    const QDDrawView* view = _viewport.view();
    if (!_isDown)
        _isDown = event.modifiers() == key[0].keyboardModifiers() && view && !view->isDrawing() &&
                  _viewport.takesKeys();
    return _isDown;
}

}  // namespace dabcanvas::dabpainter
