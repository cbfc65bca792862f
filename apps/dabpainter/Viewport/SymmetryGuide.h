// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <vector>

#include "Dabs/Symmetry.h"

class QSinglePointEvent;

namespace dabcanvas::dabpainter {

class CanvasViewport;

// The symmetry that is painted with, and its axes above the canvas: thin lines, which let every event through but while the
// centre is being moved. Each canvas begins with the centre in its middle.
class SymmetryGuide : public QWidget {
    Q_OBJECT

public:
    explicit SymmetryGuide(CanvasViewport& viewport);

    // To be called with every new view.
    void watchView();

    const Symmetry& symmetry() const { return _symmetry; }
    void setKind(SymmetryKind kind);
    void setRays(int rays, bool mirrored);
    void setCentre(QPointF bufferPoint);  // or the nearest place where pixels mirror each other
    void centreInTheMiddle();
    // On: the next drag moves the centre, and ends it.
    void setMoving(bool moving);
    bool isMoving() const { return _moving; }

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void symmetryChanged();
    void movingChanged(bool moving);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPointF middle() const;
    void apply();
    void drag(const QSinglePointEvent& event);
    std::vector<double> directions() const;
    void paintLine(QPainter& painter, QPointF from, QPointF to) const;

    CanvasViewport& _viewport;
    Symmetry _symmetry;
    bool _moving = false, _isDragged = false;
};

}  // namespace dabcanvas::dabpainter
