// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <memory>

class QDDrawView;

namespace dabcanvas::dabpainter {

// What one sees of a canvas: the view, as large as the zoom makes it, moved about behind the edges of this
// widget.
//
// Units   positions in this widget's points unless named buffer; a zoom of 1 is one buffer pixel on one pixel
//         of the screen, whatever the screen's devicePixelRatio.
class CanvasViewport : public QWidget {
    Q_OBJECT

public:
    static constexpr double kLeastZoom = 0.02, kMostZoom = 32;

    explicit CanvasViewport(QWidget* parent = nullptr);

    // Takes a canvas over and destroys the one before; it is shown whole.
    void setView(std::unique_ptr<QDDrawView> view);
    QDDrawView* view() const { return _view; }

    double zoom() const { return _zoom; }
    void setZoom(double zoom) { zoomAbout(zoom, rect().center()); }
    // Keeps what lies at the anchor where it is.
    void zoomAbout(double zoom, QPointF anchor);
    // Whole in sight, at most 1.
    void fit();
    void pan(QPointF by);

    QPointF bufferPoint(QPointF at) const;
    QPointF pointOfBuffer(QPointF bufferPoint) const;
    // Points per buffer pixel.
    double scale() const;

signals:
    void zoomChanged(double zoom);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QSizeF canvasSize() const;  // in points
    void place();
    void adapt();

    QDDrawView* _view = nullptr;
    double _zoom = 1;
    QPointF _topLeft;
    bool _fitting = true;  // until the user zooms, the canvas is fitted to the window
};

}  // namespace dabcanvas::dabpainter
