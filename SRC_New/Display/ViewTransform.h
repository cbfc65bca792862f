// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QSizeF>
#include <QTransform>

#include "Maths/Export.h"

namespace dabcanvas {

/// How a canvas lies in its view. For scroll bars put a view of the canvas's size into a QScrollArea, stretched as it is.
enum class ViewFit {
    stretch,  ///< over all of the view, whatever its shape; neither turned nor mirrored
    whole,    ///< all of it in sight, with its shape kept, as large as that goes
    free      ///< at the zoom and place that are set
};

/// How a canvas lies in a view: fitted to it, or at a zoom, turned and mirrored about a place.
///
/// Units    canvas: buffer pixels; view: points from its top left, of which each is pixelRatio device pixels wide. A
///          zoom of 1 is one buffer pixel on one device pixel. Angles in radians, counter-clockwise as seen.
class DABCANVAS_CANVAS_API ViewTransform {
public:
    static constexpr double kLeastZoom = 1.0 / 64, kMostZoom = 64;

    ViewTransform() = default;
    /// An empty canvas or view counts as one of a pixel.
    void setSizes(const QSizeF& canvas, const QSizeF& view, double pixelRatio);

    ViewFit fit() const { return _fit; }
    void setFit(ViewFit fit);
    double zoom() const;  ///< with stretch, of the wider stretched side
    /// Keeps what lies at the anchor, a place in the view, where it is, as far as the canvas's edges let it; is free
    /// then.
    void zoomAbout(double zoom, QPointF anchor);
    void turnAbout(double rotation, QPointF anchor);
    void setMirrored(bool mirrored, QPointF anchor);
    /// Moves the canvas by so much; is free then.
    void panBy(QPointF points);
    /// None with stretch.
    double rotation() const { return _fit == ViewFit::stretch ? 0 : _rotation; }
    bool isMirrored() const { return _fit != ViewFit::stretch && _mirrored; }
    /// The canvas's place in the middle of the view.
    QPointF centre() const { return _centre; }
    void setCentre(QPointF canvasPoint);

    /// From canvas to view, and back.
    const QTransform& toView() const { return _toView; }
    const QTransform& toCanvas() const { return _toCanvas; }

private:
    QTransform linear() const;
    double scale() const;  // points per buffer pixel
    double wholeScale() const;
    QTransform snapped(const QTransform& transform) const;
    void moveTo(QPointF canvasPoint, QPointF viewPoint);
    void keepInSight();
    void update();

    QSizeF _canvas{1, 1}, _view{1, 1};
    double _pixelRatio = 1;
    ViewFit _fit = ViewFit::stretch;
    double _zoom = 1;
    QPointF _centre{0.5, 0.5};
    double _rotation = 0;
    bool _mirrored = false;
    QTransform _toView, _toCanvas;
};

}  // namespace dabcanvas
