// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointF>
#include <optional>

#include "Brush/BrushModel.h"
#include "Viewport/HeldKey.h"

namespace dabcanvas::dabpainter {

class BrushCursor;
class CanvasViewport;

// While a key is held, moving the pointer over the canvas sizes the brush: to the right larger, by as much of itself
// wherever it began. The outline stays where the key was pressed.
class SizeDrag : public QObject {
    Q_OBJECT

public:
    // key: the action whose shortcut it is, see Commands::addHeld.
    SizeDrag(CanvasViewport& viewport, BrushCursor& cursor, BrushModel& brush, const QAction& key);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool filterKey(const QKeyEvent& event);
    void dragTo(QPointF at);

    CanvasViewport& _viewport;
    BrushCursor& _cursor;
    BrushModel& _brush;
    HeldKey _key;
    std::optional<QPointF> _from;  // since the first move
    float _radius = 0;
};

}  // namespace dabcanvas::dabpainter
