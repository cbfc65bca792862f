// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPointF>
#include <QRect>
#include <QSizeF>
#include <QTransform>

namespace dabcanvas::dabpainter {

// A picture and where it lies over a canvas: stretched, mirrored, turned about its centre.
//
// Units    buffer pixels, y downwards; angles in radians, clockwise. A negative side is mirrored.
// Pixels   exact while it is as large as it is on whole pixels, also turned by quarters and mirrored; else interpolated,
//          averaged where it is made smaller, with smooth edges.
class FloatingPicture {
public:
    // As large as it is. Any format; a device pixel ratio plays no role.
    FloatingPicture(const QImage& picture, QPoint corner);

    const QImage& picture() const { return _picture; }
    QPointF centre() const { return _centre; }
    QSizeF size() const { return _size; }
    double radian() const { return _radian; }
    // From the picture's pixels.
    QTransform toBuffer() const;
    // Of its frame: (-1, -1) is the picture's top left corner, (0, 1) the middle of its lower side.
    QPointF at(QPointF side) const;
    bool contains(QPointF bufferPoint) const;
    QRect bounds() const;
    // As it lies in a picture of another scale.
    FloatingPicture scaled(double scale) const;
    // What of it lies in an area, as large as that: premultiplied RGBA.
    QImage drawn(const QRect& area) const;

    // By whole pixels, so that what is sharp stays sharp.
    void moveBy(QPointF by);
    // So that this side of its frame is there, and the opposite one stays, or the centre.
    struct Stretch {
        bool keepsAspect = false;
        bool aboutCentre = false;
    };
    void stretch(QPoint side, QPointF to, Stretch how);
    void resize(QSizeF size) { _size = size; }
    void turnTo(double radian);

    friend bool operator==(const FloatingPicture& one, const FloatingPicture& other) {
        return one._centre == other._centre && one._size == other._size && one._radian == other._radian;
    }

private:
    bool isUpright() const;  // but for quarters
    bool isExact() const;
    QImage exactly() const;
    void toWholePixels();

    QImage _picture;
    QPointF _centre;
    QSizeF _size;
    double _radian = 0;
};

}  // namespace dabcanvas::dabpainter
