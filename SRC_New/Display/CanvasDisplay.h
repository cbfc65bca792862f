// SPDX-License-Identifier: MIT
#pragma once

#include <QBrush>
#include <QSizeF>
#include <memory>

#include "Brushes/BrushKinds.h"
#include "Canvas/QDDrawCanvas.h"
#include "Display/ViewTransform.h"
#include "Maths/Export.h"

class QPainter;

namespace dabcanvas {

class DevicePointers;
class HalvedCopies;

/// A canvas on screen, be it in a widget or in an item: where it lies in its view, how it is drawn there, and what the
/// view's mouse, pen and fingers do.
///
/// Use      hosts call what is public of QDDrawView or of CanvasItem::canvas(). A view of another kind derives from it,
///          calls initCanvasOrSayWhy() once, answers what is asked below, has paintCanvas() paint and hands events to
///          pointers().
/// Units    a view point is one of the widget or item, from its top left. What QDDrawCanvas calls view points are these
///          with ViewFit::stretch, and buffer pixels with any other fit.
/// Thread   the application's main thread.
class DABCANVAS_CANVAS_API CanvasDisplay : public QDDrawCanvas {
public:
    ~CanvasDisplay() override;

    // ---- Where the canvas lies. Tips keep the angle that they are seen at, however the canvas is turned.
    ViewFit fit() const { return _transform.fit(); }
    void setFit(ViewFit fit);
    /// 1: a buffer pixel is a pixel of the screen; 1/64 to 64. Setting it keeps the middle, and is ViewFit::free.
    double zoom() const { return _transform.zoom(); }
    void setZoom(double zoom);
    void zoomAbout(double zoom, QPointF viewPoint);  ///< keeps what is there where it is
    /// Radians, counter-clockwise as seen; mirrored left to right before.
    double viewRotation() const { return _transform.rotation(); }
    void setViewRotation(double radians);
    void turnAbout(double radians, QPointF viewPoint);
    bool isViewMirrored() const { return _transform.isMirrored(); }
    void setViewMirrored(bool mirrored);
    /// What of the canvas is in the view's middle, in buffer pixels; to be set with ViewFit::free.
    QPointF viewCentre() const { return _transform.centre(); }
    void setViewCentre(QPointF bufferPoint);
    /// Moves the canvas by so much.
    void panBy(QPointF viewPoints);
    /// From buffer pixels to view points, and back.
    const QTransform& bufferToView() const { return _transform.toView(); }
    const QTransform& viewToBuffer() const { return _transform.toCanvas(); }

    /// On: the wheel zooms, with Ctrl also on a touch pad, whose two fingers pan otherwise; the middle button and
    /// fingers that do not paint pan, two of them zoom and turn as well. Off at first: all of that is left to the host.
    bool isNavigable() const { return _navigable; }
    void setNavigable(bool navigable) { _navigable = navigable; }

    /// What lies under what is transparent, and around the canvas. None at first: what the view shows behind it.
    void setGround(const QBrush& underCanvas, const QBrush& around);

    // ---- The brush as Qt's properties have it: kinds by name, colours as QColor, and back to a new canvas's values
#define DISPLAYED_bool(name)
#define DISPLAYED_int(name)
#define DISPLAYED_float(name)
#define DISPLAYED_QString(name)
#define DISPLAYED_QImage(name)
#define DISPLAYED_LPControlParams(name)
#define DISPLAYED_ESColor(name)   \
    QColor name##Value() const {  \
        return name().toQColor(); \
    }
#define DISPLAYED_RESET(name, Name)      \
    void reset##Name() {                 \
        resetBrushValue(BrushKey::name); \
    }
#define BRUSH_PROPERTY(type, name, Name, ...) DISPLAYED_##type(name) DISPLAYED_RESET(name, Name)
#define BRUSH_IMAGES(name, Name, ...) DISPLAYED_RESET(name, Name)
#define BRUSH_KIND(Kind, name, Name, ...)  \
    Kind name##Kind() const {              \
        return static_cast<Kind>(name());  \
    }                                      \
    using QDDrawCanvas::set##Name;         \
    void set##Name(Kind kind) {            \
        set##Name(static_cast<int>(kind)); \
    }                                      \
    DISPLAYED_RESET(name, Name)
#include "Brushes/BrushPropertyList.h"
#undef DISPLAYED_bool
#undef DISPLAYED_int
#undef DISPLAYED_float
#undef DISPLAYED_QString
#undef DISPLAYED_QImage
#undef DISPLAYED_LPControlParams
#undef DISPLAYED_ESColor
#undef DISPLAYED_RESET
    void resetBrushValue(BrushKey key);

    /// Why nothing can be painted, in words, which the view shows as well; empty when all is well.
    QString problem() const;

protected:
    explicit CanvasDisplay(const QRectF& frame);
    /// initCanvas(), or a canvas of one pixel and a problem() to show in its place.
    void initCanvasOrSayWhy(const SurfaceOptions& options);

    // ---- What the view is to tell and to do
    virtual QSizeF viewSize() const = 0;
    virtual double viewPixelRatio() const = 0;
    virtual void updateView(const QRectF& viewRect) = 0;  ///< to be painted again, soon
    virtual QPointF toWindow(QPointF viewPoint) const = 0;
    virtual QPointF fromWindow(QPointF windowPoint) const = 0;
    virtual QPointF fromGlobal(QPointF globalPoint) const = 0;
    /// Fit, zoom, place or turn are others.
    virtual void viewDidChange() {}
    /// So many fingers came and went together, without moving or painting.
    virtual void fingersDidTap(int) {}

    void viewWasResized();
    void paintCanvas(QPainter& painter, const QRectF& exposed);
    /// The picture, or a halved copy of it, as it is shown now; valid until the next call of any member.
    struct ShownPicture {
        const QImage& image;
        QRectF area;  ///< of its pixels, and parts of pixels, that are the canvas
        QTransform toView;
        bool isSmooth;  ///< interpolated
        bool isTurned;  ///< by no quarter
    };
    ShownPicture shownPicture();
    bool hasGround() const;
    DevicePointers& pointers() {
        return *_pointers;
    }

    QRectF displayFrame() const override;
    double pointScale() const override;
    QPointF localPointWithTouch(const QDDrawTouch& touch) const override;
    void redisplayRect(const QRectF& rect) override;
    void canvasSizeDidChange() override {
        viewWasResized();
    }
    void pictureDidChange(const QRect& bufferPixels) override;
    void contextWasLost() override {
        updateView(QRectF(QPointF(), viewSize()));
    }

private:
    friend class DevicePointers;
    void viewChanged();
    QPointF middle() const;
    QPointF inView(QPointF canvasPoint) const;
    void paintGround(QPainter& painter, const QRectF& exposed) const;
    void paintProblem(QPainter& painter) const;

    ViewTransform _transform;
    QRectF _madeFrame;
    bool _isMade = false;
    bool _navigable = false;
    QBrush _underCanvas, _around;
    QString _problem;
    std::unique_ptr<HalvedCopies> _copies;
    std::unique_ptr<DevicePointers> _pointers;
};

}  // namespace dabcanvas
