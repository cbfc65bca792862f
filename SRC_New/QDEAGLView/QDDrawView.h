// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QWidget>
#include <cstdint>
#include <memory>

#include "Maths/Export.h"
#ifndef Q_MOC_RUN  // which reads every file once, and is to read the list of properties below
#include "Canvas/QDDrawCanvas.h"
#endif

class QTouchEvent;

// A canvas in a window: a widget that shows what a QDDrawCanvas holds and has all of its operations and
// properties.
//
//     auto view = QDDrawView::initWithFrame(QRectF(0, 0, 800, 600));
//     view->setRadius(24);
//     view->drawingWithBeginPoint({100, 100}, 0.5f);
//     view->drawingWithMoveToPoint({300, 180}, 0.9f);
//     view->drawingWithEndPoint({400, 120}, 0.2f);
//     view->show();
//
// Pointer  left mouse button, pen tip and one finger paint; a mouse presses with 1, a touch screen that measures no
//          pressure too. What another device began is not disturbed. A second finger takes the first one's mark
//          back; from there until all are up, touch is left to event filters. Other buttons, the wheel and hovering
//          pens go to the parent. A stroke ends where it got to when the window is deactivated or the view hidden.
// Size     the buffer gets the frame's size at creation and keeps it; a widget of another size shows it
//          stretched, and points scale.
// Owner    whoever holds the unique_ptr. With a parent, or once put into a layout, release() it: the parent owns.
// Life     a delegate may destroy it in any callback, but not in one that ends a stroke because the view is hidden or
//          resized: Qt goes on with it. deleteLater() is fine there.
// Thread   the application's main thread, as for every widget.
class DABCANVAS_VIEW_API QDDrawView : public QWidget, public QDDrawCanvas {
    Q_OBJECT
    // A property for each row of BrushPropertyList.h, with the canvas's getter and setter of that name.
#define BRUSH_PROPERTY(type, name, Name, ...) Q_PROPERTY(type name READ name WRITE set##Name)
#include "Brushes/BrushPropertyList.h"

public:
    // Frame: place and size in the parent, in view points, from 1 x 1 on. Null, after one log line, when
    // the surface that is asked for cannot be had, or not in this size.
    static std::unique_ptr<QDDrawView> initWithFrame(const QRectF& frame, QWidget* parent = nullptr,
                                                     const dabcanvas::SurfaceOptions& options = {});

    QSize sizeHint() const override;

    // Where in the view an event at a place in the window is.
    QPointF localPointWithTouch(const QDDrawTouch& touch) const override;

protected:
    explicit QDDrawView(const QRectF& frame, QWidget* parent = nullptr);

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void tabletEvent(QTabletEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool event(QEvent* event) override;

    // The screen always shows the whole canvas image, never the layers.
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    QRectF displayFrame() const override {
        return QRectF(rect());
    }
    void redisplayRect(const QRectF& viewRect) override;
    std::unique_ptr<LeafDrawing> makeLeafDrawView(const QRectF& frame) override;
    void showLeafDrawView(bool shown) override;

private:
    // Which device the stroke in progress belongs to; only its events go on.
    enum class Pointer : std::uint8_t { none, mouse, pen, finger };

    QDDrawTouch touchAt(QPointF position, double pressure) const;
    bool isOurs(const QMouseEvent& event) const;
    void pressed(Pointer pointer, const QDDrawTouch& touch);
    void dragged(Pointer pointer, const QDDrawTouch& touch);
    void released(Pointer pointer, const QDDrawTouch& touch);
    bool forgetPointer();
    bool touchEvent(QTouchEvent& event);

    Pointer _pointer = Pointer::none;
    std::int64_t _penId = 0;
    bool _fingersIgnored = false;  // until all are up
    ulong _fingerDown = 0;         // timestamp, in milliseconds
    QWidget* _leafWidget = nullptr;
};
