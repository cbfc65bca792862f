// SPDX-License-Identifier: MIT
#pragma once

class QAction;
class QKeyEvent;

namespace dabcanvas::dabpainter {

class CanvasViewport;

// An action's key that does something to the canvas for as long as it is held down, see Commands::addHeld.
class HeldKey {
public:
    HeldKey(const CanvasViewport& viewport, const QAction& action) : _viewport(viewport), _action(action) {}

    // Whether the event is its own, which nobody else is to hear of then.
    bool filter(const QKeyEvent& event);
    bool isDown() const { return _isDown; }
    // Nobody will tell of its release.
    void forget() { _isDown = false; }

private:
    const CanvasViewport& _viewport;
    const QAction& _action;
    bool _isDown = false;
};

}  // namespace dabcanvas::dabpainter
