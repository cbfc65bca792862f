// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPolygonF>
#include <optional>

#include "Selection/FloatFrame.h"
#include "Selection/SelectedArea.h"

class QKeyEvent;
class QMouseEvent;

namespace dabcanvas::dabpainter {

class CanvasPointer;
class CanvasViewport;
class SelectionEditor;
class SelectionPane;

// What mouse, pen and keyboard do to a selection: draw its outline, drag what is selected, and pull a floating picture by its
// handles. Watches the view's events before the pointer does; what it leaves alone paints, after what floats was put down.
class SelectionTool : public QObject {
    Q_OBJECT

public:
    enum class Kind { none, rectangle, lasso };

    SelectionTool(SelectionEditor& editor, CanvasViewport& viewport, CanvasPointer& pointer);

    Kind kind() const { return _kind; }
    void setKind(Kind kind);
    // To be called with every new view.
    void watchView();
    // A drag in progress is given up.
    void endDrag();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void kindChanged();

private:
    // Whether the left button is this tool's, and not the brush's.
    bool takesPointer() const;
    std::optional<Grip> gripAt(QPointF at) const;
    QPainterPath outline() const;
    bool filterPointer(QEvent& event);
    bool filterMouse(QMouseEvent& event);
    bool takesKey(const QKeyEvent& event) const;
    void doKey(const QKeyEvent& event);
    bool press(QPointF at, Qt::KeyboardModifiers held);
    void drag(QPointF at, Qt::KeyboardModifiers held);
    void release();
    void chooseCursor(std::optional<QPointF> at);
    void tellPointer();

    SelectionEditor& _editor;
    CanvasViewport& _viewport;
    CanvasPointer& _pointer;
    SelectionPane* _pane;
    Kind _kind = Kind::none;

    enum class Drag { none, outline, picture };
    Drag _drag = Drag::none;
    AreaMode _mode = AreaMode::replace;
    QPolygonF _way;  // buffer pixels
    Grip _grip;
    std::optional<FloatingPicture> _before;
    bool _liftsFirst = false;  // what is selected, with the first move
    std::optional<Qt::CursorShape> _cursor;
};

}  // namespace dabcanvas::dabpainter
