// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <optional>

#include "Input/PressurePoints.h"

namespace dabcanvas::dabpainter {

// The curve, to be bent: points are dragged, added by a click and taken away by dragging them out or by Delete. By the
// keyboard: Ctrl with left and right chooses a point, arrows move it, Insert adds one after it.
class PressureCurveEditor : public QWidget {
    Q_OBJECT

public:
    explicit PressureCurveEditor(QWidget* parent = nullptr);

    const PressurePoints& points() const { return _points; }
    void setPoints(const PressurePoints& points);
    int chosen() const { return _chosen; }
    // A pressure of the device, to be shown on the curve; none: no dot.
    void showPressure(std::optional<float> raw);

    QSize sizeHint() const override { return {240, 240}; }

signals:
    void edited();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QRectF field() const;
    QPointF inField(QPointF point) const;
    QPointF atPlace(QPointF place) const;
    int pointAt(QPointF place) const;
    void choose(int point);
    void addAfterChosen();
    void removeChosen();
    void changed();

    PressurePoints _points;
    int _chosen = 0;
    bool _dragging = false;
    std::optional<float> _raw;
};

}  // namespace dabcanvas::dabpainter
