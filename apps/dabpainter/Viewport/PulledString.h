// SPDX-License-Identifier: MIT
#pragma once

#include <QRegion>
#include <QWidget>
#include <optional>

namespace dabcanvas::dabpainter {

class CanvasPointer;
class CanvasViewport;

// The string by which the pointer pulls the brush, while it draws with that stabiliser: a thin line above the canvas that
// lets every event through. Only what lies along it is repainted.
class PulledString : public QWidget {
    Q_OBJECT

public:
    PulledString(CanvasViewport& viewport, const CanvasPointer& pointer);

    // To be called with every new view.
    void watchView();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void setBrush(std::optional<QPointF> place);
    void refresh();

    CanvasViewport& _viewport;
    std::optional<QPointF> _brush;  // while it draws; both in buffer pixels
    QPointF _pointer;
    QRegion _painted;
};

}  // namespace dabcanvas::dabpainter
