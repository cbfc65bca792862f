// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <memory>

class QDDrawView;

namespace dabcanvas::dabpainter {

// The room that the canvas's view fills; another picture brings another view.
//
// Units   positions in this widget's points, which are the view's, unless named buffer; a zoom of 1 is one buffer pixel on
//         one pixel of the screen, whatever the screen's devicePixelRatio.
class CanvasViewport : public QWidget {
    Q_OBJECT

public:
    explicit CanvasViewport(QWidget* parent = nullptr);
    ~CanvasViewport() override;

    // Takes a canvas over and destroys the one before; it is shown whole.
    void setView(std::unique_ptr<QDDrawView> view);
    QDDrawView* view() const { return _view; }

    double zoom() const;
    void setZoom(double zoom) { zoomAbout(zoom, QRectF(rect()).center()); }
    // Keeps what lies at the anchor where it is.
    void zoomAbout(double zoom, QPointF anchor);
    // Whole in sight and upright, at most 1.
    void fit();
    void pan(QPointF by);
    // About its middle; radians, counter-clockwise as seen.
    void turnBy(double radians);
    void turnUpright();
    bool isMirrored() const;
    void setMirrored(bool mirrored);

    QPointF bufferPoint(QPointF at) const;
    QPointF pointOfBuffer(QPointF bufferPoint) const;
    // Points per buffer pixel.
    double scale() const;
    // Whether a key that is pressed is meant for the canvas: nobody types, chooses or is asked, and the pointer is here
    // or the keyboard.
    bool takesKeys() const;

signals:
    void zoomChanged(double zoom);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void dropView();
    void setGround();

    QDDrawView* _view = nullptr;
    double _fitZoom = 0;  // until the user zooms or pans, the canvas is fitted to the window
};

// Makes a widget above the canvas one that is only seen.
void letEventsThrough(QWidget& pane);

}  // namespace dabcanvas::dabpainter
