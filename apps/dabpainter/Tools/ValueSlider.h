// SPDX-License-Identifier: MIT
#pragma once

#include <QSlider>

#include "Brush/BrushPresentation.h"

namespace dabcanvas::dabpainter {

// A slim slider that says within itself what it is of and how much: dragged, scrolled, or moved by the keys. Numbers come and
// go as they are stored.
class ValueSlider : public QSlider {
    Q_OBJECT

public:
    // logarithmic: every step is the same part of the value, from the least one above 0.
    ValueSlider(const BrushPresentation& shown, bool logarithmic, QWidget* parent = nullptr);

    void setStored(double stored);  // does not report back
    double stored() const { return _number / _shown.scale; }
    QString numberText() const;
    double numberAt(int position) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void edited(double stored);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    int positionOf(double number) const;
    void moveTo(double x);

    const BrushPresentation _shown;
    const bool _logarithmic;
    double _number = 0;
};

}  // namespace dabcanvas::dabpainter
