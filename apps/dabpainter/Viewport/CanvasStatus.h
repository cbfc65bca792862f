// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointF>

class QLabel;
class QDDrawView;
class QStatusBar;

namespace dabcanvas::dabpainter {

class CanvasPointer;
class CanvasViewport;

// The status bar: the canvas's size and zoom, where the pointer is and how it presses, what paints.
class CanvasStatus : public QObject {
    Q_OBJECT

public:
    CanvasStatus(QStatusBar& bar, const CanvasViewport& viewport, const CanvasPointer& pointer);
    // Of a canvas that has come, or is shown otherwise.
    void showCanvas();
    void showShapes(bool on);

private:
    QLabel* addLabel(const QString& longest, int stretch = 0);
    QString turnOf(const QDDrawView& view) const;
    void showPosition(QPointF bufferPoint);

    QStatusBar& _bar;
    const CanvasViewport& _viewport;
    QLabel *_size, *_zoom, *_turn, *_position, *_pressure, *_shapes, *_driver;
};

}  // namespace dabcanvas::dabpainter
