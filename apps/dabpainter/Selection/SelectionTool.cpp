// SPDX-License-Identifier: MIT
#include "Selection/SelectionTool.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineF>
#include <QMouseEvent>
#include <cmath>
#include <utility>

#include "QDEAGLView/QDDrawView.h"
#include "Selection/SelectionEditor.h"
#include "Selection/SelectionPane.h"
#include "Viewport/CanvasPointer.h"
#include "Viewport/CanvasViewport.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr double kStill = 3;  // points: a press that moves less is a click
constexpr int kFar = 10;      // pixels, with Shift

QPoint arrowOf(int key) {
    switch (key) {
        case Qt::Key_Left:
            return {-1, 0};
        case Qt::Key_Right:
            return {1, 0};
        case Qt::Key_Up:
            return {0, -1};
        case Qt::Key_Down:
            return {0, 1};
        default:
            return {};
    }
}

AreaMode modeOf(Qt::KeyboardModifiers held) {
    return held & Qt::ShiftModifier     ? AreaMode::add
           : held & Qt::ControlModifier ? AreaMode::takeAway
                                        : AreaMode::replace;
}

// Of a handle, by where it is as seen from the middle of what it pulls.
Qt::CursorShape sizeCursor(QPointF way) {
    constexpr Qt::CursorShape kShapes[] = {Qt::SizeHorCursor, Qt::SizeFDiagCursor, Qt::SizeVerCursor,
                                           Qt::SizeBDiagCursor};
    return kShapes[(int(std::lround(std::atan2(way.y(), way.x()) / (std::acos(0) / 2))) + 8) % 4];
}

}  // namespace

SelectionTool::SelectionTool(SelectionEditor& editor, CanvasViewport& viewport, CanvasPointer& pointer)
    : QObject(&viewport),
      _editor(editor),
      _viewport(viewport),
      _pointer(pointer),
      _pane(new SelectionPane(editor, viewport)) {
    connect(&editor, &SelectionEditor::floats, this, &SelectionTool::tellPointer);
    qApp->installEventFilter(this);  // before the pointer, which does so as well
}

void SelectionTool::setKind(Kind kind) {
    if (kind == _kind)
        return;
    endDrag();
    _editor.settle();
    _kind = kind;
    tellPointer();
    emit kindChanged();
}

void SelectionTool::watchView() {
    endDrag();
    _cursor.reset();  // of another one
    tellPointer();
}

bool SelectionTool::takesPointer() const {
    return _editor.canvas() && (_kind != Kind::none || _editor.floating());
}

void SelectionTool::tellPointer() {
    _pointer.setSelecting(takesPointer());
    if (!takesPointer())
        chooseCursor({});
}

// ---- Events

bool SelectionTool::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    if (isKey && watched == &_viewport && takesKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        if (event->type() == QEvent::KeyPress)
            doKey(*static_cast<QKeyEvent*>(event));
        return true;
    }
    if (event->type() == QEvent::ApplicationDeactivate && watched == qApp)
        release();  // nobody will tell of it
    return _viewport.view() && watched == _viewport.view() && filterPointer(*event);
}

bool SelectionTool::filterPointer(QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
            return filterMouse(static_cast<QMouseEvent&>(event));
        case QEvent::TouchBegin:
            if (!_pointer.fingersPaint())
                return false;  // they move the canvas
            [[fallthrough]];
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease:
            if (!takesPointer() && _drag == Drag::none)
                return false;
            event.ignore();  // a mouse event follows that is made of it
            return true;
        default:
            return false;
    }
}

bool SelectionTool::filterMouse(QMouseEvent& event) {
    const QPointF at = event.position();
    const bool isPress =
        event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
    if (_drag != Drag::none) {
        if (event.type() == QEvent::MouseMove && (event.buttons() & Qt::LeftButton)) {
            drag(at, event.modifiers());
            return true;
        }
        release();  // perhaps one that nobody told of
        if (!isPress)
            return event.type() == QEvent::MouseButtonRelease;
    }
    if (!takesPointer() || !_pointer.isFree()) {
        chooseCursor({});
        return false;
    }
    chooseCursor(at);
    if (!isPress || event.button() != Qt::LeftButton)
        return false;
    _viewport.setFocus(Qt::MouseFocusReason);
    if (event.type() == QEvent::MouseButtonDblClick && _editor.floating() && gripAt(at) == Grip()) {
        _editor.settle();
        return true;
    }
    return press(at, event.modifiers());
}

// ---- Keyboard

bool SelectionTool::takesKey(const QKeyEvent& event) const {
    const bool isSelected = _editor.floating() || !_editor.area().isEmpty();
    switch (event.key()) {
        case Qt::Key_Escape:
            return isSelected || _drag != Drag::none;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return _editor.floating();
        default:
            return !arrowOf(event.key()).isNull() && _editor.canvas() && isSelected &&
                   (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
    }
}

void SelectionTool::doKey(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Escape) {
        if (_drag != Drag::none)
            endDrag();
        else if (_editor.floating())
            _editor.giveUp();
        else
            _editor.selectNone();
        return;
    }
    release();
    if (const QPoint arrow = arrowOf(event.key()); !arrow.isNull())
        _editor.nudge(arrow * (event.modifiers() & Qt::ShiftModifier ? kFar : 1));
    else
        _editor.settle();
}

// ---- Dragging

std::optional<Grip> SelectionTool::gripAt(QPointF at) const {
    const FloatingPicture* floating = _editor.floating();
    return floating ? FloatFrame(*floating, _viewport.view()->bufferToView()).gripAt(at) : std::nullopt;
}

// Whether the press is this tool's.
bool SelectionTool::press(QPointF at, Qt::KeyboardModifiers held) {
    const QPointF place = _viewport.bufferPoint(at);
    const std::optional<Grip> grip = gripAt(at);
    const AreaMode mode = modeOf(held);
    _pointer.endStroke();
    _way = {place};
    if (_editor.floating() && !grip) {
        _editor.settle();
        if (_kind == Kind::none)
            return false;
    }
    _liftsFirst = !grip && mode == AreaMode::replace && _editor.area().contains(place);
    if (grip || _liftsFirst) {
        _drag = Drag::picture;
        _grip = grip.value_or(Grip());
        _before = grip ? std::optional(*_editor.floating()) : std::nullopt;
    } else {
        _drag = Drag::outline;
        _mode = mode;
    }
    return true;
}

void SelectionTool::drag(QPointF at, Qt::KeyboardModifiers held) {
    const QPointF place = _viewport.bufferPoint(at);
    const double moved = QLineF(_viewport.pointOfBuffer(_way.last()), at).length();
    if (_drag == Drag::outline) {
        if (moved < (_way.size() == 1 ? kStill : 1))
            return;
        _way << place;
        _pane->setDraft(outline());
        return;
    }
    if (_liftsFirst) {
        if (moved < kStill)
            return;
        _liftsFirst = false;
        if (!_editor.lift())
            return endDrag();
        _before = *_editor.floating();
    }
    const bool aboutCentre = held & (Qt::ControlModifier | Qt::AltModifier);
    _editor.change(
        pulled(*_before, _grip, {_way.first(), place, bool(held & Qt::ShiftModifier), aboutCentre}));
}

void SelectionTool::release() {
    const Drag ended = std::exchange(_drag, Drag::none);
    if (ended == Drag::outline) {
        _pane->setDraft({});
        // A click selects nothing.
        _editor.select(_way.size() > 1 ? outline() : QPainterPath(), _mode);
    } else if (ended == Drag::picture && _liftsFirst) {
        _editor.selectNone();
    }
}

void SelectionTool::endDrag() {
    const Drag ended = std::exchange(_drag, Drag::none);
    _pane->setDraft({});
    if (ended == Drag::picture && _before)
        _editor.change(*_before);
    _before.reset();
}

QPainterPath SelectionTool::outline() const {
    return _kind == Kind::rectangle ? rectangleArea(_way.first(), _way.last()) : lassoArea(_way);
}

// ---- What the pointer shows

void SelectionTool::chooseCursor(std::optional<QPointF> at) {
    std::optional<Qt::CursorShape> shape;
    if (at) {
        const std::optional<Grip> grip = gripAt(*at);
        const QTransform& toView = _viewport.view()->bufferToView();
        shape = grip && grip->kind == Grip::stretch
                    ? sizeCursor(toView.map(_editor.floating()->at(grip->side)) -
                                 toView.map(_editor.floating()->centre()))
                : grip && grip->kind == Grip::turn                            ? Qt::PointingHandCursor
                : grip || _editor.area().contains(_viewport.bufferPoint(*at)) ? Qt::SizeAllCursor
                                                                              : Qt::CrossCursor;
    }
    if (shape == _cursor || !_viewport.view())
        return;
    _cursor = shape;
    if (shape)
        _viewport.view()->setCursor(*shape);
    else
        _viewport.view()->unsetCursor();
}

}  // namespace dabcanvas::dabpainter
