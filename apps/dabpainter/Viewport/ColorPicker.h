// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QTimer>
#include <QWidget>

class QKeyEvent;

namespace dabcanvas::dabpainter {

class BrushModel;
class CanvasViewport;

// Takes colours from what is shown while it is on, or while Ctrl is held over the canvas. A ring around the pointer shows
// what a press would take, above the present colour; nothing is taken without one. A pane above the canvas that lets every
// event through: whoever hears the pointer tells it.
class ColorPicker : public QWidget {
    Q_OBJECT

public:
    ColorPicker(CanvasViewport& viewport, const BrushModel& brush);

    bool isOn() const { return _on; }
    void setOn(bool on);
    // Whether holding Ctrl picks; at first it does.
    void setHoldable(bool holdable);
    bool isActive() const { return _on || _held || _pressed; }
    bool isPressed() const { return _pressed; }
    // Of how many pixels across the average is taken.
    void setSide(int pixels) { _side = pixels; }

    // Each tells where the pointer is, in the viewport's points.
    void hover(QPointF at, Qt::KeyboardModifiers modifiers);
    bool press(QPointF at, Qt::KeyboardModifiers modifiers);  // whether it is a pick
    void drag(QPointF at);
    void release(Qt::KeyboardModifiers modifiers);  // which ends a picking that was turned on
    void giveUp();                                  // as if it had not been pressed
    // The pointer has left, or nobody will tell of releases.
    void leave();
    // Changes nothing for others.
    void watchKey(const QKeyEvent& event, QPointF pointer);

signals:
    void picked(const QColor& color);
    void onChanged(bool on);
    void activeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void setHeld(bool held);
    void showAt(QPointF at);
    QColor colorAt(QPointF at) const;
    QColor present() const;
    QRect ringRect() const;
    bool isIdle() const;

    CanvasViewport& _viewport;
    const BrushModel& _brush;
    bool _on = false, _held = false, _pressed = false, _holdable = true;
    int _side = 1;
    QPointF _at;
    QColor _new, _before;  // invalid: there is none; what the brush had when it was pressed
    QTimer _timer;
};

}  // namespace dabcanvas::dabpainter
