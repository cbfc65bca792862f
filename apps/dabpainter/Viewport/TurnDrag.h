// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointF>
#include <optional>

#include "Viewport/HeldKey.h"

class QSinglePointEvent;

namespace dabcanvas::dabpainter {

class CanvasViewport;

// While a key is held, dragging turns the canvas about the view's middle, as a sheet of paper under the hand.
class TurnDrag : public QObject {
    Q_OBJECT

public:
    TurnDrag(CanvasViewport& viewport, const QAction& key);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void drag(const QSinglePointEvent& event);

    CanvasViewport& _viewport;
    HeldKey _key;
    std::optional<QPointF> _from;  // while it is dragged
};

}  // namespace dabcanvas::dabpainter
