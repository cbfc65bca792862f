// SPDX-License-Identifier: MIT
// A ring of hues around a triangle of the shades of one.
#pragma once

#include <QImage>
#include <QWidget>

#include "Colour/OkLch.h"

namespace dabcanvas::dabpainter {

class ColorChoice;

// Where the shades of one hue lie: black, white and its purest colour are corners of a triangle inside a circle of radius 1
// about 0, with y downwards. Height is lightness; the way from grey to the edge, chroma. The edge is the limit of sRGB, so
// that no place is without a colour, and none is shown twice; the pure corner is as high as it is light.
class ShadeMap {
public:
    explicit ShadeMap(double hue);

    QPointF white() const;
    QPointF black() const;
    QPointF pure() const { return _pure; }
    QPointF placeOf(const OkLch& shade) const;
    // Of the nearest place of the triangle.
    OkLch shadeAt(QPointF place) const;
    bool contains(QPointF place, double margin) const;
    // Across the triangle at a height.
    double width(double even) const;
    double hue() const { return _hue; }

private:
    double _hue, _pureEven;
    QPointF _pure;
};

// Both as images of so many pixels across, smooth at their edges.
QImage hueRingImage(int pixels, double innerShare);
QImage shadeImage(const ShadeMap& map, int pixels);

// The shades of the present hue. Left and right move the chroma, up and down the lightness; with Shift, further.
class ShadeTriangle : public QWidget {
    Q_OBJECT

public:
    ShadeTriangle(ColorChoice& choice, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QPointF toMap(QPointF at) const;
    void take(QPointF at);
    void describe();

    ColorChoice& _choice;
    bool _held = false;
    QImage _image;
    double _imageHue = -1;
};

// The ring, with the triangle inside. Arrow keys turn it.
class ColorWheel : public QWidget {
    Q_OBJECT

public:
    explicit ColorWheel(ColorChoice& choice, QWidget* parent = nullptr);
    QSize sizeHint() const override { return QSize(200, 170); }
    QSize minimumSizeHint() const override { return QSize(76, 76); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    double radius() const;
    QPointF centre() const { return QRectF(rect()).center(); }
    void take(QPointF at);
    void describe();

    ColorChoice& _choice;
    ShadeTriangle* _triangle;
    bool _held = false;
    QImage _image;
};

}  // namespace dabcanvas::dabpainter
